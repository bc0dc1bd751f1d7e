// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/pdf/HostPDFDocument.h>
#include <Tavrin/pdf/PDFArray.h>
#include <Tavrin/pdf/PDFDictionary.h>
#include <Tavrin/pdfspec/PDFReadingPolicy.h>

namespace Tavrin
{

using DestinationMap = QHash<QString, HostPDFDestination>;

/// Reads explicit and named destinations (ISO 32000-1, 12.3.2) of one document.
///
/// Holds an index of the pages, so that a destination costs the same in a document of any length.
/// What can't be read says why on standard error and gives nothing.
class DestinationReader
{
public:
    DestinationReader(std::shared_ptr<HostPDFDocument> document,
                      const std::vector<PDFDictionaryPtr> &pageDictionaries,
                      PDFReadingPolicy policy);

    /// An explicit destination: page, mode and coordinates.
    std::optional<HostPDFDestination> destination(const PDFArray &array) const;

    /// A name tree, its nodes visited once each however often the file refers to them. Of two
    /// equal keys the later one counts.
    DestinationMap nameTree(const PDFDictionary &root) const;

    /// A dictionary that maps names to destinations directly, as files before PDF 1.2 have it.
    DestinationMap plainDictionary(const PDFDictionary &dictionary) const;

private:
    struct Coordinates;

    std::optional<HostPDFDestination> strictDestination(const PDFArray &array) const;
    std::optional<HostPDFDestination> commonDestination(const PDFArray &array) const;
    std::optional<HostPDFDestination> namedValue(const PDFObjectPtr &value) const;
    void readNames(const PDFArray &names, DestinationMap &map) const;
    std::optional<int> pageIndex(const PDFObject &object) const;

    std::shared_ptr<HostPDFDocument> m_document;
    QHash<PDFObjectHandle, int> m_pages;
    PDFReadingPolicy m_policy;
};

} // namespace Tavrin
