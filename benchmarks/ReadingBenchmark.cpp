// SPDX-License-Identifier: Apache-2.0
// Summaries, previews and look-ups by place, against what the engine takes for its own text and
// its own drawing.
#include <QUrl>

#include <atomic>
#include <chrono>
#include <cmath>
#include <functional>
#include <thread>

#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

#include <support/BareEngine.h>
#include <support/Figures.h>
#include <support/RatioBenchmark.h>
#include <support/Workloads.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

using Entry = PDFSpecification::Entry;
using EntryPtr = std::shared_ptr<Entry>;
using SpecificationPtr = std::shared_ptr<PDFSpecification>;

MapDraft drafted(const QString &path)
{
    return MapDrafter::draft(CachingPDFDocument::open(QUrl::fromLocalFile(path)));
}

/// A specification with the drafted entries, bound to a document that nobody has read yet.
SpecificationPtr bound(const QString &path, const MapDraft &draft)
{
    auto specification = Specification::make<PDFSpecification>();
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    for (const DraftEntry &item : draft.entries) {
        auto entry =
            std::make_shared<Entry>(specification, item.label, item.title, item.type, item.index);
        entry->setInternalLink(
            u"destination:%1,%2,%3"_s.arg(item.page).arg(item.place.x).arg(item.place.y));
        specification->add(entry);
    }
    specification->loadPDFStructure(CachingPDFDocument::open(QUrl::fromLocalFile(path)));
    specification->setPageBounds(draft.pageBounds);
    return specification;
}

std::vector<EntryPtr> entries(const PDFSpecification &specification)
{
    std::vector<EntryPtr> result;
    for (const auto &entry : specification.entries())
        result.push_back(std::dynamic_pointer_cast<Entry>(entry));
    return result;
}

void readAllSummaries(const QString &path, const MapDraft &draft, int threadCount)
{
    const SpecificationPtr specification = bound(path, draft);
    const std::vector<EntryPtr> all = entries(*specification);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        // In stretches, so that neighbours on one page are read by one thread.
        constexpr std::size_t stretch = 16;
        for (std::size_t from = next.fetch_add(stretch); from < all.size();
             from = next.fetch_add(stretch)) {
            for (std::size_t i = from; i < std::min(from + stretch, all.size()); ++i)
                all[i]->computeDisplay();
        }
    };
    std::vector<std::thread> threads;
    for (int i = 1; i < threadCount; ++i)
        threads.emplace_back(work);
    work();
    for (std::thread &thread : threads)
        thread.join();
}

/// A figure with its region measured; null where the document has none of the number.
struct Figure {
    SpecificationPtr specification;
    EntryPtr entry;
    int page = 0;
    Rect area;
};

Figure figure(const QString &path, const QString &destination, const QString &title)
{
    Figure result;
    result.specification = bound(path, MapDraft());
    result.entry = std::make_shared<Entry>(result.specification, u"f"_s, title,
                                           SpecificationEntryType::Figure, std::vector<int>());
    result.entry->setInternalLink(destination);
    result.specification->add(result.entry);
    result.specification->loadPDFStructure(result.specification->document());
    if (const auto info = result.specification->pageRectInfo(*result.entry))
        std::tie(result.page, result.area) = *info->pageRects.begin();
    return result;
}

void drawBare(const BareEngine &engine, const Figure &figure)
{
    pdf_page *page = pdf_load_page(engine.context, engine.document, figure.page);
    const double height =
        figure.specification->document()->page(figure.page)->bounds(PDFBox::Crop).maxY();
    const Rect &area = figure.area;
    const fz_irect box =
        fz_make_irect(int(area.minX()), int(height - area.maxY()), int(std::ceil(area.maxX())),
                      int(std::ceil(height - area.minY())));
    fz_pixmap *pixmap =
        fz_new_pixmap_with_bbox(engine.context, fz_device_rgb(engine.context), box, nullptr, 0);
    fz_clear_pixmap_with_value(engine.context, pixmap, 255);
    fz_device *device = fz_new_draw_device(engine.context, fz_identity, pixmap);
    pdf_run_page_contents(engine.context, page, device, fz_identity, nullptr);
    fz_close_device(engine.context, device);
    fz_drop_device(engine.context, device);
    fz_drop_pixmap(engine.context, pixmap);
    fz_drop_page(engine.context, &page->super);
}

