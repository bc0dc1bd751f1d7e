// SPDX-License-Identifier: Apache-2.0
// How long the main thread is kept from its events while one scrolls, jumps and zooms, and how much
// memory the drawn pages take.
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <vector>

#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <support/RatioBenchmark.h>
#include <support/StallMeter.h>
#include <support/WindowBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize windowSize(900, 1100);
/// In milliseconds: what a reader may notice at 60 pictures a second.
constexpr double longestStall = 16;

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

/// What a reader does: scrolls through 200 pages, jumps about, and zooms. Whether no stall of the
/// main thread's own was too long.
bool measureStalls(const QString &path)
{
    std::printf("event loop at the 99th percentile; own work of %.0f ms at most:\n", longestStall);
    bool isWithin = true;
    const auto report = [&isWithin](const StallMeter &meter, const char *what) {
        meter.report(what);
        isWithin = isWithin && meter.longestWork() <= longestStall;
    };
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
        report(meter, "scrolling through 200 pages");
    }
    {
        StallMeter meter;
        for (int jump = 0; jump < 100; ++jump) {
            view.goToPage((jump * 379) % 1100);
            pause(30);
            mostBytes = std::max(mostBytes, view.usedTileBytes());
        }
        report(meter, "100 jumps");
    }
    {
        StallMeter meter;
        for (int step = 0; step < 60; ++step) {
            view.setScaleFactor(view.scaleFactor() * (step % 20 < 10 ? 1.15 : 1 / 1.15));
            pause(20);
            mostBytes = std::max(mostBytes, view.usedTileBytes());
        }
        report(meter, "60 steps of zoom");
    }
    std::printf("tiles %.1f MB at most, of %.1f MB\n", double(mostBytes) / 1e6,
                double(HostPDFView::tileBytes) / 1e6);
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
        return path.isEmpty() || measureStalls(path);
    });
}
