// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/HeadingScanner.h>

#include <Tavrin/drafting/NumberedSequence.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

using Word = HeadingNumber::Word;

constexpr int mostLinesOfOneHeading = 4;
constexpr qsizetype longestHeading = 300;
constexpr int knownWeight = 1000;
/// Larger than the body by this counts as a heading's size.
constexpr double leastHeadingSize = 1.06;
/// The gap between two lines of one title, as a share of their size.
constexpr double headingLeading = 0.8;

bool isBefore(const DraftItem &a, const DraftItem &b)
{
    return a.page != b.page ? a.page < b.page : a.corner.y > b.corner.y;
}

bool looksLikeTitle(const QString &text)
{
    static const QRegularExpression listed(u"(?:\\.\\h*){4,}|\\h\\.\\h\\.|\\h\\d{1,4}$"_s);
    if (text.isEmpty() || text.size() > longestHeading || text.endsWith(QLatin1Char(';')))
        return false;
    const auto isLetter = [](QChar character) { return character.isLetter(); };
    return std::any_of(text.begin(), text.end(), isLetter) && !text.contains(u" . . "_s) &&
           !text.contains(u"....."_s);
}

} // namespace

HeadingScanner::HeadingScanner(const PrintedPages &pages, const BodyColumn &column,
                               const HeadingFinder &finder)
    : m_pages(pages), m_column(column), m_finder(finder)
{
}

std::vector<DraftItem> HeadingScanner::merge(const std::vector<DraftItem> &known,
                                             const QSet<int> &skipped)
{
    addKnown(known);
    for (int page = 0; page < m_pages.pageCount(); ++page) {
        if (!skipped.contains(page))
            scanPage(page);
    }
    std::stable_sort(
        m_candidates.begin(), m_candidates.end(),
        [](const Candidate &a, const Candidate &b) { return isBefore(a.item, b.item); });
    select();
    dropOrphans();
    return inserted(known);
}

void HeadingScanner::addKnown(const std::vector<DraftItem> &known)
{
    for (size_t i = 0; i < known.size(); ++i) {
        const DraftItem &item = known[i];
        if (!item.isFound || !item.number || item.number->word == Word::Part)
            continue;
        const auto &line = m_pages.lines(item.page)[static_cast<size_t>(item.firstLine)];
        Candidate candidate{item, {}, static_cast<int>(i), item.number->ranks()};
        candidate.style = {candidate.ranks.size(), static_cast<int>(2 * line.size), line.isBold};
        m_hasKnownChapters = m_hasKnownChapters || candidate.ranks.size() == 1;
        m_candidates.push_back(std::move(candidate));
    }
}

void HeadingScanner::scanPage(int page)
{
    const auto &lines = m_pages.lines(page);
    const Size size = m_pages.size(page);
    for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
        if (m_finder.isClaimed(page, i) || m_column.isOutside(lines[static_cast<size_t>(i)], size))
            continue;
        if (auto candidate = candidateAt(page, i))
            m_candidates.push_back(std::move(*candidate));
    }
}

bool HeadingScanner::isHeadingStyle(const PrintedLine &line, const HeadingNumber &number) const
{
    const bool isLarger = line.largestSize > leastHeadingSize * m_pages.bodySize();
    // Items of lists are numbered too, and often bold.
    if (number.parts.size() == 1 && number.word == Word::None)
        return isLarger;
    return isLarger || line.beginsStyled;
}

std::optional<HeadingScanner::Candidate> HeadingScanner::candidateAt(int page, int index) const
{
    const auto &lines = m_pages.lines(page);
    const PrintedLine &line = lines[static_cast<size_t>(index)];
    const auto number = HeadingNumber::parse(line.text);
    if (!number || number->isAmbiguous || !isHeadingStyle(line, *number))
        return std::nullopt;
    const bool isLetter = !number->parts.front().front().isDigit();
    if (number->word == Word::Part || (m_hasKnownChapters && number->parts.size() == 1) ||
        (isLetter && number->parts.size() == 1 && number->word != Word::Appendix))
        return std::nullopt;
    Candidate candidate;
    candidate.item.page = page;
    candidate.item.number = number;
    candidate.item.source = DraftItem::Source::Print;
    candidate.item.depth = static_cast<int>(number->parts.size()) - 1;
    candidate.item.isFound = true;
    candidate.item.firstLine = index;
    candidate.item.corner = {line.bounds.minX(), line.top()};
    candidate.ranks = number->ranks();
    candidate.style = {candidate.ranks.size(), static_cast<int>(2 * line.size), line.isBold};
    readTitle(candidate, page, index, number->length);
    if (!looksLikeTitle(candidate.item.title))
        return std::nullopt;
    return candidate;
}

void HeadingScanner::readTitle(Candidate &candidate, int page, int line, qsizetype begin) const
{
    const auto &lines = m_pages.lines(page);
    const auto textOf = [&lines](int i) { return lines[static_cast<size_t>(i)].text; };
    QString title = textOf(line).mid(begin).trimmed();
    int last = line;
    // "Chapter 3" on a line of its own: the title is the next line.
    if (title.isEmpty() && static_cast<size_t>(line) + 1 < lines.size()) {
        title = textOf(++last);
        if (m_finder.isClaimed(page, last))
            return;
    }
    while (last - line < mostLinesOfOneHeading && goesOn(page, last))
        title += QLatin1Char(' ') + textOf(++last);
    candidate.item.title = title;
    candidate.item.label = candidate.item.number->text() + QLatin1Char(' ') + title;
}

