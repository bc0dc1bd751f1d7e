// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/LayoutBreakMeasurer.h>

#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdf/PageText.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// How far above its place a figure's caption may stand.
constexpr double captionReach = 40;

using Kind = CaptionSurroundings::Kind;

bool beginsListItem(const QString &line)
{
    static const QRegularExpression item(u"^\\s*([•●∙▪◦–—]|\\(?([0-9]+|[a-z])[.)])\\s"_s);
    return item.match(line).hasMatch();
}

bool isIn(const TextRange &line, const SectionHeading &heading)
{
    return line.end() > heading.start && line.location < heading.range.end();
}

} // namespace

struct LayoutBreakMeasurer::PageView {
    std::shared_ptr<HostPDFPage> page;
    std::shared_ptr<const PageLines> known;
    const PageLines &lines;
    /// The printed area, in upright space.
    Rect box;
    double bodyWidth;
    /// By line.
    std::vector<Kind> kinds = {};
    /// Where the tables that leave no doubt stand, once somebody asked.
    std::optional<CaptionSurroundings::Side> tableSide = std::nullopt;

    PageView(const PrintReader &print, std::shared_ptr<HostPDFPage> hostPage)
        : page(std::move(hostPage)),
          known(print.pageLines(*page)),
          lines(*known),
          box(page->geometry().toUpright(print.specification().readingArea(*page))),
          bodyWidth(lines.width())
    {
    }

    /// The height, at most, at which the entry's caption can stand.
    double topFor(const PDFSpecification::Entry &entry) const
    {
        const HostPDFDestination &place = *entry.destination();
        return place.page() == page ? page->geometry().toUpright(place.point()).y + captionReach
                                    : box.maxY();
    }

    std::vector<Rect> drawings() const
    {
        const auto text = page->text();
        return text ? text->drawings() : std::vector<Rect>();
    }

    void add(const Rect &upright, EntryPageInfo &info) const
    {
        const Rect rect = page->geometry().toPage(upright);
        const HostPDFSelection selection = page->selection(rect);
        if (!info.text.isEmpty())
            info.text.append(u"\n"_s);
        info.text.append(selection.attributedString());
        info.selection.addSelection(selection);
        info.pageRects[page->index()] = rect;
    }
};

LayoutBreakMeasurer::LayoutBreakMeasurer(const PrintReader &print)
    : m_print(print), m_specification(print.specification())
{
}

LayoutBreakMeasurer::PageView *LayoutBreakMeasurer::view(int index)
{
    for (const auto &known : m_views) {
        if (known && known->page->index() == index)
            return known.get();
    }
    auto page = m_print.document()->page(index);
    if (!page)
        return nullptr;
    m_views[1] = std::exchange(m_views[0], std::make_shared<PageView>(m_print, std::move(page)));
    m_views[0]->kinds = kinds(*m_views[0]);
    return m_views[0].get();
}

void LayoutBreakMeasurer::measure(int page, const Callback &callback)
{
    const auto &entries = m_specification.sortedDestinations();
    if (page < 0 || page >= static_cast<int>(entries.size()))
        return;
    for (const EntryPtr &entry : entries[static_cast<std::size_t>(page)]) {
        if (isTextual(entry->type()))
            continue;
        if (const auto info = search(*entry, page))
            callback(entry, *info);
    }
}

std::optional<EntryPageInfo> LayoutBreakMeasurer::search(const PDFSpecification::Entry &entry,
                                                         int page)
{
    if (const auto &rects = entry.destinationRects()) {
        EntryPageInfo info;
        for (const auto &[index, rect] : *rects) {
            if (const PageView *known = view(index))
                known->add(known->page->geometry().toUpright(rect), info);
        }
        return info;
    }
    // A float's place can stay behind on the page before the float.
    std::optional<EntryPageInfo> doubtful;
    for (int index = page; index <= page + 1; ++index) {
        PageView *current = view(index);
        if (!current)
            continue;
        const auto caption = CaptionFinder(m_specification, *current->page, current->lines)
                                 .find(entry, current->topFor(entry));
        if (caption && (caption->isCertain || !doubtful)) {
            EntryPageInfo info = region(entry, *current, *caption);
            if (caption->isCertain)
                return info;
            doubtful = std::move(info);
        }
    }
    return doubtful;
}

EntryPageInfo LayoutBreakMeasurer::region(const PDFSpecification::Entry &entry, PageView &view,
                                          const CaptionFinder::Caption &caption)
{
    CaptionSurroundings surroundings = around(entry, view, caption);
    if (surroundings.preferred == CaptionSurroundings::Side::Nearer)
        surroundings.preferred = usualSide(entry, view);
    const RegionGrower::Region grown = RegionGrower(std::move(surroundings)).grow();
    EntryPageInfo info;
    view.add(grown.area, info);
    if (grown.isOpenBelow)
        addNextPage(entry, view, info);
    return info;
}

