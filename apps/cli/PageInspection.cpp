// SPDX-License-Identifier: Apache-2.0
#include "PageInspection.h"

#include <QJsonArray>

#include <algorithm>
#include <utility>

#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StyledTextEditing.h>

#include "Console.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

QString number(double value)
{
    return QString::number(value, 'f', 1);
}

QString text(const Rect &rect)
{
    return QStringList{number(rect.minX()), number(rect.minY()), number(rect.maxX()),
                       number(rect.maxY())}
        .join(u' ');
}

QString text(const TextFont &font)
{
    return u"%1 %2%3%4"_s.arg(font.family, number(font.pointSize),
                              font.isBold() ? u" bold"_s : QString(),
                              font.isItalic() ? u" italic"_s : QString());
}

QJsonArray json(const Rect &rect)
{
    return {rect.minX(), rect.minY(), rect.size.width, rect.size.height};
}

QJsonArray json(const std::vector<PageInspection::Place> &places)
{
    QJsonArray array;
    for (const auto &place : places) {
        array.append(
            QJsonObject{{u"name"_s, place.name}, {u"x"_s, place.point.x}, {u"y"_s, place.point.y}});
    }
    return array;
}

void print(const QString &heading, const std::vector<PageInspection::Place> &places)
{
    Console::print(Console::strong(u"%1 (%2)"_s.arg(heading).arg(places.size())));
    for (const auto &place : places) {
        Console::print(u"  %1, %2  %3"_s.arg(number(place.point.x), 7)
                           .arg(number(place.point.y), 7)
                           .arg(place.name));
    }
}

/// The index of the page that a link leads to.
std::optional<int> targetPage(const HostPDFAnnotation &annotation)
{
    const bool hasPage = annotation.destination && annotation.destination->page();
    return hasPage ? std::optional(annotation.destination->page()->index()) : std::nullopt;
}

QJsonArray json(const std::vector<HostPDFAnnotation> &annotations)
{
    QJsonArray array;
    for (const HostPDFAnnotation &annotation : annotations) {
        QJsonObject object{{u"type"_s, annotation.type}, {u"bounds"_s, json(annotation.bounds)}};
        if (const auto page = targetPage(annotation))
            object[u"page"_s] = *page;
        if (!annotation.url.isEmpty())
            object[u"url"_s] = annotation.url.toString();
        array.append(object);
    }
    return array;
}

bool isAbove(const PageInspection::Place &a, const PageInspection::Place &b)
{
    if (a.point.y != b.point.y)
        return a.point.y > b.point.y;
    return std::pair(a.point.x, a.name) < std::pair(b.point.x, b.name);
}

} // namespace

PageInspection::PageInspection(const PDFSpecification &document, std::shared_ptr<HostPDFPage> page)
    : m_page(std::move(page)), m_pageCount(document.document()->pageCount())
{
    const auto index = static_cast<std::size_t>(m_page->index());
    if (index < document.pageDictionaries().size())
        m_dictionary = document.pageDictionaries()[index]->debugDescription();
    collectLines();
    collectDestinations(document);
    collectOutline(document);
}

void PageInspection::collectLines()
{
    const StyledText styled = m_page->attributedString().value_or(StyledText());
    for (const TextRange &range : LineFinder::lines(*m_page)) {
        Line line;
        line.range = range;
        line.text = styled.string().mid(range.location, range.length);
        line.bounds = m_page->selection(range).bounds(*m_page);
        line.font = StyledTextEditing::primaryFont(styled, range).value_or(TextFont());
        m_lines.push_back(line);
    }
}

void PageInspection::collectDestinations(const PDFSpecification &document)
{
    const auto &places = document.linkDestinationMapping();
    for (auto it = places.constBegin(); it != places.constEnd(); ++it) {
        if (it->page() == m_page)
            m_destinations.push_back({it.key(), it->point()});
    }
    std::sort(m_destinations.begin(), m_destinations.end(), isAbove);
}

void PageInspection::collectOutline(const PDFSpecification &document)
{
    const auto root = document.document()->outlineRoot();
    if (!root)
        return;
    for (const HostPDFOutline &item : document.recursivelyCollectChildren(*root)) {
        const auto place = document.destination(item);
        if (place && place->page() == m_page)
            m_outline.push_back({item.label().value_or(u"(no label)"_s), place->point()});
    }
}

