// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/CaptionPairing.h>

#include <algorithm>
#include <cmath>

#include <Tavrin/drafting/CaptionNumber.h>
#include <Tavrin/enhance/EntryOrder.h>
#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/platform/CharacterSet.h>
#include <Tavrin/platform/StandardError.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Type = SpecificationEntryType;

/// How far, in points, a region reaches beyond its lines, and how far above its caption a figure
/// is taken to begin.
constexpr double regionMargin = 40;

/// How far a caption's number stands in front of its title, in characters.
constexpr qsizetype longestNumber = 40;

/// Whether the last component of the printed number is the entry's. The first may be a letter that
/// the entry's index counts on from the chapters.
bool endsInNumberOf(const CaptionNumber &caption, const SpecificationEntry &entry)
{
    return entry.index().empty() ||
           caption.number.parts.constLast() == QString::number(entry.index().back());
}

} // namespace

struct CaptionPairing::FlatPage {
    struct Line {
        TextRange range;
        Rect start;
        /// Of the first and of the last character.
        Rect bounds;
    };

    explicit FlatPage(const HostPDFPage &page)
    {
        const QString text = page.string().value_or(QString());
        for (const TextRange &range : LineFinder::lines(page)) {
            dropHyphen(text[range.location]);
            const qsizetype first = string.size();
            for (qsizetype index = range.location; index < range.end(); ++index) {
                const bool blank = CharacterSet::isWhiteSpaceOrNewline(text[index]);
                if (blank && (string.isEmpty() || string.endsWith(u' ')))
                    continue;
                string += blank ? QChar(u' ') : text[index];
                sources.push_back(index);
            }
            addLine(page, first);
            string += u' ';
            sources.push_back(range.end());
        }
    }

    /// Makes a word whole that is broken before this character.
    void dropHyphen(QChar next)
    {
        if (!string.endsWith(u"- "_s) || !next.isLower() || lines.empty())
            return;
        string.chop(2);
        sources.resize(std::size_t(string.size()));
        --lines.back().range.length;
    }

    void addLine(const HostPDFPage &page, qsizetype first)
    {
        if (first == string.size())
            return;
        const Rect start = page.characterBounds(sources[std::size_t(first)]);
        const Rect end = page.characterBounds(sources.back());
        lines.push_back({{first, string.size() - first}, start, start.united(end)});
    }

    const Line *lineAt(qsizetype position) const
    {
        const auto found = std::find_if(lines.begin(), lines.end(), [position](const Line &line) {
            return line.range.contains(position);
        });
        return found == lines.end() ? nullptr : &*found;
    }

    QString string;
    /// The position in the page's text of each character of the flat one.
    std::vector<qsizetype> sources;
    std::vector<Line> lines;
};

namespace
{

/// Behind the title comes nothing but leaders and a page number.
bool endsLikeList(const CaptionPairing::FlatPage &flat, qsizetype end)
{
    const CaptionPairing::FlatPage::Line *line = flat.lineAt(end - 1);
    if (!line || line->range.end() <= end)
        return false;
    const QStringView rest =
        QStringView(flat.string).sliced(end, line->range.end() - end).trimmed();
    const auto isOfList = [](QChar character) {
        return character.isDigit() || character == u'.' || character == u' ' ||
               character == u'\u2026';
    };
    return !rest.isEmpty() && rest.back().isDigit() &&
           std::all_of(rest.begin(), rest.end(), isOfList);
}

} // namespace

CaptionPairing::CaptionPairing(const PDFXMLEnhancer &specification, const HostPDFDocument &document,
                               PDFXMLEnhancer::LabelLinkMapping &mapping)
    : m_specification(specification), m_document(document), m_mapping(mapping)
{
    for (const auto &entry : specification.entries()) {
        if (entry->type() == Type::Chapter)
            m_chapters.push_back(entry);
        else if (!isTextual(entry->type()))
            m_graphical.push_back(entry);
    }
    sortByNumber(m_chapters);
    sortByNumber(m_graphical);
}

void CaptionPairing::pair()
{
    if (m_graphical.empty())
        return;
    for (std::size_t position = 0; position < m_chapters.size(); ++position) {
        const auto &chapter = m_chapters[position];
        const auto first = pageOf(chapter);
        if (!first)
            continue;
        const auto next =
            position + 1 < m_chapters.size() ? pageOf(m_chapters[position + 1]) : std::nullopt;
        std::vector<Entries> entries = {outstanding(Type::Figure, *chapter),
                                        outstanding(Type::Table, *chapter)};
        scanPages(*first, next.value_or(m_document.pageCount() - 1), entries);
        report(entries, *chapter);
    }
    pairWithoutChapters();
}

