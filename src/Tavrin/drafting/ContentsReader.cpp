// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/ContentsReader.h>

#include <Tavrin/drafting/OutlineReader.h>
#include <Tavrin/drafting/TextKey.h>

#include <QRegularExpression>

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

constexpr int frontPages = 100;
constexpr size_t fewestRows = 5;
constexpr qsizetype longestPending = 500;

const QRegularExpression &rowPattern()
{
    static const QRegularExpression pattern(
        u"^(?<text>.*?[^.\\s])(?<leader>(?:\\s?[.\\x{2026}\\x{b7}]){3,})?\\s*"
        "(?<=[\\s.\\x{2026}\\x{b7}])(?<page>\\d{1,4}|[ivxlc]{1,7})$"_s);
    return pattern;
}

/// The heading of a list that is none of sections.
bool isOtherList(const QString &text)
{
    static const QSet<QString> names{u"listoffigures"_s, u"listoftables"_s,   u"figures"_s,
                                     u"tables"_s,        u"listofexamples"_s, u"listoflistings"_s};
    return names.contains(TextKey::fold(text));
}

bool hasLink(const DraftItem &item)
{
    return item.page >= 0;
}

} // namespace

ContentsReader::ContentsReader(const PrintedPages &pages, const BodyColumn &column)
    : m_pages(pages), m_column(column)
{
    for (int page = 0; page < std::min(frontPages, pages.pageCount()); ++page) {
        if (isContents(rows(page))) {
            m_contentsPages.insert(page);
            m_order.push_back(page);
        }
    }
}

std::vector<ContentsReader::Row> ContentsReader::rows(int page) const
{
    std::vector<const PrintedLine *> lines;
    for (const PrintedLine &line : m_pages.lines(page)) {
        if (!m_column.isOutside(line, m_pages.size(page)))
            lines.push_back(&line);
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const auto *a, const auto *b) { return a->middle() > b->middle(); });
    std::vector<Row> rows;
    std::vector<const PrintedLine *> row;
    const auto flush = [&] {
        std::stable_sort(row.begin(), row.end(), [](const auto *a, const auto *b) {
            return a->bounds.minX() < b->bounds.minX();
        });
        Row joined{page, {}, Rect::null()};
        for (const PrintedLine *line : row) {
            joined.text += (joined.text.isEmpty() ? QString() : u" "_s) + line->text;
            joined.bounds = joined.bounds.united(line->bounds);
        }
        if (!row.empty())
            rows.push_back(std::move(joined));
        row.clear();
    };
    for (const PrintedLine *line : lines) {
        if (!row.empty() && line->top() < row.front()->middle())
            flush();
        row.push_back(line);
    }
    flush();
    return rows;
}

bool ContentsReader::isContents(const std::vector<Row> &rows) const
{
    size_t listed = 0;
    size_t marked = 0;
    size_t descents = 0;
    int last = 0;
    for (const Row &row : rows) {
        const auto match = rowPattern().match(row.text);
        if (!match.hasMatch())
            continue;
        ++listed;
        const bool isNumbered = HeadingNumber::parse(row.text).has_value();
        marked += isNumbered || match.hasCaptured(u"leader"_s) ? 1 : 0;
        const int page = match.captured(u"page"_s).toInt();
        descents += page > 0 && page < last ? 1 : 0;
        last = std::max(last, page);
    }
    // An index lists pages too, and tables end in numbers; neither ascends throughout.
    return listed >= fewestRows && 10 * listed >= 6 * rows.size() && 2 * marked >= listed &&
           10 * descents <= listed;
}

std::vector<DraftItem> ContentsReader::read(const CachingPDFDocument &document) const
{
    std::vector<Entry> found = entries();
    markParts(found);
    followLinks(document, found);
    followLabels(document, found);
    followHeadings(found);
    std::vector<DraftItem> items;
    items.reserve(found.size());
    for (Entry &entry : found)
        items.push_back(std::move(entry.item));
    return items;
}

std::vector<ContentsReader::Entry> ContentsReader::entries() const
{
    std::vector<Entry> entries;
    QString pending;
    for (size_t i = 0; i < m_order.size(); ++i) {
        if (i > 0 && m_order[i] > m_order[i - 1] + 1)
            break;
        for (const Row &row : rows(m_order[i])) {
            if (isOtherList(row.text))
                return entries;
            addRow(row, pending, entries);
        }
    }
    return entries;
}

