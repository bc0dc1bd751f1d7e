// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/RunningHeadFinder.h>

#include <Tavrin/drafting/HeadingNumber.h>

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

/// The part of the page's height in which a running head can stand.
constexpr double zone = 0.2;
/// Lines that stand on one height on two pages can differ by this, in points.
constexpr double sameHeight = 2.5;
constexpr int fewestRepeats = 3;
/// Between the lines of one head, as a share of their height.
constexpr double mostLeading = 1.5;

const QRegularExpression &digits()
{
    static const QRegularExpression pattern(u"\\d+|\\b[ivxlc]+\\b"_s);
    return pattern;
}

/// The number at either end of a line.
std::optional<int> numberAtEnd(const QString &text)
{
    static const QRegularExpression pattern(
        u"(?:^(\\d{1,5})\\b(?!\\.\\d)|(?<![.\\d])\\b(\\d{1,5})$)"_s);
    std::optional<int> number;
    for (auto it = pattern.globalMatch(text); it.hasNext();)
        number = it.next().captured().toInt();
    return number;
}

} // namespace

RunningHeadFinder::RunningHeadFinder(const PrintedPages &pages, std::vector<int> sample, Edge edge)
    : m_pages(pages), m_sample(std::move(sample)), m_edge(edge)
{
}

std::optional<RunningHeadFinder::Border> RunningHeadFinder::find()
{
    for (const int page : m_sample)
        collectRows(page);
    Rows byHeight;
    for (Row &row : m_rows)
        byHeight.push_back(&row);
    std::stable_sort(byHeight.begin(), byHeight.end(),
                     [](const Row *a, const Row *b) { return a->outer < b->outer; });
    const auto sampled = static_cast<std::ptrdiff_t>(m_sample.size());
    const auto height = [](const Row &row) { return row.inner - row.outer; };
    std::optional<double> reach;
    for (auto begin = byHeight.begin(); begin != byHeight.end();) {
        auto end = begin + 1;
        while (end != byHeight.end() && (*end)->outer - (*(end - 1))->outer < sameHeight)
            ++end;
        const Judgement judgement = judgeHeight({begin, end}, reach);
        // Further in than a line of text nothing repeats but tables.
        if (judgement == Judgement::Text && 5 * (end - begin) > sampled)
            break;
        if (judgement == Judgement::Head)
            reach = std::max(reach.value_or(0), (*begin)->inner + mostLeading * height(**begin));
        begin = end;
    }
    markEnclosed();
    const auto repeats = [](const Row &row) { return row.repeats; };
    if (std::none_of(m_rows.begin(), m_rows.end(), repeats))
        return std::nullopt;
    return measure();
}

void RunningHeadFinder::collectRows(int page)
{
    const double height = m_pages.size(page).height;
    std::vector<Row> rows;
    for (const PrintedLine &line : m_pages.lines(page)) {
        Row row{page, line.bottom(), line.top(), {line.text}, {}, {}, false, false};
        if (m_edge == Edge::Top) {
            row.outer = height - line.top();
            row.inner = height - line.bottom();
        }
        if (row.outer < zone * height)
            rows.push_back(std::move(row));
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row &a, const Row &b) { return a.outer < b.outer; });
    // Title and page number stand on one line, at either side of the page.
    const auto first = static_cast<std::ptrdiff_t>(m_rows.size());
    for (Row &row : rows) {
        const bool isNew = m_rows.size() == static_cast<size_t>(first) ||
                           row.outer > (m_rows.back().outer + m_rows.back().inner) / 2;
        if (!isNew) {
            m_rows.back().texts += row.texts;
            m_rows.back().inner = std::max(m_rows.back().inner, row.inner);
        } else {
            m_rows.push_back(std::move(row));
        }
    }
    std::for_each(m_rows.begin() + first, m_rows.end(), [this](Row &row) { describe(row); });
}

void RunningHeadFinder::describe(Row &row) const
{
    static const QRegularExpression alone(
        u"^[-\\x{2013}\\x{2014} ]*(\\d{1,5}|[ivxlc]+)[-\\x{2013}\\x{2014} ]*$"_s);
    for (const QString &text : std::as_const(row.texts)) {
        row.patterns.append(text.toLower().replace(digits(), u"#"_s));
        if (const auto number = numberAtEnd(text))
            row.numberOffset = *number - row.page;
    }
    row.isNumberAlone = row.texts.size() == 1 && alone.match(row.texts.front()).hasMatch();
}

bool RunningHeadFinder::countsPages(const Rows &rows)
{
    std::map<int, int> votes;
    for (const Row *row : rows) {
        if (row->numberOffset)
            ++votes[*row->numberOffset];
    }
    for (Row *row : rows)
        row->repeats = row->numberOffset && votes[*row->numberOffset] >= fewestRepeats;
    return std::any_of(rows.begin(), rows.end(), [](const Row *row) { return row->repeats; });
}

RunningHeadFinder::Judgement RunningHeadFinder::judgeHeight(const Rows &rows,
                                                            std::optional<double> reach)
{
    const bool counts = countsPages(rows);
    QHash<QString, int> patterns;
    for (const Row *row : rows)
        for (const QString &pattern : row->patterns)
            ++patterns[pattern];
    int repeating = 0;
    int numbersAlone = 0;
    for (const Row *row : rows) {
        const auto isCommonPattern = [&](const QString &pattern) {
            return patterns.value(pattern) >= (row->isNumberAlone ? fewestRepeats : 2);
        };
        const bool same = std::any_of(row->patterns.begin(), row->patterns.end(), isCommonPattern);
        repeating += row->repeats || same ? 1 : 0;
        numbersAlone += row->isNumberAlone ? 1 : 0;
    }
    const int all = static_cast<int>(rows.size());
    const bool isCommon = 4 * all >= static_cast<int>(m_sample.size());
    const bool isPageNumber = counts && 10 * numbersAlone >= 8 * all;
    // What repeats away from the head is a template of the text.
    const bool isNear = !reach || rows.front()->outer < *reach;
    const bool isHead = repeating >= fewestRepeats &&
                        ((isCommon && isNear && 10 * repeating >= 6 * all) || isPageNumber);
    for (Row *row : rows)
        row->repeats = isHead;
    return isHead ? Judgement::Head : Judgement::Text;
}

void RunningHeadFinder::markEnclosed()
{
    for (size_t i = m_rows.size(); i > 1; --i) {
        if (m_rows[i - 2].page == m_rows[i - 1].page && m_rows[i - 1].repeats)
            m_rows[i - 2].repeats = true;
    }
}

RunningHeadFinder::Border RunningHeadFinder::measure() const
{
    Border border;
    for (const Row &row : m_rows) {
        if (row.repeats)
            border.head = std::max(border.head, row.inner);
    }
    border.body = zone * m_pages.size(m_sample.front()).height;
    std::vector<double> bodies;
    int page = -1;
    for (const Row &row : m_rows) {
        if (row.repeats || row.page == page)
            continue;
        page = row.page;
        bodies.push_back(row.outer);
    }
    std::sort(bodies.begin(), bodies.end());
    for (const double body : bodies)
        border.exceptions += (body + 1 < border.head) ? 1 : 0;
    // A single page out of order, a title page for example, doesn't decide for all.
    const auto tolerated = std::max<size_t>(1, m_sample.size() / 30);
    const bool isFew = static_cast<size_t>(border.exceptions) <= tolerated;
    const size_t first = isFew ? static_cast<size_t>(border.exceptions) : 0;
    if (first < bodies.size())
        border.body = bodies[first];
    return border;
}

} // namespace Tavrin
