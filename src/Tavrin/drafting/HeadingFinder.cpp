// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/HeadingFinder.h>

#include <Tavrin/drafting/TextKey.h>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// Enough for every line of three pages for each heading of the largest manuals.
constexpr qint64 mostComparisons = 40'000'000;
constexpr int mostLinesOfHeading = 12;
/// A whole title in body style, right where it should be, passes; a line of text that merely
/// begins with it does not.
constexpr double lowestScore = 60;

QString lineAt(const std::vector<PrintedLine> &lines, int line)
{
    return lines[static_cast<size_t>(line)].text;
}

/// A dash alone on a piece of a line has a key of its own, and none within a title.
QString withoutMarks(const QString &key)
{
    return !key.isEmpty() && (key.front().isLetterOrNumber() || key.front().isSurrogate())
               ? key
               : QString();
}

bool hasUnreadable(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) {
        return character == QChar::ReplacementCharacter ||
               character.category() == QChar::Other_PrivateUse;
    });
}

} // namespace

HeadingFinder::HeadingFinder(const PrintedPages &pages, const BodyColumn &column)
    : m_pages(pages), m_column(column), m_comparisonsLeft(mostComparisons)
{
}

HeadingFinder::Wanted HeadingFinder::wantedFrom(const DraftItem &item) const
{
    Wanted wanted{item.page, item.hint, {TextKey::fold(item.title)}, item.number, item.depth + 1};
    if (const QString label = TextKey::fold(item.label); label != wanted.keys.front())
        wanted.keys.append(label);
    wanted.keys.removeAll(QString());
    return wanted;
}

bool HeadingFinder::find(DraftItem &item)
{
    if (item.page < 0)
        return false;
    const Wanted wanted = wantedFrom(item);
    std::optional<Match> best;
    for (const int page : {item.page, pageAfter(item.page), item.page - 1})
        matchPage(wanted, page, best);
    if (!best || best->score < lowestScore)
        return false;
    take(item, *best);
    return true;
}

bool HeadingFinder::findLater(DraftItem &item, int lastPage)
{
    const Wanted wanted = wantedFrom(item);
    for (int page = item.page + 1; page <= lastPage && m_comparisonsLeft > 0; ++page) {
        std::optional<Match> best;
        Wanted here = wanted;
        here.page = page;
        here.hint.reset();
        matchPage(here, page, best);
        // So far from the place that it takes a heading that can be nothing else.
        if (best && best->isWhole && isProminent(*best)) {
            take(item, *best);
            return true;
        }
    }
    return false;
}

int HeadingFinder::pageAfter(int page) const
{
    int next = page + 1;
    while (next < page + 3 && m_pages.lines(next).empty())
        ++next;
    return next;
}

bool HeadingFinder::isProminent(const Match &match) const
{
    const PrintedLine &line = m_pages.lines(match.page)[static_cast<size_t>(match.titleLine)];
    return line.beginsStyled || line.largestSize > 1.05 * m_pages.bodySize();
}

const std::vector<HeadingFinder::LineFacts> &HeadingFinder::facts(int page) const
{
    const auto known = m_facts.constFind(page);
    if (known != m_facts.constEnd())
        return *known;
    std::vector<LineFacts> facts;
    for (const PrintedLine &line : m_pages.lines(page)) {
        LineFacts fact{TextKey::fold(line.text), {}, HeadingNumber::parse(line.text)};
        if (fact.number)
            fact.keyBehindNumber = TextKey::fold(line.text.mid(fact.number->length));
        facts.push_back(std::move(fact));
    }
    return *m_facts.insert(page, facts);
}

void HeadingFinder::matchPage(const Wanted &wanted, int page, std::optional<Match> &best) const
{
    const auto &lines = m_pages.lines(page);
    const Size size = m_pages.size(page);
    const auto consider = [&](std::optional<Match> match) {
        if (!match)
            return;
        match->score = score(wanted, *match);
        if (!best || match->score > best->score)
            best = std::move(match);
    };
    const int count = static_cast<int>(lines.size());
    for (int i = 0; i < count && --m_comparisonsLeft > 0; ++i) {
        const auto index = static_cast<size_t>(i);
        const LineFacts &fact = facts(page)[index];
        if (isClaimed(page, i) || m_column.isOutside(lines[index], size))
            continue;
        for (const QString &key : wanted.keys) {
            consider(matchText(key, page, i, fact.key));
            if (!fact.number)
                continue;
            auto match = matchText(key, page, i, fact.keyBehindNumber);
            if (match)
                match->number = fact.number;
            consider(std::move(match));
        }
    }
}

std::optional<HeadingFinder::Match> HeadingFinder::matchText(const QString &key, int page, int line,
                                                             const QString &begin) const
{
    QString read = begin;
    int last = line;
    while (read.size() < key.size() && key.startsWith(read) && last - line < mostLinesOfHeading &&
           continues(page, last))
        read += withoutMarks(facts(page)[static_cast<size_t>(++last)].key);
    if (!read.startsWith(key) || (begin.isEmpty() && last == line))
        return std::nullopt;
    const QString behind = read.mid(key.size());
    // What follows a title without being part of it is the mark of a footnote.
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    const bool isWhole = behind.size() <= 2 && std::all_of(behind.begin(), behind.end(), isDigit);
    Match match{page, line, line, last, 0, isWhole, {}, {}};
    if (behind.isEmpty())
        match.title = key;
    return match;
}

