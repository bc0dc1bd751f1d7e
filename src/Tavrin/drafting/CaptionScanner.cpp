// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/CaptionScanner.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include <Tavrin/drafting/NumberedSequence.h>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

using Type = SpecificationEntryType;
using Separator = CaptionNumber::Separator;

/// The gap between two lines of one paragraph, as a share of their size; captions keep further
/// from what stands above.
constexpr double captionLeading = 0.65;
constexpr double sameSize = 0.05;
/// The least share of the page's widest line that a line takes which is broken for want of room;
/// half of the body is a column.
constexpr double narrowestWrapped = 0.4;
constexpr std::size_t mostLinesOfCaption = 12;
constexpr qsizetype longestCaption = 600;
/// Lines of a page that read like captions and end in a number make a list.
constexpr int linesOfList = 3;

bool isSameSize(const PrintedLine &a, const PrintedLine &b)
{
    return std::abs(a.size - b.size) <= sameSize * std::max(a.size, b.size);
}

bool overlaps(const PrintedLine &a, const PrintedLine &b)
{
    return a.bounds.minX() < b.bounds.maxX() && b.bounds.minX() < a.bounds.maxX();
}

/// Ends as a line of a list of figures does: with leaders, or a page number behind them.
bool endsLikeList(const QString &text)
{
    static const QRegularExpression leaders(u"(?:\\. ?){4,}\\w{0,6}$|\\x{2026}{2,}"_s);
    return text.contains(leaders);
}

bool endsInNumber(const QString &text)
{
    static const QRegularExpression number(u" \\d{1,4}$"_s);
    return text.contains(number);
}

bool isContinuation(const QString &title)
{
    static const QRegularExpression continued(u"^[(\\[]?(?:cont(?:inued|'d|d|\\.)?|concluded)\\b"_s,
                                              QRegularExpression::CaseInsensitiveOption);
    return title.contains(continued);
}

/// Where a sentence goes on behind the number: "shows", "and 3-5", "(see …".
bool readsOnLikeSentence(const QString &rest)
{
    if (rest.isEmpty())
        return false;
    const QChar first = rest.front();
    return first.isLower() || first == u',' || first == u';' || first == u')';
}

QString styleOf(const CaptionNumber &number, const PrintedLine &line)
{
    return u"%1|%2|%3|%4"_s.arg(number.word)
        .arg(static_cast<int>(number.separator))
        .arg(std::lround(2 * line.size))
        .arg(line.beginsStyled);
}

double widest(const std::vector<PrintedLine> &lines)
{
    double width = 0;
    for (const PrintedLine &line : lines)
        width = std::max(width, line.bounds.size.width);
    return width;
}

double firstWordWidth(const PrintedLine &line)
{
    const qsizetype blank = line.text.indexOf(u' ');
    const qsizetype letters = blank < 0 ? line.text.size() : blank;
    return line.bounds.size.width * double(letters) /
           double(std::max<qsizetype>(1, line.text.size()));
}

} // namespace

CaptionScanner::CaptionScanner(const PrintedPages &pages, const BodyColumn &column)
    : m_pages(pages), m_column(column)
{
}

std::vector<DraftCaption> CaptionScanner::scan(const QSet<int> &skipped)
{
    m_candidates.clear();
    for (int page = 0; page < m_pages.pageCount(); ++page) {
        if (!skipped.contains(page))
            scanPage(page);
    }
    weighStyles();
    std::vector<DraftCaption> captions = select(Type::Figure);
    const auto tables = select(Type::Table);
    captions.insert(captions.end(), tables.begin(), tables.end());
    std::stable_sort(captions.begin(), captions.end(),
                     [](const DraftCaption &a, const DraftCaption &b) {
                         return a.page != b.page ? a.page < b.page : a.corner.y > b.corner.y;
                     });
    return captions;
}

