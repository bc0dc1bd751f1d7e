// SPDX-License-Identifier: Apache-2.0
// What one waits for when a reference is pointed at whose summary has never been computed: from the
// call to the painted frame with the title, against a frame of the toolkit's with the same words;
// and how long the main thread is kept busy until the summary is there.
#include <QApplication>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QThreadPool>

#include <cstdio>

#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/platform/BackgroundPool.h>

#include <support/Manual.h>
#include <support/RatioBenchmark.h>
#include <support/StallMeter.h>
#include <support/WindowBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int popoverCount = 150;
/// In milliseconds, at 60 pictures a second: the frame comes with the next one, and the rows, which
/// are measured and laid out, hold up no more than two.
constexpr double longestFrame = 16;
constexpr double longestStall = 33;

/// Of one popover each, in milliseconds.
struct Times {
    std::vector<double> bare;
    std::vector<double> frame;
    std::vector<double> filled;
    /// The longest turn of the event loop that was the main thread's own work.
    std::vector<double> stall;
};

double showBareFrame(QWidget &window, const SpecificationEntry &entry)
{
    QElapsedTimer timer;
    timer.start();
    QFrame frame(&window);
    frame.setFrameShape(QFrame::StyledPanel);
    auto *rows = new QFormLayout(&frame);
    rows->addRow(u"Section"_s, new QLabel(entry.title()));
    rows->addRow(u"Summary"_s, new QLabel(u"Loading…"_s));
    frame.setGeometry({QPoint(40, 60), frame.sizeHint()});
    frame.show();
    frame.repaint();
    return milliseconds(timer);
}

void showPopover(QPushButton &button, const Manual::EntryPtr &entry, Times &times)
{
    const auto controller = std::make_shared<SpecEntrySummaryViewController>(entry);
    const StallMeter meter;
    QElapsedTimer timer;
    timer.start();
    QPointer<Popover> popover = Popover::show(controller, button.rect(), button);
    popover->repaint();
    times.frame.push_back(milliseconds(timer));
    if (controller->isLoading()) {
        QEventLoop loop;
        QObject::connect(controller.get(), &SpecEntrySummaryViewController::loaded, &loop,
                         &QEventLoop::quit);
        loop.exec();
    }
    popover->repaint();
    times.filled.push_back(milliseconds(timer));
    // What the new rows cause is still to come.
    pause(5);
    times.stall.push_back(meter.longestWork());
    popover->close();
    pause(1);
}

Times measure(const Manual &manual)
{
    QWidget window;
    window.resize(1000, 800);
    QPushButton button(u"4.2"_s, &window);
    button.move(40, 40);
    window.show();
    pause(50);
    Times times;
    for (std::size_t i = 0; i < popoverCount; ++i) {
        const auto &entry = manual.entries[(i * 37 + 11) % manual.entries.size()];
        times.bare.push_back(showBareFrame(window, *entry));
        showPopover(button, entry, times);
    }
    backgroundPool().waitForDone();
    return times;
}

bool report(const Times &times)
{
    const double ratio = median(times.frame) / median(times.bare);
    const bool isWithin = at99(times.frame) <= longestFrame && at99(times.stall) <= longestStall;
    std::printf("popover of a summary that is still to be computed, %d of them\n", popoverCount);
    std::printf("frame with the title / the toolkit's: median %.1f ms / %.1f ms, ratio %.2f; p99 "
                "%.1f, worst %.1f; limit %.0f\n",
                median(times.frame), median(times.bare), ratio, at99(times.frame),
                *std::max_element(times.frame.begin(), times.frame.end()), longestFrame);
    std::printf("filled in: median %.1f ms, p99 %.1f\n", median(times.filled), at99(times.filled));
    std::printf("longest work of the main thread: median %.1f ms, p99 %.1f, worst %.1f; limit "
                "%.0f%s\n",
                median(times.stall), at99(times.stall),
                *std::max_element(times.stall.begin(), times.stall.end()), longestStall,
                isWithin ? "" : "  OVER");
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
        return path.isEmpty() || report(measure(Manual(path)));
    });
}