bool HeadingFinder::continues(int page, int line) const
{
    const auto &lines = m_pages.lines(page);
    const auto next = static_cast<size_t>(line) + 1;
    if (next >= lines.size())
        return false;
    const PrintedLine &upper = lines[next - 1];
    const PrintedLine &lower = lines[next];
    if (std::abs(lower.size - upper.size) > 0.2 * upper.size)
        return false;
    // A justified heading can be torn apart into pieces beside each other.
    if (std::abs(lower.middle() - upper.middle()) < 0.3 * upper.size)
        return lower.bounds.minX() > upper.bounds.minX();
    const double gap = upper.bottom() - lower.top();
    return lower.top() < upper.top() && gap < 1.3 * upper.size;
}

double HeadingFinder::score(const Wanted &wanted, const Match &match) const
{
    double score = match.isWhole ? 100 : 35;
    auto number = match.number;
    if (const auto above = number ? std::nullopt : numberAbove(match.page, match.titleLine))
        number = above->number;
    if (number && wanted.number)
        score += number->parts == wanted.number->parts ? 40 : -50;
    else if (number)
        score += number->parts.size() == wanted.level ? 15 : 0;
    if (isProminent(match))
        score += 30;
    return score + placeScore(wanted, match);
}

double HeadingFinder::placeScore(const Wanted &wanted, const Match &match) const
{
    const PrintedLine &line = m_pages.lines(match.page)[static_cast<size_t>(match.titleLine)];
    const double height = m_pages.size(match.page).height;
    if (match.page > wanted.page)
        return -25 - (height - line.top()) / 20;
    if (match.page < wanted.page)
        return -60;
    if (!wanted.hint)
        return -(height - line.top()) / 100;
    const double distance = wanted.hint->y - line.middle();
    // Some producers point at the baseline of the heading.
    return distance < -line.size ? -45 : -std::min(std::abs(distance), height) / 20;
}

std::optional<HeadingFinder::NumberAbove> HeadingFinder::numberAbove(int page, int line) const
{
    const auto &lines = m_pages.lines(page);
    if (line == 0)
        return std::nullopt;
    const PrintedLine &title = lines[static_cast<size_t>(line)];
    const PrintedLine &above = lines[static_cast<size_t>(line) - 1];
    const double gap = above.bottom() - title.top();
    if (gap > 6 * title.largestSize || above.top() < title.top() || isClaimed(page, line - 1))
        return std::nullopt;
    if (auto number = HeadingNumber::parseWhole(above.text)) {
        const bool isLarge = above.largestSize >= title.largestSize;
        if (number->word == HeadingNumber::Word::None && !isLarge)
            return std::nullopt;
        return NumberAbove{*number, number->isSpelled ? line : line - 1};
    }
    const auto number = HeadingNumber::parseSpelled(above.text);
    if (!number || line < 2)
        return std::nullopt;
    auto spelled = *number;
    spelled.word = HeadingNumber::parseWord(lineAt(lines, line - 2));
    if (spelled.word == HeadingNumber::Word::None)
        return std::nullopt;
    // A number spelled out is an ornament far above: the heading begins with its title.
    return NumberAbove{spelled, line};
}

QString HeadingFinder::titleOf(const Match &match) const
{
    const auto &lines = m_pages.lines(match.page);
    QString title = lineAt(lines, match.titleLine).mid(match.number ? match.number->length : 0);
    for (int i = match.titleLine + 1; i <= match.lastLine; ++i) {
        if (title.endsWith(QLatin1Char('-')))
            return {};
        title += QLatin1Char(' ') + lineAt(lines, i);
    }
    return hasUnreadable(title) ? QString() : title.trimmed();
}

void HeadingFinder::take(DraftItem &item, const Match &found)
{
    Match match = found;
    // The title as it stands on the page is the one that is found there again.
    const QString title = match.title.isEmpty() ? QString() : titleOf(match);
    if (!title.isEmpty())
        item.title = title;
    if (!match.number) {
        if (const auto above = numberAbove(match.page, match.titleLine)) {
            match.number = above->number;
            match.firstLine = above->firstLine;
        }
    }
    if (match.number) {
        item.number = match.number;
        item.source = DraftItem::Source::Print;
    }
    const PrintedLine &line = m_pages.lines(match.page)[static_cast<size_t>(match.firstLine)];
    item.isFound = true;
    item.page = match.page;
    item.corner = {line.bounds.minX(), line.top()};
    item.firstLine = match.firstLine;
    for (int i = match.firstLine; i <= match.lastLine; ++i)
        m_claimed.insert({match.page, i});
}

} // namespace Tavrin