void CaptionScanner::scanPage(int page)
{
    const auto &lines = m_pages.lines(page);
    std::vector<Candidate> found;
    int listed = 0;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (auto one = candidate(page, index)) {
            listed += endsInNumber(lines[index].text);
            found.push_back(*std::move(one));
        }
    }
    if (listed >= linesOfList && listed * 4 >= static_cast<int>(found.size()) * 3)
        return;
    m_candidates.insert(m_candidates.end(), found.begin(), found.end());
}

std::optional<CaptionScanner::Candidate> CaptionScanner::candidate(int page,
                                                                   std::size_t index) const
{
    const auto &lines = m_pages.lines(page);
    const PrintedLine &line = lines[index];
    const auto number = CaptionNumber::parse(line.text);
    if (!number || endsLikeList(line.text) || m_column.isOutside(line, m_pages.size(page)))
        return std::nullopt;
    const QString rest = line.text.sliced(number->length);
    const bool isSeparated = number->separator != Separator::None;
    if ((!isSeparated && readsOnLikeSentence(rest)) || isContinuation(rest) ||
        continuesParagraph(lines, index))
        return std::nullopt;
    Candidate candidate;
    candidate.caption = {
        *number, title(lines, index, number->length), page, {line.bounds.minX(), line.top()}};
    if (candidate.caption.title.isEmpty())
        return std::nullopt;
    candidate.style = styleOf(*number, line);
    candidate.score = number->separator == Separator::Colon ? 3 : (isSeparated ? 2 : 1);
    return candidate;
}

/// The nearest line above that stands over this one.
const PrintedLine *CaptionScanner::lineAbove(const std::vector<PrintedLine> &lines,
                                             std::size_t index) const
{
    const PrintedLine &line = lines[index];
    const PrintedLine *nearest = nullptr;
    for (const PrintedLine &other : lines) {
        if (&other == &line || other.middle() <= line.top() || !overlaps(other, line))
            continue;
        if (!nearest || other.bottom() < nearest->bottom())
            nearest = &other;
    }
    return nearest;
}

/// A line of running text is full but for the last of its paragraph, and the next one begins under
/// it or, where the first is indented, to its left.
bool CaptionScanner::continuesParagraph(const std::vector<PrintedLine> &lines,
                                        std::size_t index) const
{
    const PrintedLine &line = lines[index];
    const PrintedLine *above = lineAbove(lines, index);
    if (!above || !isSameSize(*above, line) ||
        above->bottom() - line.top() > captionLeading * line.size)
        return false;
    const double indent = above->bounds.minX() - line.bounds.minX();
    const bool isUnder = indent > -0.3 * line.size && indent < 6 * line.size;
    const double missing = columnRight(lines, *above) - above->bounds.maxX();
    return isUnder && missing < firstWordWidth(line) + 0.5 * line.size + 2;
}

/// How far the lines reach that begin about where this one does.
double CaptionScanner::columnRight(const std::vector<PrintedLine> &lines, const PrintedLine &line)
{
    double right = line.bounds.maxX();
    for (const PrintedLine &other : lines) {
        if (std::abs(other.bounds.minX() - line.bounds.minX()) < 3 * line.size)
            right = std::max(right, other.bounds.maxX());
    }
    return right;
}

/// Whether the line behind `last` belongs to the caption that begins with `first`: it stands close
/// below, in the same size, and its first word had no place on the line above.
bool CaptionScanner::isWrapped(const std::vector<PrintedLine> &lines, std::size_t first,
                               std::size_t last) const
{
    if (last + 1 >= lines.size() || last + 1 - first >= mostLinesOfCaption)
        return false;
    const PrintedLine &start = lines[first];
    const PrintedLine &line = lines[last];
    const PrintedLine &next = lines[last + 1];
    const double gap = line.bottom() - next.top();
    if (!isSameSize(line, next) || gap > captionLeading * line.size || gap < -line.size ||
        next.top() > line.middle() || CaptionNumber::parse(next.text))
        return false;
    const bool isUnder = std::abs(next.bounds.center().x - start.bounds.center().x) < start.size ||
                         (next.bounds.minX() > start.bounds.minX() - 2 &&
                          next.bounds.minX() < start.bounds.minX() + 12 * start.size);
    double right = 0;
    for (std::size_t index = first; index <= last + 1; ++index)
        right = std::max(right, lines[index].bounds.maxX());
    // What is much narrower than the column was not broken: below stand the cells of a table.
    const bool isLong = line.bounds.size.width > narrowestWrapped * widest(lines);
    return isUnder && isLong && right - line.bounds.maxX() < firstWordWidth(next) + 0.6 * line.size;
}

