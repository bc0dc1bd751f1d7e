// SPDX-License-Identifier: Apache-2.0
// Opening the detail view of a bound specification at an entry in the middle of its manual, from
// the call to the painted page with its outline, against what it takes to open the document, load
// the page and draw it at that size; what a click on an entry takes; and how long the main thread
// is kept from its events while the places of 500 references are computed.
#include <QApplication>
#include <QEventLoop>
#include <QSettings>
#include <QTemporaryDir>
#include <QThreadPool>
#include <QUrl>

#include <string_view>

#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/BackgroundPool.h>

#include <support/RatioBenchmark.h>
#include <support/StallMeter.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

using Entry = PDFSpecification::Entry;

constexpr QSize windowSize(1200, 1100);
constexpr int referenceCount = 500;

/// A specification with an entry for each item of the manual's outline, bound.
struct Manual {
    explicit Manual(const QString &path) : specification(Specification::make<PDFSpecification>())
    {
        const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(path));
        specification->setReadingPolicy(PDFReadingPolicy::Common);
        specification->loadPDFStructure(document);
        if (const auto root = document->outlineRoot()) {
            for (const auto &item : specification->recursivelyCollectChildren(*root))
                add(item);
        }
        // Once more, so that the entries find their places.
        specification->loadPDFStructure(document);
    }
    void add(const HostPDFOutline &item)
    {
        const auto place = specification->destination(item);
        if (!place || !place->page())
            return;
        const auto number = entries.size();
        auto entry = std::make_shared<Entry>(
            specification, QString::number(number), item.label().value_or(QString()),
            SpecificationEntryType::Section, std::vector<int>{static_cast<int>(number)});
        entry->setInternalLink(specification->internalLink(*place));
        specification->add(entry);
        entries.push_back(entry);
    }
    const std::shared_ptr<Entry> &middle() const { return entries[entries.size() / 2]; }

    std::shared_ptr<PDFSpecification> specification;
    std::vector<std::shared_ptr<Entry>> entries;
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

EntryHighlightPDFView &viewOf(SpecPDFViewController &controller)
{
    return controller.viewer()->pdfView();
}

void untilDrawn(SpecPDFViewController &controller, int page)
{
    while (!viewOf(controller).isDrawn(page))
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

/// The same page, opened, loaded and drawn at the size at which the view shows it.
double drawBare(const QString &path, int page)
{
    QElapsedTimer timer;
    timer.start();
    const auto document = HostPDFDocument::open(QUrl::fromLocalFile(path));
    const auto shown = document->page(page);
    const Rect box = shown->bounds(PDFBox::Crop);
    const double scale = (windowSize.width() - 270 - 40) / box.size.width;
    const QImage image = shown->draw(box, {.scale = scale});
    return image.isNull() ? 0 : milliseconds(timer);
}

bool measureOpening(const QString &path)
{
    constexpr double limit = 1.5;
    std::vector<double> floors;
    std::vector<double> measures;
    std::vector<double> ratios;
    for (int round = -1; round < 9; ++round) {
        const Manual manual(path);
        const double floor = drawBare(path, manual.middle()->destination()->page()->index());
        QElapsedTimer timer;
        timer.start();
        const auto controller = open(manual);
        const double measured = milliseconds(timer);
        if (!viewOf(*controller).pageRects)
            std::printf("the entry was not outlined\n");
        // The first round pays for what is loaded once.
        if (round < 0)
            continue;
        floors.push_back(floor);
        measures.push_back(measured);
        ratios.push_back(measured / floor);
    }
    const bool isWithin = median(ratios) <= limit;
    std::printf("detail view at an entry, painted / open, load and drawing: "
                "%.1f ms / %.1f ms, ratio %.2f, limit %.2f%s\n",
                median(measures), median(floors), median(ratios), limit, isWithin ? "" : "  OVER");
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"tavrin_detail_benchmark"_s);
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    const bool checks = std::any_of(argv, argv + argc, [](const char *argument) {
        return std::string_view(argument) == "--check";
    });
    const QString path = corpusDocument(u"cplusplus.pdf"_s);
    if (path.isEmpty())
        return 0;
    const bool isOpeningWithin = measureOpening(path);
    measureClicks(path);
    const bool isCoverageWithin = measureCoverage(path);
    return checks && !(isOpeningWithin && isCoverageWithin) ? 1 : 0;
}