void PageInspection::collectEntries(const PDFSpecification &document)
{
    m_leftMargin = document.leftMargin();
    m_readingArea = document.readingArea(*m_page);
    // An entry can begin pages before; of those only the last section reaches so far.
    const int index = m_page->index();
    const auto &pages = document.sortedDestinations();
    bool isComplete = false;
    for (int page = index; page >= 0 && !isComplete; --page) {
        const auto &entries = pages[static_cast<std::size_t>(page)];
        for (auto it = entries.rbegin(); it != entries.rend(); ++it) {
            const auto info = document.pageRectInfo(**it);
            const auto rect = info ? info->pageRects.find(index) : std::map<int, Rect>::iterator();
            const bool isTextual = Tavrin::isTextual((*it)->type());
            if (info && rect != info->pageRects.end())
                m_regions.push_back({(*it)->label(), rect->second, isTextual});
            isComplete |= page < index && isTextual;
        }
    }
    std::reverse(m_regions.begin(), m_regions.end());
    markLines(document);
}

void PageInspection::markLines(const PDFSpecification &document)
{
    const auto filtered = document.filteredPage(m_page->index());
    const StyledText styled = m_page->attributedString().value_or(StyledText());
    for (Line &line : m_lines) {
        line.isHeading =
            document.isTextHeading(styled.attributedSubstring(line.range), line.bounds, *m_page);
        line.isBody = filtered && std::any_of(filtered->mappings.begin(), filtered->mappings.end(),
                                              [&line](const RangeMapping &mapping) {
                                                  return mapping.page == line.range;
                                              });
    }
}

void PageInspection::printEntries() const
{
    Console::print(
        Console::strong(u"entries (%1): left, bottom, right, top"_s.arg(m_regions.size())));
    for (const Region &region : m_regions)
        Console::print(u"  %1  %2"_s.arg(text(region.rect), -26).arg(region.label));
    Console::print(
        u"  left margin %1, printed area %2"_s.arg(number(*m_leftMargin), text(*m_readingArea)));
}

void PageInspection::print() const
{
    Console::print(Console::strong(
        u"page %1 of %2, printed \"%3\", index %4 in maps"_s.arg(m_page->index() + 1)
            .arg(m_pageCount)
            .arg(m_page->label())
            .arg(m_page->index())));
    Console::print(u"  media box %1, crop box %2, rotated by %3°"_s
                       .arg(text(m_page->bounds(PDFBox::Media)), text(m_page->bounds(PDFBox::Crop)))
                       .arg(m_page->rotation()));
    Console::print(Console::strong(
        u"lines (%1): order; left, bottom, right, top; font; text"_s.arg(m_lines.size())));
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const Line &line = m_lines[i];
        const QChar mark = line.isHeading ? u'#' : line.isBody ? u' ' : u'-';
        Console::print(u"%1 %2 %3  %4  %5"_s.arg(i + 1, 4)
                           .arg(m_leftMargin ? mark : u' ')
                           .arg(text(line.bounds), -26)
                           .arg(Console::faint(text(line.font)), line.text));
    }
    if (m_leftMargin)
        printEntries();
    Cli::print(u"named destinations"_s, m_destinations);
    Cli::print(u"outline"_s, m_outline);
    const auto annotations = m_page->annotations();
    Console::print(Console::strong(u"annotations (%1)"_s.arg(annotations.size())));
    for (const HostPDFAnnotation &annotation : annotations) {
        const auto page = targetPage(annotation);
        const QString target = page ? u"to page %1"_s.arg(*page + 1) : annotation.url.toString();
        Console::print(u"  %1  %2  %3"_s.arg(annotation.type, text(annotation.bounds), target));
    }
    Console::print(Console::strong(u"page dictionary"_s));
    Console::print(m_dictionary);
}

QJsonObject PageInspection::json() const
{
    QJsonArray regions;
    for (const Region &region : m_regions) {
        regions.append(QJsonObject{{u"label"_s, region.label},
                                   {u"bounds"_s, Cli::json(region.rect)},
                                   {u"textual"_s, region.isTextual}});
    }
    QJsonArray lines;
    for (const Line &line : m_lines) {
        lines.append(QJsonObject{{u"text"_s, line.text},
                                 {u"location"_s, line.range.location},
                                 {u"length"_s, line.range.length},
                                 {u"bounds"_s, Cli::json(line.bounds)},
                                 {u"family"_s, line.font.family},
                                 {u"pointSize"_s, line.font.pointSize},
                                 {u"bold"_s, line.font.isBold()},
                                 {u"italic"_s, line.font.isItalic()}});
    }
    return {{u"page"_s, m_page->index()},
            {u"pageLabel"_s, m_page->label()},
            {u"mediaBox"_s, Cli::json(m_page->bounds(PDFBox::Media))},
            {u"cropBox"_s, Cli::json(m_page->bounds(PDFBox::Crop))},
            {u"rotation"_s, m_page->rotation()},
            {u"lines"_s, lines},
            {u"entries"_s, regions},
            {u"destinations"_s, Cli::json(m_destinations)},
            {u"outline"_s, Cli::json(m_outline)},
            {u"annotations"_s, Cli::json(m_page->annotations())}};
}

} // namespace Tavrin::Cli
