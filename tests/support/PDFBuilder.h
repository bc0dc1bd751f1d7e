// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <deque>
#include <map>
#include <optional>
#include <vector>

#include <support/Dest.h>
#include <support/PDFPageBuilder.h>
#include <support/PDFSource.h>

namespace Tavrin::Testing
{

/// An item of an outline in the making.
struct OutlineItem {
    enum class Target { Dest, GoToAction };

    QString title;
    std::optional<Dest> dest = std::nullopt;
    std::vector<OutlineItem> children = {};
    Target target = Target::Dest;
};

/// Where a named destination is listed, and in which form.
enum class NameListing { NameTree, CatalogDictionary };
enum class NameForm { Dictionary, BareArray };

/// A PDF in the making: uncompressed, with a correct cross-reference table.
///
/// Two calls of build() give the same bytes. Every entry of the catalog and the trailer, and
/// every object, can be replaced by any source, so that broken and hostile files can be made.
class PDFBuilder
{
public:
    /// The reference stays valid while pages are added. A page without a size of its own takes
    /// what inherited() sets.
    PDFPageBuilder &addPageWithBox(const Rect &mediaBox)
    {
        return addPageWithoutBox().entry("MediaBox", PDFSource::rectangle(mediaBox));
    }
    PDFPageBuilder &addPage(const Size &size = {612, 792})
    {
        return addPageWithBox({{0, 0}, size});
    }
    PDFPageBuilder &addPageWithoutBox();
    /// Sets an entry of the root of the page tree: "MediaBox", "Rotate".
    void inherited(const QByteArray &key, const QByteArray &source) { m_inherited[key] = source; }
    /// Puts this many pages under an inner node each; 0 keeps the tree flat.
    void pagesPerNode(int count) { m_pagesPerNode = count; }

    void outline(const std::vector<OutlineItem> &items) { m_outline = items; }
    void namedDestination(const QByteArray &name, const Dest &dest,
                          NameForm form = NameForm::Dictionary,
                          NameListing listing = NameListing::NameTree);
    /// Splits the name tree into leaves of this many names; 0 keeps all in the root.
    void namesPerLeaf(int count) { m_namesPerLeaf = count; }

    /// An entry of the document information, such as "Title".
    void info(const QByteArray &key, const QString &text)
    {
        m_info[key] = PDFSource::textString(text);
    }
    /// The source of a label dictionary, which counts from this page on: "<< /S /r >>".
    void pageLabels(int firstPage, const QByteArray &source) { m_labels[firstPage] = source; }

    /// Adds an object and says its number.
    int addObject(const QByteArray &source);
    int addStream(const QByteArray &dictionaryEntries, const QByteArray &data);
    /// Replaces an object; those of pages and the catalog are written after and win.
    void setObject(int number, const QByteArray &source)
    {
        m_objects.at(std::size_t(number)) = source;
    }
    int pageObject(int page) const { return m_pageObjects.at(std::size_t(page)); }
    void catalogEntry(const QByteArray &key, const QByteArray &source) { m_catalog[key] = source; }
    void trailerEntry(const QByteArray &key, const QByteArray &source) { m_trailer[key] = source; }

    QByteArray build() const;

private:
    friend class PDFWriter;

    using Entries = std::map<QByteArray, QByteArray>;
    struct NamedDestination {
        Dest dest;
        NameForm form;
    };

    /// The first is the head of the list of free objects.
    std::vector<QByteArray> m_objects = std::vector<QByteArray>(1);
    std::deque<PDFPageBuilder> m_pages;
    std::vector<int> m_pageObjects;
    std::vector<OutlineItem> m_outline;
    std::map<QByteArray, NamedDestination> m_names;
    std::map<QByteArray, NamedDestination> m_catalogNames;
    std::map<int, QByteArray> m_labels;
    Entries m_inherited;
    Entries m_info;
    Entries m_catalog;
    Entries m_trailer;
    int m_pagesPerNode = 0;
    int m_namesPerLeaf = 0;
};

/// The document encrypted so that it opens with this password alone; nothing where the qpdf
/// program is not installed.
std::optional<QByteArray> encrypted(const QByteArray &pdf, const QString &password);

} // namespace Tavrin::Testing