void ContentsReader::addRow(const Row &row, QString &pending, std::vector<Entry> &entries) const
{
    const auto match = rowPattern().match(row.text);
    if (!match.hasMatch()) {
        // A title that goes on in the next row; headings of the list itself carry no number.
        const bool begins = HeadingNumber::parse(row.text).has_value();
        pending = begins || !pending.isEmpty()
                      ? (begins ? QString() : pending) + row.text + QLatin1Char(' ')
                      : QString();
        pending.truncate(longestPending);
        return;
    }
    const QString text = match.captured(u"text"_s);
    const bool goesOn = !pending.isEmpty() && !HeadingNumber::parse(text);
    Entry entry{OutlineReader::itemFromLabel(goesOn ? pending + text : text),
                match.captured(u"page"_s), row};
    pending.clear();
    const auto &number = entry.item.number;
    if (number && !number->isAmbiguous)
        entry.item.depth = static_cast<int>(number->parts.size()) - 1;
    entries.push_back(std::move(entry));
}

void ContentsReader::markParts(std::vector<Entry> &entries) const
{
    int parts = 0;
    for (Entry &entry : entries) {
        auto &number = entry.item.number;
        const auto value = number && number->parts.size() == 1
                               ? HeadingNumber::romanValue(number->parts.front())
                               : std::nullopt;
        if (value == parts + 1) {
            ++parts;
            number->word = HeadingNumber::Word::Part;
            number->isAmbiguous = false;
            number->isRoman = true;
        } else if (parts > 0) {
            ++entry.item.depth;
        }
    }
}

void ContentsReader::followLinks(const CachingPDFDocument &document,
                                 std::vector<Entry> &entries) const
{
    QHash<int, std::vector<HostPDFAnnotation>> links;
    for (const int index : m_order) {
        if (const auto page = document.page(index))
            links.insert(index, page->annotations());
    }
    for (Entry &entry : entries) {
        const PageGeometry geometry = m_pages.geometry(entry.row.page);
        for (const HostPDFAnnotation &link : std::as_const(links)[entry.row.page]) {
            const Point middle = geometry.toUpright(link.bounds).center();
            const auto &place = link.destination;
            if (!place || !place->page() || middle.y > entry.row.bounds.maxY() ||
                middle.y < entry.row.bounds.minY())
                continue;
            if (const auto page = document.indexForPage(*place->page())) {
                entry.item.page = *page;
                entry.item.hint = place->page()->geometry().toUpright(place->point());
                break;
            }
        }
    }
}

void ContentsReader::followLabels(const CachingPDFDocument &document,
                                  std::vector<Entry> &entries) const
{
    QHash<QString, int> indexes;
    bool hasLabels = false;
    for (int i = document.pageCount(); i-- > 0;) {
        const auto page = document.page(i);
        const QString label = page ? page->label() : QString();
        hasLabels = hasLabels || (page && label != QString::number(i + 1));
        indexes.insert(label, i);
    }
    for (Entry &entry : entries) {
        if (hasLabels && !hasLink(entry.item))
            entry.item.page = indexes.value(entry.pageLabel, -1);
    }
}

QHash<QString, int> ContentsReader::pagesOfHeadings() const
{
    QHash<QString, int> pages;
    for (int page = 0; page < m_pages.pageCount(); ++page) {
        if (m_contentsPages.contains(page))
            continue;
        for (const PrintedLine &line : m_pages.lines(page)) {
            if (line.beginsStyled || line.largestSize > m_pages.bodySize())
                pages.insert(TextKey::fold(line.text), page);
        }
    }
    return pages;
}

void ContentsReader::followHeadings(std::vector<Entry> &entries) const
{
    if (std::all_of(entries.begin(), entries.end(),
                    [](const Entry &entry) { return hasLink(entry.item); }))
        return;
    const QHash<QString, int> pages = pagesOfHeadings();
    std::map<int, int> votes;
    for (const Entry &entry : entries) {
        const int page = pages.value(TextKey::fold(entry.item.label), -1);
        if (page >= 0 && entry.pageLabel.toInt() > 0)
            ++votes[page - entry.pageLabel.toInt()];
    }
    const auto fewer = [](const auto &a, const auto &b) { return a.second < b.second; };
    const auto most = std::max_element(votes.begin(), votes.end(), fewer);
    for (Entry &entry : entries) {
        const int number = entry.pageLabel.toInt();
        if (hasLink(entry.item) || number == 0)
            continue;
        const int distance = most != votes.end() ? most->first : -1;
        if (number + distance >= 0 && number + distance < m_pages.pageCount())
            entry.item.page = number + distance;
    }
}

} // namespace Tavrin
