// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHash>

#include <optional>
#include <vector>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin
{

/// Resolves the destinations of outline items and annotations (ISO 32000-1, 12.3.2), explicit and
/// named. Made once a document; the caller holds the session's lock.
class MuPDFDestinations
{
public:
    MuPDFDestinations(const MuPDFSession &session, int pageCount);

    /// The value of a "Dest" key, or of "D" in an action: an array, a name or a string.
    std::optional<PDFPlace> resolve(pdf_obj *destination) const;

    /// Where an action of kind GoTo leads.
    std::optional<PDFPlace> resolveAction(pdf_obj *action) const;

private:
    void indexPages(int pageCount);
    void indexNames();
    void readNameTree(pdf_obj *root);
    void readNames(pdf_obj *names);
    void readPlainDictionary(pdf_obj *dictionary);
    std::optional<PDFPlace> explicitPlace(pdf_obj *array) const;
    pdf_obj *get(pdf_obj *dictionary, const char *key) const;

    const MuPDFSession &m_session;
    std::vector<PageGeometry> m_pages;
    QHash<const pdf_obj *, int> m_pageIndexes;
    QHash<QByteArray, pdf_obj *> m_names;
};

} // namespace Tavrin
