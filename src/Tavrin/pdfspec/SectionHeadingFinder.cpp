// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/SectionHeadingFinder.h>

#include <Tavrin/pdfspec/FlatText.h>
#include <Tavrin/pdfspec/TitleMatcher.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// How far above its place a heading may begin.
constexpr double reach = 40;
/// How many lines a heading may be broken over.
constexpr std::size_t longestHeading = 6;

/// What a print sets above the title of a chapter: a word and its number, in figures or in words.
bool isChapterMark(const QString &line)
{
    static const QRegularExpression mark(
        u"^\\s*(chapter|appendix|part|annex|kapitel|anhang)?\\s*"
        "([0-9]+|[A-Z]|[IVXLC]+|((twenty|thirty|forty|fifty)?[\\s-]?(one|two|three|four|five|six|"
        "seven|eight|nine|ten|eleven|twelve|thirteen|fourteen|fifteen|sixteen|seventeen|eighteen|"
        "nineteen|twenty|thirty|forty|fifty)))?[.:]?\\s*$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return mark.match(line).hasMatch();
}

} // namespace

struct SectionHeadingFinder::Hit {
    std::vector<std::size_t> lines;
    QString flatText;
    bool hasNumber = false;
    double distance = 0;

    bool isBetterThan(const Hit &other) const
    {
        return hasNumber != other.hasNumber ? hasNumber : distance < other.distance;
    }
};

SectionHeadingFinder::SectionHeadingFinder(const PrintReader &print)
    : m_print(print), m_specification(print.specification())
{
}

std::optional<SectionHeading> SectionHeadingFinder::find(const PDFSpecification::Entry &entry) const
{
    const auto &document = m_print.document();
    const auto &place = entry.destination();
    if (!document || !place || !place->page())
        return std::nullopt;
    const int first = place->page()->index();
    for (int index = first; index <= first + 1; ++index) {
        const auto page = document->page(index);
        if (!page)
            continue;
        const auto lines = m_print.pageLines(*page);
        const bool isOnPage = index == first;
        const double top = isOnPage ? page->geometry().toUpright(place->point()).y
                                    : page->geometry().uprightSize().height;
        if (const auto hit = bestHit(entry, *page, *lines, top))
            return heading(*page, *lines, *hit);
    }
    return std::nullopt;
}

std::optional<SectionHeadingFinder::Hit>
SectionHeadingFinder::bestHit(const PDFSpecification::Entry &entry, const HostPDFPage &page,
                              const PageLines &lines, double top) const
{
    std::optional<Hit> best;
    // Running heads repeat the titles of sections.
    const Rect area = page.geometry().toUpright(m_specification.readingArea(page));
    const auto isHeading = m_print.headingLines(page);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double above = lines[i].bounds.maxY() - top;
        if (above > reach || !(*isHeading)[i] || !area.contains(lines[i].bounds.center()))
            continue;
        auto hit = hitAt(entry, lines, i);
        if (!hit)
            continue;
        hit->distance = std::abs(above);
        // Of several lines in front of one and the same title, the last begins the heading.
        const bool isSameTitle =
            best && hit->lines.back() == best->lines.back() && !best->hasNumber;
        if (!best || isSameTitle || hit->isBetterThan(*best))
            best = std::move(hit);
    }
    return best;
}

std::optional<SectionHeadingFinder::Hit>
SectionHeadingFinder::hitAt(const PDFSpecification::Entry &entry, const PageLines &lines,
                            std::size_t first) const
{
    QString flat = FlatText(lines.string(lines[first])).string();
    std::vector<std::size_t> taken{first};
    const TitleMatcher title(entry.title());
    while (!m_specification.textContainsTitle(flat, entry.title()) && !title.isIn(flat)) {
        const Rect &line = lines[taken.back()].bounds;
        const auto next = lines.next(taken.back());
        const bool goesOn = next && taken.size() < longestHeading &&
                            lines[*next].bounds.maxY() >= line.minY() - line.size.height;
        if (!goesOn)
            return std::nullopt;
        taken.push_back(*next);
        flat += u' ' + FlatText(lines.string(lines[*next])).string();
    }
    const QString number = entry.number();
    const bool hasNumber = !number.isEmpty() && flat.startsWith(number) &&
                           !flat.mid(number.size(), 2).contains(QRegularExpression(u"^\\.?\\d"_s));
    return Hit{std::move(taken), flat, hasNumber, 0};
}

SectionHeading SectionHeadingFinder::heading(const HostPDFPage &page, const PageLines &lines,
                                             const Hit &hit) const
{
    SectionHeading heading;
    heading.page = page.index();
    heading.flatText = hit.flatText;
    qsizetype begin = lines[hit.lines.front()].range.location;
    qsizetype end = lines[hit.lines.front()].range.end();
    for (const std::size_t index : hit.lines) {
        begin = std::min(begin, lines[index].range.location);
        end = std::max(end, lines[index].range.end());
    }
    heading.range = {begin, end - begin};
    heading.start = begin;
    for (std::size_t i = hit.lines.front(); i-- > 0;) {
        const PageLine &above = lines[i];
        const bool belongs = isChapterMark(lines.string(above)) &&
                             above.range.end() <= heading.start &&
                             m_specification.isTextHeading(lines.styled(above), above.bounds, page);
        if (!belongs)
            break;
        heading.start = above.range.location;
    }
    return heading;
}

qsizetype SectionHeadingFinder::firstPositionBelow(const HostPDFDestination &place) const
{
    const auto lines = m_print.pageLines(*place.page());
    const double top = place.page()->geometry().toUpright(place.point()).y;
    qsizetype position = lines->text().length();
    for (const PageLine &line : *lines) {
        if (line.bounds.maxY() <= top + 1)
            position = std::min(position, line.range.location);
    }
    return position;
}

} // namespace Tavrin
