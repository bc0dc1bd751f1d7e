// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QSet>

#include <vector>

#include <Tavrin/drafting/BodyColumnMeasurer.h>
#include <Tavrin/drafting/DraftItem.h>
#include <Tavrin/drafting/PrintedPages.h>
#include <Tavrin/pdf/CachingPDFDocument.h>

namespace Tavrin
{

/// Reads the printed table of contents: lines that end in a page number, on pages near the front.
///
/// Where a line leads is told by the link on it, else by the page labels, else by the distance
/// between printed and counted page numbers that most of the headings found on pages confirm.
class ContentsReader
{
public:
    ContentsReader(const PrintedPages &pages, const BodyColumn &column);

    /// Pages that list contents, figures or tables, among the first hundred.
    const QSet<int> &pages() const { return m_contentsPages; }

    /// The entries in order, with page and, where links tell it, the point. Reads every page if
    /// the document has neither links nor page labels.
    std::vector<DraftItem> read(const CachingPDFDocument &document) const;

private:
    struct Row {
        int page = 0;
        QString text;
        Rect bounds;
    };
    struct Entry {
        DraftItem item;
        QString pageLabel;
        Row row;
    };

    std::vector<Row> rows(int page) const;
    bool isContents(const std::vector<Row> &rows) const;
    std::vector<Entry> entries() const;
    void addRow(const Row &row, QString &pending, std::vector<Entry> &entries) const;
    /// "I", "II" and so on above the chapters, which then stand one level deeper.
    void markParts(std::vector<Entry> &entries) const;
    void followLinks(const CachingPDFDocument &document, std::vector<Entry> &entries) const;
    void followLabels(const CachingPDFDocument &document, std::vector<Entry> &entries) const;
    void followHeadings(std::vector<Entry> &entries) const;
    QHash<QString, int> pagesOfHeadings() const;

    const PrintedPages &m_pages;
    const BodyColumn &m_column;
    QSet<int> m_contentsPages;
    std::vector<int> m_order;
};

} // namespace Tavrin
