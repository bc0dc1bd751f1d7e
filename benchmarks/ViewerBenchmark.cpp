// SPDX-License-Identifier: Apache-2.0
// Opening a document at a place in its middle, from the call to the painted page with its mark,
// against what the engine alone takes to open, load and draw; and how long the main thread is
// kept from its events while one scrolls, jumps and zooms.
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <string_view>
#include <vector>

#include <Tavrin/interface/detail/SpecPDFViewer.h>

#include <support/BareEngine.h>
#include <support/RatioBenchmark.h>
#include <support/StallMeter.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int middlePage = 575;
constexpr QSize windowSize(900, 1100);

/// Lets events run until the view has drawn what can be seen, and painted it.
void untilDrawn(HostPDFView &view)
{
    if (!view.isFullyDrawn()) {
        QEventLoop loop;
        QObject::connect(&view, &HostPDFView::fullyDrawn, &loop, &QEventLoop::quit);
        loop.exec();
    }
    view.viewport()->repaint();
}

/// From the call to the painted page; closing is not counted.
double openAtEntry(const QString &path)
{
    QElapsedTimer timer;
    timer.start();
    SpecPDFViewer viewer;
    viewer.setAllowsHighlighting(true);
    viewer.view()->resize(windowSize);
    viewer.view()->show();
    const auto document = HostPDFDocument::open(QUrl::fromLocalFile(path));
    viewer.setDocument(document);
    viewer.pdfView().goTo(HostPDFDestination(document->page(middlePage), {0, 700}));
    viewer.highlightPageRects(SpecPDFViewer::PageRects{{middlePage, Rect{{60, 500}, {480, 200}}}});
    while (!viewer.pdfView().isDrawn(middlePage))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    viewer.pdfView().viewport()->repaint();
    return milliseconds(timer);
}

/// The page that the view shows, drawn once at the size at which it shows it.
double drawBare(const QString &path)
{
    QElapsedTimer timer;
    timer.start();
    const BareEngine engine(path);
    fz_context *context = engine.context;
    pdf_page *page = pdf_load_page(context, engine.document, middlePage);
    const fz_rect bounds = pdf_bound_page(context, page);
    const float scale = (static_cast<float>(windowSize.width()) - 40) / (bounds.x1 - bounds.x0);
    fz_pixmap *pixmap = fz_new_pixmap_from_page(context, &page->super, fz_scale(scale, scale),
                                                fz_device_bgr(context), 1);
    fz_drop_pixmap(context, pixmap);
    const double taken = milliseconds(timer);
    fz_drop_page(context, &page->super);
    return taken;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Whether the ratio is within its limit.
bool measureOpening(const QString &path)
{
    constexpr double limit = 1.5;
    std::vector<double> floors;
    std::vector<double> measures;
    std::vector<double> ratios;
    for (int round = -1; round < 15; ++round) {
        const double floor = drawBare(path);
        const double measured = openAtEntry(path);
        // The first round pays for what is loaded once.
        if (round < 0)
            continue;
        floors.push_back(floor);
        measures.push_back(measured);
        ratios.push_back(measured / floor);
    }
    const bool isWithin = median(ratios) <= limit;
    std::printf("open at an entry, painted / engine's open, load and drawing: "
                "%.1f ms / %.1f ms, ratio %.2f, limit %.2f%s\n",
                median(measures), median(floors), median(ratios), limit, isWithin ? "" : "  OVER");
    return isWithin;
}

void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// What a reader does: scrolls through 200 pages, jumps about, and zooms.
void measureStalls(const QString &path)
{
    std::printf("event loop at the 99th percentile:\n");
    HostPDFView view;
    view.resize(windowSize);
    view.setDocument(HostPDFDocument::open(QUrl::fromLocalFile(path)));
    view.show();
    untilDrawn(view);
    qsizetype mostBytes = 0;
    {
        StallMeter meter;
        const int pageHeight = static_cast<int>(792 * view.scaleFactor());
        for (int step = 0; step < 200 * 6; ++step) {
            QScrollBar *bar = view.verticalScrollBar();
            bar->setValue(bar->value() + pageHeight / 6);
            pause(8);
            mostBytes = std::max(mostBytes, view.usedTileBytes());
        }
        meter.report("scrolling through 200 pages");
    }
    {
        StallMeter meter;
        for (int jump = 0; jump < 100; ++jump) {
            view.goToPage((jump * 379) % 1100);
            pause(30);
            mostBytes = std::max(mostBytes, view.usedTileBytes());
        }
        meter.report("100 jumps");
    }
    {
        StallMeter meter;
        for (int step = 0; step < 60; ++step) {
            view.setScaleFactor(view.scaleFactor() * (step % 20 < 10 ? 1.15 : 1 / 1.15));
            pause(20);
            mostBytes = std::max(mostBytes, view.usedTileBytes());
        }
        meter.report("60 steps of zoom");
    }
    std::printf("tiles %.1f MB at most, of %.1f MB\n", double(mostBytes) / 1e6,
                double(HostPDFView::tileBytes) / 1e6);
}

} // namespace

} // namespace Tavrin::Benchmarks

int main(int argc, char **argv)
{
    using namespace Tavrin::Benchmarks;
    using namespace Qt::StringLiterals;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const bool checks = std::any_of(argv, argv + argc, [](const char *argument) {
        return std::string_view(argument) == "--check";
    });
    const QString path = corpusDocument(u"cplusplus.pdf"_s);
    if (path.isEmpty())
        return 0;
    const bool isWithin = measureOpening(path);
    measureStalls(path);
    return checks && !isWithin ? 1 : 0;
}