/// Figures that are numbered through the whole document stand in any chapter.
void CaptionPairing::pairWithoutChapters()
{
    std::vector<Entries> entries(2);
    for (const auto &entry : m_graphical) {
        if (entry->index().size() == 1 && !m_mapping.contains(entry->label()))
            entries[entry->type() == Type::Figure ? 0 : 1].push_back(entry);
    }
    scanPages(0, m_document.pageCount() - 1, entries);
}

std::optional<int> CaptionPairing::pageOf(const Specification::EntryPtr &chapter) const
{
    if (!m_mapping.contains(chapter->label()))
        return std::nullopt;
    const auto place = m_specification.destinationForLink(m_mapping.value(chapter->label()));
    return place && place->page() ? m_document.indexForPage(*place->page()) : std::nullopt;
}

CaptionPairing::Entries CaptionPairing::outstanding(Type type,
                                                    const SpecificationEntry &chapter) const
{
    Entries entries;
    for (const auto &entry : m_graphical) {
        if (entry->type() == type && !entry->index().empty() && !chapter.index().empty() &&
            entry->index().front() == chapter.index().front())
            entries.push_back(entry);
    }
    return entries;
}

void CaptionPairing::scanPages(int first, int last, std::vector<Entries> &outstanding)
{
    for (int index = first; index <= last; ++index) {
        const auto page = m_document.page(index);
        const bool isDone = std::all_of(outstanding.begin(), outstanding.end(),
                                        [](const Entries &entries) { return entries.empty(); });
        if (!page || isDone)
            continue;
        const FlatPage flat(*page);
        for (const Rect &region : regions(*page, flat)) {
            for (Entries &entries : outstanding)
                pairRegion(*page, flat, region, entries);
        }
    }
}

/// Consecutive lines off the margin make one region.
std::vector<Rect> CaptionPairing::regions(const HostPDFPage &page, const FlatPage &flat) const
{
    const Rect area = m_specification.pageBounds().value_or(page.bounds(PDFBox::Media));
    std::vector<Rect> regions;
    Rect region = Rect::null();
    const auto finish = [&] {
        if (!region.isNull()) {
            const Rect grown = region.insetBy(0, -regionMargin).intersection(area);
            if (!grown.isNull())
                regions.push_back(grown);
        }
        region = Rect::null();
    };
    for (const FlatPage::Line &line : flat.lines) {
        if (m_specification.isLinePartOfLayoutBreak(line.start, page))
            region = region.united(line.bounds);
        else
            finish();
    }
    finish();
    return regions;
}

/// The captions of a region, the first of those that are outstanding first.
void CaptionPairing::pairRegion(const HostPDFPage &page, const FlatPage &flat, const Rect &region,
                                Entries &outstanding)
{
    for (auto entry = outstanding.begin(); entry != outstanding.end();) {
        const auto found = caption(flat, region, **entry);
        if (!found) {
            ++entry;
            continue;
        }
        const Rect area = m_specification.pageBounds().value_or(page.bounds(PDFBox::Media));
        const HostPDFDestination place(m_document.page(page.index()),
                                       {area.minX(), found->maxY() + regionMargin});
        m_mapping.insert((*entry)->label(), m_specification.internalLink(place));
        entry = outstanding.erase(entry);
    }
}

/// The place of the caption: kind, numbers and title in one stretch of text within the region, the
/// kind at the beginning of a line if there is such.
std::optional<Rect> CaptionPairing::caption(const FlatPage &flat, const Rect &region,
                                            const SpecificationEntry &entry) const
{
    const QString title = entry.title().simplified();
    if (title.isEmpty())
        return std::nullopt;
    for (qsizetype at = flat.string.indexOf(title); at >= 0;
         at = flat.string.indexOf(title, at + 1)) {
        for (const FlatPage::Line &line : flat.lines) {
            if (line.range.location > at || line.range.location < at - longestNumber)
                continue;
            const QString front = flat.string.sliced(line.range.location, at - line.range.location);
            const auto number = CaptionNumber::parse(front);
            if (!number || number->type != entry.type() || !region.contains(line.bounds.center()))
                continue;
            if (!endsInNumberOf(*number, entry))
                continue;
            if (endsLikeList(flat, at + title.size()))
                continue;
            const FlatPage::Line *titleLine = flat.lineAt(at);
            return titleLine ? line.bounds.united(titleLine->bounds) : line.bounds;
        }
    }
    return std::nullopt;
}

void CaptionPairing::report(const std::vector<Entries> &outstanding,
                            const SpecificationEntry &chapter) const
{
    for (const Entries &entries : outstanding) {
        if (entries.empty())
            continue;
        standardError(u"%1 outstanding entries of type %2 in chapter %3"_s.arg(entries.size())
                          .arg(description(entries.front()->type()))
                          .arg(chapter.index().empty() ? 0 : chapter.index().front()));
    }
}

} // namespace Tavrin
