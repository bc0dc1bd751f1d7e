// SPDX-License-Identifier: Apache-2.0
// Opening the detail view of a bound specification at an entry in the middle of its manual, from
// the call to the painted page with its outline, against what the engine alone takes to open the
// document, load the page and draw it at that size; what a click on an entry takes; and how long
// the main thread is kept from its events while the places of 500 references are computed.
#include <QApplication>
#include <QEventLoop>
#include <QThreadPool>
#include <QUrl>

#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/BackgroundPool.h>

#include <support/BareEngine.h>
#include <support/Manual.h>
#include <support/RatioBenchmark.h>
#include <support/StallMeter.h>
#include <support/WindowBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize windowSize(1200, 1100);
constexpr int referenceCount = 500;

EntryHighlightPDFView &viewOf(SpecPDFViewController &controller)
{
    return controller.viewer()->pdfView();
}

/// Until the page is drawn and its entry outlined.
void untilDrawn(SpecPDFViewController &controller, int page)
{
    while (!viewOf(controller).isDrawn(page) || !viewOf(controller).pageRects)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    viewOf(controller).viewport()->repaint();
}

std::shared_ptr<SpecPDFViewController> open(const Manual &manual)
{
    auto controller = SpecPDFViewController::make(SpecPDFViewController::EntryPtr());
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(manual.middle());
    controller->view()->resize(windowSize);
    controller->view()->show();
    untilDrawn(*controller, manual.middle()->destination()->page()->index());
    return controller;
}

/// What the engine alone takes to open the document, load the page, and draw it at the size at
/// which the view shows it.
double drawBare(const QString &path, int index)
{
    QElapsedTimer timer;
    timer.start();
    const BareEngine engine(path);
    fz_context *context = engine.context;
    pdf_page *page = pdf_load_page(context, engine.document, index);
    const fz_rect bounds = pdf_bound_page(context, page);
    const auto width = static_cast<float>(windowSize.width() - 270 - 40);
    const float scale = width / (bounds.x1 - bounds.x0);
    fz_pixmap *pixmap = fz_new_pixmap_from_page(context, &page->super, fz_scale(scale, scale),
                                                fz_device_bgr(context), 1);
    fz_drop_pixmap(context, pixmap);
    const double taken = milliseconds(timer);
    fz_drop_page(context, &page->super);
    return taken;
}

/// With a print that has been measured, as it is for the primary specification a moment after it
/// is bound; and of one that nobody has looked at.
enum class Print { Measured, New };

double openingRatio(const QString &path, Print print)
{
    std::vector<double> floors;
    std::vector<double> measures;
    std::vector<double> ratios;
    for (int round = -1; round < 9; ++round) {
        const Manual manual(path);
        if (print == Print::Measured)
            manual.specification->measurePrint();
        const double floor = drawBare(path, manual.middle()->destination()->page()->index());
        QElapsedTimer timer;
        timer.start();
        const auto controller = open(manual);
        const double measured = milliseconds(timer);
        // The first round pays for what is loaded once.
        if (round < 0)
            continue;
        floors.push_back(floor);
        measures.push_back(measured);
        ratios.push_back(measured / floor);
    }
    std::printf(
        "detail view at an entry%s, painted with outline / engine's open, load and drawing: "
        "%.1f ms / %.1f ms, ratio %.2f\n",
        print == Print::New ? " of a document not read before" : "", median(measures),
        median(floors), median(ratios));
    return median(ratios);
}

bool measureOpening(const QString &path)
{
    constexpr double limit = 1.5;
    const bool isWithin = openingRatio(path, Print::Measured) <= limit;
    std::printf("limit %.2f%s\n", limit, isWithin ? "" : "  OVER");
    openingRatio(path, Print::New);
    return isWithin;
}

/// What the main thread does between a click and the outline, on pages not read before.
void measureClicks(const QString &path)
{
    const Manual manual(path);
    const auto controller = open(manual);
    std::vector<double> times;
    for (std::size_t i = 0; i < 200; ++i) {
        const auto &entry = manual.entries[(i * 37 + 11) % manual.entries.size()];
        const auto &place = *entry->destination();
        QElapsedTimer timer;
        timer.start();
        controller->viewerClicked(*controller->viewer(),
                                  {place.page(), {place.point().x + 20, place.point().y - 30}});
        times.push_back(milliseconds(timer));
    }
    std::printf("a click on an entry: median %.1f ms, p99 %.1f, worst %.1f\n", median(times),
                at99(times), *std::max_element(times.begin(), times.end()));
}

bool measureCoverage(const QString &path)
{
    constexpr double limit = 8.0;
    const Manual manual(path);
    const auto controller = open(manual);
    ReferenceCoverage coverage;
    for (int i = 0; i < referenceCount; ++i)
        coverage.push_back(
            {manual.entries[std::size_t(i) * manual.entries.size() / referenceCount]->label(), {}});
    controller->setReferenceCoverage(coverage);
    QElapsedTimer timer;
    timer.start();
    const StallMeter meter;
    controller->highlightReferenceCoverage();
    const double begun = milliseconds(timer);
    int moves = 0;
    double value = 0;
    while (!controller->viewer()->coverageHighlights()) {
        pause(10);
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *sheet = qobject_cast<ProgressSheet *>(window);
            if (sheet && sheet->value() > value) {
                value = sheet->value();
                ++moves;
            }
        }
    }
    const bool isWithin = meter.workAt99() <= limit;
    std::printf("%d references in %.0f ms; begun in %.1f ms; the bar moved %d times, up to %.3f; "
                "%zu pages marked\n",
                referenceCount, milliseconds(timer), begun, moves, value,
                controller->viewer()->coverageHighlights()->size());
    meter.report("event loop meanwhile, p99");
    return isWithin;
}

} // namespace

} // namespace Tavrin::Benchmarks

int main(int argc, char **argv)
{
    using namespace Tavrin::Benchmarks;
    using namespace Qt::StringLiterals;
    return runWindowBenchmark(argc, argv, [] {
        const QString path = corpusDocument(u"cplusplus.pdf"_s);
        if (path.isEmpty())
            return true;
        const bool isOpeningWithin = measureOpening(path);
        measureClicks(path);
        const bool isCoverageWithin = measureCoverage(path);
        return isOpeningWithin && isCoverageWithin;
    });
}