bool HeadingScanner::goesOn(int page, int line) const
{
    if (!m_finder.continues(page, line) || m_finder.isClaimed(page, line + 1))
        return false;
    const auto &lines = m_pages.lines(page);
    const PrintedLine &upper = lines[static_cast<size_t>(line)];
    const PrintedLine &lower = lines[static_cast<size_t>(line) + 1];
    if (lower.isBold != upper.isBold || lower.beginsStyled != upper.beginsStyled ||
        std::abs(lower.size - upper.size) > 0.3 || HeadingNumber::parse(lower.text))
        return false;
    if (upper.bottom() - lower.top() > headingLeading * upper.size)
        return false;
    // A title is broken where its next word would not fit, or goes on below its own beginning.
    const auto further = [](const PrintedLine &a, const PrintedLine &b) {
        return a.bounds.maxX() < b.bounds.maxX();
    };
    const double right = std::max_element(lines.begin(), lines.end(), further)->bounds.maxX();
    const auto wordLength = static_cast<double>(lower.text.indexOf(QLatin1Char(' ')));
    const double word = wordLength < 0 ? lower.bounds.size.width
                                       : lower.bounds.size.width * wordLength /
                                             static_cast<double>(lower.text.size());
    const bool isIndented = lower.bounds.minX() > upper.bounds.minX() + upper.size;
    return isIndented || upper.bounds.maxX() + word + 0.2 * upper.size > right;
}

void HeadingScanner::select()
{
    m_taken.assign(m_candidates.size(), false);
    // Where the known chapters begin to count anew, a new sequence begins.
    size_t begin = 0;
    std::vector<int> lastChapter;
    for (size_t i = 0; i < m_candidates.size(); ++i) {
        const Candidate &candidate = m_candidates[i];
        if (candidate.known < 0 || candidate.ranks.size() != 1)
            continue;
        if (!lastChapter.empty() && candidate.ranks <= lastChapter) {
            selectBetween(begin, i);
            begin = i;
        }
        lastChapter = candidate.ranks;
    }
    selectBetween(begin, m_candidates.size());
}

void HeadingScanner::selectBetween(size_t begin, size_t end)
{
    std::map<Style, int> counts;
    std::map<size_t, int> most;
    for (size_t i = begin; i < end; ++i) {
        const Candidate &candidate = m_candidates[i];
        const int count = counts[candidate.style] += candidate.known >= 0 ? 10 : 1;
        int &top = most[candidate.ranks.size()];
        top = std::max(top, count);
    }
    std::vector<NumberedSequence::Member> members;
    for (size_t i = begin; i < end; ++i) {
        const Candidate &candidate = m_candidates[i];
        const int share = 10 * counts[candidate.style] / most[candidate.ranks.size()];
        members.push_back({candidate.ranks, candidate.known >= 0 ? knownWeight : 1 + share});
    }
    for (const size_t i : NumberedSequence::heaviest(members))
        m_taken[begin + i] = true;
    for (size_t i = begin; i < end; ++i) {
        if (m_candidates[i].known >= 0)
            m_taken[i] = true;
    }
}

void HeadingScanner::dropOrphans()
{
    std::map<std::vector<int>, std::vector<size_t>> siblings;
    for (size_t i = 0; i < m_candidates.size(); ++i) {
        const auto &ranks = m_candidates[i].ranks;
        if (m_taken[i])
            siblings[{ranks.begin(), ranks.end() - 1}].push_back(i);
    }
    std::map<std::vector<int>, bool> isThere{{{}, true}};
    // Shorter numbers sort before those they begin, so parents are decided first.
    for (const auto &[parent, members] : siblings) {
        int count = 0;
        for (const size_t i : members) {
            const int rank = m_candidates[i].ranks.back();
            const bool isComplete = rank >= HeadingNumber::letterRank || rank <= 2 * count + 1;
            const bool isKept = m_candidates[i].known >= 0 || (isThere[parent] && isComplete);
            m_taken[i] = isKept;
            count += isKept ? 1 : 0;
            isThere[m_candidates[i].ranks] = isKept || isThere[m_candidates[i].ranks];
        }
    }
}

std::vector<DraftItem> HeadingScanner::inserted(const std::vector<DraftItem> &known)
{
    std::vector<DraftItem> result;
    size_t next = 0;
    int shift = 0;
    const auto insertBefore = [&](const DraftItem *item) {
        for (; next < m_candidates.size(); ++next) {
            Candidate &candidate = m_candidates[next];
            if (item && !isBefore(candidate.item, *item))
                return;
            if (!m_taken[next] || candidate.known >= 0)
                continue;
            candidate.item.depth += shift;
            result.push_back(candidate.item);
        }
    };
    for (const DraftItem &item : known) {
        if (item.isFound)
            insertBefore(&item);
        // Below parts, sections stand one level deeper than their number has components.
        if (item.isFound && item.number && item.number->word != Word::Part)
            shift = std::max(0, item.depth + 1 - static_cast<int>(item.number->parts.size()));
        result.push_back(item);
    }
    insertBefore(nullptr);
    return result;
}

} // namespace Tavrin