QString CaptionScanner::title(const std::vector<PrintedLine> &lines, std::size_t first,
                              qsizetype start) const
{
    QString title = lines[first].text.sliced(start).trimmed();
    std::size_t last = first;
    // A number alone on its line has its title below.
    bool goesOn = title.isEmpty()
                      ? first + 1 < lines.size() &&
                            lines[first].bottom() - lines[first + 1].top() < lines[first].size
                      : isWrapped(lines, first, last);
    while (goesOn && title.size() < longestCaption) {
        const QString next = lines[++last].text.trimmed();
        const bool isBroken =
            title.size() > 1 && title.endsWith(u'-') && !next.isEmpty() && next.front().isLower();
        if (isBroken)
            title.chop(1);
        else if (!title.isEmpty())
            title += u' ';
        title += next;
        goesOn = isWrapped(lines, first, last);
    }
    return title.left(longestCaption);
}

/// The style that the most numbers have is that of captions: it outweighs any other.
void CaptionScanner::weighStyles()
{
    for (const Type type : {Type::Figure, Type::Table}) {
        QHash<QString, QSet<QString>> numbers;
        for (const Candidate &candidate : m_candidates) {
            if (candidate.caption.number.type == type)
                numbers[candidate.style].insert(candidate.caption.number.label);
        }
        qsizetype most = 0;
        for (const auto &labels : numbers)
            most = std::max(most, labels.size());
        for (Candidate &candidate : m_candidates) {
            if (candidate.caption.number.type != type)
                continue;
            const qsizetype count = numbers.value(candidate.style).size();
            candidate.score += count == most ? 4 : (count * 4 >= most ? 2 : 0);
        }
    }
}

/// One caption a number, in ascending order. Without a separator, only the common style counts.
std::vector<DraftCaption> CaptionScanner::select(Type type) const
{
    constexpr int leastScore = 4;
    QHash<QString, const Candidate *> best;
    for (const Candidate &candidate : m_candidates) {
        if (candidate.caption.number.type != type || candidate.score < leastScore)
            continue;
        const Candidate *&known = best[candidate.caption.number.number.text()];
        if (!known || candidate.score > known->score)
            known = &candidate;
    }
    std::vector<const Candidate *> chosen;
    for (const Candidate &candidate : m_candidates) {
        if (best.value(candidate.caption.number.number.text()) == &candidate &&
            candidate.caption.number.type == type)
            chosen.push_back(&candidate);
    }
    // Floats of one page may stand in any order, those of several pages ascend.
    std::stable_sort(chosen.begin(), chosen.end(), [](const Candidate *a, const Candidate *b) {
        const DraftCaption &first = a->caption;
        const DraftCaption &second = b->caption;
        return first.page != second.page
                   ? first.page < second.page
                   : first.number.number.ranks() < second.number.number.ranks();
    });
    std::vector<NumberedSequence::Member> members;
    members.reserve(chosen.size());
    for (const Candidate *candidate : chosen)
        members.push_back({candidate->caption.number.number.ranks(), candidate->score});
    std::vector<DraftCaption> captions;
    for (const std::size_t position : NumberedSequence::heaviest(members))
        captions.push_back(chosen[position]->caption);
    return captions;
}

} // namespace Tavrin