void registerPreviewFigure(const QString &path)
{
    const auto shown = std::make_shared<Figure>(
        figure(path, u"figure.4.5"_s,
               u"Pixel correspondence with even picture offset and odd picture size"_s));
    const auto engine = std::make_shared<BareEngine>(path);
    constexpr int repeats = 20;
    registerRatio({"a preview / engine's drawing of its area", 1.3,
                   [=] {
                       for (int i = 0; i < repeats; ++i)
                           drawBare(*engine, *shown);
                   },
                   [=] {
                       for (int i = 0; i < repeats; ++i)
                           benchmark::DoNotOptimize(
                               shown->specification->extractImage(*shown->entry));
                   }});
}

/// The first summary that a host asks of a bound document; binding is measured elsewhere.
void registerColdFigure(const QString &path, const MapDraft &draft,
                        const std::function<void()> &floor)
{
    auto fresh = std::make_shared<std::vector<SpecificationPtr>>();
    constexpr int runs = 16;
    for (int i = 0; i < runs; ++i)
        fresh->push_back(bound(path, draft));
    registerRatio({"one summary, cold / engine's text", 0.08, floor,
                   [fresh, used = std::make_shared<std::size_t>(0)] {
                       // Kept, so that taking it down is not measured.
                       const auto all = entries(*fresh->at((*used)++));
                       all[all.size() / 2]->computeDisplay();
                   }});
}

/// Look-ups of three kinds on pages that were read before, against a millisecond each.
void registerLookupFigure(const QString &path, const MapDraft &draft)
{
    const SpecificationPtr specification = bound(path, draft);
    std::vector<HostPDFDestination> places;
    for (int index = 100; index < 150; ++index) {
        const auto page = specification->document()->page(index);
        places.emplace_back(page, Point{200, 400});
        specification->closestEntry(places.back());
    }
    registerRatio({"look-ups by place / a millisecond each", 1,
                   [count = 3 * places.size()] {
                       using Clock = std::chrono::steady_clock;
                       const auto end = Clock::now() + std::chrono::milliseconds(count);
                       while (Clock::now() < end)
                           std::this_thread::yield();
                   },
                   [=] {
                       for (const HostPDFDestination &place : places) {
                           const Rect around{{place.point().x, place.point().y}, {100, 20}};
                           benchmark::DoNotOptimize(specification->closestEntry(place));
                           benchmark::DoNotOptimize(specification->entry(place));
                           benchmark::DoNotOptimize(
                               specification->entry(place.page()->selection(around)));
                       }
                   }});
}

} // namespace

void registerReadingFigures()
{
    const QString manual = corpusDocument(u"cplusplus.pdf"_s);
    if (!manual.isEmpty()) {
        const auto draft = std::make_shared<MapDraft>(drafted(manual));
        const auto floor = [manual] { bareTextPass(manual); };
        registerRatio({"all summaries, one thread / engine's text", 2, floor,
                       [=] { readAllSummaries(manual, *draft, 1); }});
        registerRatio({"all summaries, two threads / engine's text", 1.2, floor,
                       [=] { readAllSummaries(manual, *draft, 2); }});
        registerColdFigure(manual, *draft, floor);
        registerLookupFigure(manual, *draft);
    }
    const QString pictures = corpusDocument(u"theora.pdf"_s);
    if (!pictures.isEmpty())
        registerPreviewFigure(pictures);
}

} // namespace Tavrin::Benchmarks