void LayoutBreakMeasurer::addNextPage(const PDFSpecification::Entry &entry, const PageView &last,
                                      EntryPageInfo &info)
{
    const Rect above = last.page->geometry().toUpright(info.pageRects.at(last.page->index()));
    const PageView *next = view(last.page->index() + 1);
    if (!next || next->lines.isEmpty())
        return;
    CaptionSurroundings around = surroundings(entry, *next);
    // As if the region ended just above the page.
    around.caption = {{above.minX(), next->box.maxY()}, {above.size.width, 0}};
    around.preferred = CaptionSurroundings::Side::Below;
    const auto first =
        std::find_if(around.lines.begin(), around.lines.end(),
                     [&](const auto &line) { return next->box.contains(line.bounds.center()); });
    const bool goesOn =
        first != around.lines.end() && first->kind == Kind::Free &&
        std::any_of(last.lines.begin(), last.lines.end(), [&](const PageLine &line) {
            return above.contains(line.bounds.center()) &&
                   std::abs(line.bounds.minX() - first->bounds.minX()) < 1;
        });
    if (!goesOn)
        return;
    around.caption = first->bounds;
    next->add(RegionGrower(std::move(around)).grow().area, info);
}

CaptionSurroundings::Side LayoutBreakMeasurer::usualSide(const PDFSpecification::Entry &entry,
                                                         PageView &view) const
{
    using Side = CaptionSurroundings::Side;
    if (view.tableSide)
        return *view.tableSide;
    constexpr int enough = 16;
    int balance = 0;
    int asked = 0;
    for (const EntryPtr &other :
         m_specification.sortedDestinations()[static_cast<std::size_t>(view.page->index())]) {
        if (other->type() != entry.type() || other->destinationRects() || ++asked > enough)
            continue;
        const CaptionFinder finder(m_specification, *view.page, view.lines);
        const auto caption = finder.find(*other, view.topFor(*other));
        if (!caption || !caption->isCertain)
            continue;
        const auto side = RegionGrower(around(*other, view, *caption)).onlySide();
        balance += !side ? 0 : *side == Side::Below ? 1 : -1;
    }
    view.tableSide = balance == 0 ? Side::Nearer : balance > 0 ? Side::Below : Side::Above;
    return *view.tableSide;
}

CaptionSurroundings LayoutBreakMeasurer::around(const PDFSpecification::Entry &entry,
                                                const PageView &view,
                                                const CaptionFinder::Caption &caption) const
{
    CaptionSurroundings result = surroundings(entry, view);
    result.caption = caption.bounds;
    for (const std::size_t index : caption.lines)
        result.lines[index].kind = Kind::Free;
    return result;
}

CaptionSurroundings LayoutBreakMeasurer::surroundings(const PDFSpecification::Entry &entry,
                                                      const PageView &view) const
{
    CaptionSurroundings around;
    around.box = view.box;
    around.drawings = view.drawings();
    // Figures stand above their captions. Tables do or don't: what is nearer is theirs.
    if (entry.type() == SpecificationEntryType::Figure)
        around.preferred = CaptionSurroundings::Side::Above;
    for (std::size_t i = 0; i < view.lines.size(); ++i)
        around.lines.push_back({view.lines[i].bounds, view.kinds[i]});
    return around;
}

std::vector<Kind> LayoutBreakMeasurer::kinds(const PageView &view)
{
    const int page = view.page->index();
    // A heading can stand on the page behind its place.
    std::vector<SectionHeading> headings;
    for (int index = std::max(0, page - 1); index <= page; ++index) {
        for (const EntryPtr &entry :
             m_specification.sortedDestinations()[static_cast<std::size_t>(index)]) {
            const auto heading =
                isTextual(entry->type()) ? m_print.sectionHeading(*entry) : std::nullopt;
            if (heading && heading->page == page)
                headings.push_back(*heading);
        }
    }
    std::vector<Kind> kinds;
    for (const PageLine &line : view.lines) {
        const bool isHeading =
            std::any_of(headings.begin(), headings.end(), [&line](const SectionHeading &heading) {
                return isIn(line.range, heading);
            });
        kinds.push_back(isHeading || isCaption(view, line) ? Kind::Barrier : bodyKind(view, line));
    }
    return kinds;
}

Kind LayoutBreakMeasurer::bodyKind(const PageView &view, const PageLine &line)
{
    // Most pages have no figure, and of a section alone the shape need not be known.
    if (!m_body)
        m_body = m_print.bodyShape();
    if (!m_body->isBodyFont(line.font))
        return Kind::Free;
    const Rect start = m_body->movedToMargin(line.start, *view.page, m_print.leftMargin());
    // Lists and quotations stand off the margin and are body all the same.
    const bool isBody = !m_specification.isLinePartOfLayoutBreak(start, *view.page) ||
                        beginsListItem(view.lines.string(line)) ||
                        line.bounds.size.width > 0.5 * view.bodyWidth;
    return isBody ? Kind::Body : Kind::Free;
}

bool LayoutBreakMeasurer::isCaption(const PageView &view, const PageLine &line) const
{
    const QString text = view.lines.string(line);
    const auto begins = [&](const EntryPtr &entry) {
        return !isTextual(entry->type()) && !entry->title().isEmpty() &&
               beginsLikeCaption(text, *entry) &&
               (text.contains(entry->number()) ||
                m_specification.isLineStartOfLayoutBreak(text, line.start, *entry, *view.page));
    };
    const int page = view.page->index();
    const auto &pages = m_specification.sortedDestinations();
    for (int index = std::max(0, page - 1); index <= page; ++index) {
        const auto &entries = pages[static_cast<std::size_t>(index)];
        if (mayBeCaption(text) && std::any_of(entries.begin(), entries.end(), begins))
            return true;
    }
    return false;
}

} // namespace Tavrin
