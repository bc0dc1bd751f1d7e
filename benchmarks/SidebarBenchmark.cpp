// SPDX-License-Identifier: Apache-2.0
// What a reader waits for in the sidebars: from a key to the rows of a search over 10,000 entries,
// against a list of the toolkit that filters plain strings; how long summaries that come in keep
// the main thread; and an outline of 10,000 items.
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QTreeView>

#include <algorithm>
#include <cstdio>

#include <Tavrin/interface/sidebars/SpecPDFOutlineViewController.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchViewController.h>
#include <support/PDFBuilder.h>

#include <support/StallMeter.h>
#include <support/WindowBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;
using Testing::Dest;
using Testing::PDFBuilder;

namespace
{

constexpr QSize windowSize(280, 700);
constexpr int entryCount = 10'000;
constexpr int pageCount = 500;
constexpr int chapterCount = 100;
/// How long a summary takes to compute, in milliseconds: as in a document with long sections.
constexpr int summaryTime = 3;

QString titleOf(int i)
{
    static const QStringList words{u"Implicit"_s,   u"conversion"_s, u"Lifetime"_s, u"objects"_s,
                                   u"Overload"_s,   u"resolution"_s, u"Storage"_s,  u"duration"_s,
                                   u"declarator"_s, u"Template"_s,   u"argument"_s};
    const auto word = [](int seed) { return words[seed % words.size()]; };
    return word(i) + u' ' + word(i / 11) + u' ' + word(i / 121 + 3) + u' ' + word(i * 7 + 1);
}

std::shared_ptr<PDFSpecification> withEntries()
{
    using Entry = PDFSpecification::Entry;
    auto specification = Specification::make<PDFSpecification>();
    for (int i = 0; i < entryCount; ++i) {
        auto entry = std::make_shared<Entry>(specification, QString::number(i), titleOf(i),
                                             SpecificationEntryType::Section,
                                             std::vector<int>{i / 400, i / 20 % 20, i % 20});
        entry->setKeywords({u"keyword"_s, titleOf(i * 3).section(u' ', 0, 0)});
        entry->setDisplayBlock([](Entry &shown) {
            QElapsedTimer timer;
            timer.start();
            while (timer.elapsed() < summaryTime) {
            }
            shown.setSummaryText(StyledText(u"The summary of "_s + shown.title() + u'\n' +
                                            shown.title().repeated(200)));
        });
        specification->add(entry);
    }
    return specification;
}

void press(QWidget &field, QChar letter)
{
    const bool erases = letter == u'\b';
    QKeyEvent event(QEvent::KeyPress, erases ? Qt::Key_Backspace : Qt::Key_A, Qt::NoModifier,
                    erases ? QString() : QString(letter));
    QCoreApplication::sendEvent(&field, &event);
}

/// What is typed, at the pace of a fast typist; a backspace erases.
const QString typed = u"resolution overload\b\b\b\b\b\b\b\bstorage\b\b\b\b\b\b\b"_s;
constexpr int typingPace = 60;
constexpr int rounds = 4;

struct Times {
    std::vector<double> all;
    /// What of that the main thread worked.
    std::vector<double> ownWork;
};

/// From each key to the painted rows.
Times typeInSidebar(SpecPDFSearchViewController &controller)
{
    Times times;
    for (int round = 0; round < rounds; ++round) {
        controller.searchField()->clear();
        for (const QChar letter : typed) {
            QEventLoop loop;
            QObject::connect(&controller, &SpecPDFSearchViewController::resultsShown, &loop,
                             &QEventLoop::quit);
            QElapsedTimer timer;
            timer.start();
            const double before = computed();
            press(*controller.searchField(), letter);
            loop.exec();
            controller.searchTableView()->viewport()->repaint();
            times.all.push_back(milliseconds(timer));
            times.ownWork.push_back(computed() - before);
            pause(typingPace - std::min(typingPace, static_cast<int>(times.all.back())));
        }
    }
    return times;
}

/// The same keys with a list of the toolkit, which filters the titles.
std::vector<double> typeInBareList()
{
    QStringList titles;
    for (int i = 0; i < entryCount; ++i)
        titles += titleOf(i);
    QStringListModel model(titles);
    QSortFilterProxyModel filter;
    filter.setSourceModel(&model);
    filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
    QWidget window;
    window.resize(windowSize);
    QLineEdit field(&window);
    QListView list(&window);
    list.setGeometry(0, 30, windowSize.width(), windowSize.height() - 30);
    list.setUniformItemSizes(true);
    list.setModel(&filter);
    window.show();
    QObject::connect(&field, &QLineEdit::textChanged, &filter,
                     &QSortFilterProxyModel::setFilterFixedString);
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        field.clear();
        for (const QChar letter : typed) {
            QElapsedTimer timer;
            timer.start();
            press(field, letter);
            list.viewport()->repaint();
            times.push_back(milliseconds(timer));
            pause(1);
        }
    }
    return times;
}

/// One figure, and whether it is within its limit.
bool tell(const char *what, double value, double limit)
{
    const bool isWithin = value <= limit;
    std::printf("%-52s %7.2f ms, limit %5.1f%s\n", what, value, limit, isWithin ? "" : "  OVER");
    return isWithin;
}

/// All rows come into sight, one screenful after the other, and their descriptions come in.
void scrollThrough(const SpecPDFSearchViewController &controller)
{
    QScrollBar *bar = controller.searchTableView()->verticalScrollBar();
    for (int step = 0; step < 200; ++step) {
        bar->setValue(bar->value() + controller.searchTableView()->height());
        pause(8);
    }
    QElapsedTimer timer;
    timer.start();
    while (controller.isLoadingEntries() && timer.elapsed() < 4000)
        pause(20);
}

bool measureSearch()
{
    const auto controller = std::make_shared<SpecPDFSearchViewController>();
    controller->setSpecification(withEntries());
    controller->view()->resize(windowSize);
    controller->view()->show();
    const std::vector<double> bare = typeInBareList();
    const Times times = typeInSidebar(*controller);
    bool isWithin = tell("key to rows while summaries come in, p99", at99(times.all), 30);
    std::printf("of that the main thread's work, p99 %.2f ms\n", at99(times.ownWork));
    std::printf("key to rows, median / toolkit's plain strings: %.2f ms / %.2f ms, ratio %.2f\n",
                median(times.all), median(bare), median(times.all) / median(bare));
    const StallMeter meter;
    scrollThrough(*controller);
    meter.report("while descriptions come in");
    isWithin &= tell("work of the main thread in one go, p99", meter.workAt99(), 8);
    return isWithin;
}

std::shared_ptr<PDFSpecification> withOutline()
{
    PDFBuilder pdf;
    for (int page = 0; page < pageCount; ++page)
        pdf.addPage();
    std::vector<Testing::OutlineItem> chapters;
    for (int chapter = 0; chapter < chapterCount; ++chapter) {
        Testing::OutlineItem item{.title = titleOf(chapter),
                                  .dest = Dest::xyz(chapter * pageCount / chapterCount, 72, 750)};
        for (int i = 1; i < entryCount / chapterCount; ++i) {
            const int page = (chapter * 100 + i) * pageCount / entryCount;
            item.children.push_back({.title = titleOf(chapter * 100 + i),
                                     .dest = Dest::xyz(page, 72, 750 - i % 20 * 35)});
        }
        chapters.push_back(item);
    }
    pdf.outline(chapters);
    auto specification = Specification::make<PDFSpecification>();
    specification->loadPDFStructure(CachingPDFDocument::open(pdf.build()));
    return specification;
}

bool measureOutline()
{
    const auto specification = withOutline();
    const auto document = specification->document();
    QElapsedTimer timer;
    timer.start();
    document->outlineRoot();
    std::printf("%-52s %7.2f ms\n", "outline of 10,000 items read from the file",
                milliseconds(timer));
    const auto controller = std::make_shared<SpecPDFOutlineViewController>();
    controller->view()->resize(windowSize);
    controller->view()->show();
    timer.start();
    controller->setSpecification(specification);
    controller->outlineView()->viewport()->repaint();
    bool isWithin = tell("outline of 10,000 items shown", milliseconds(timer), 50);
    timer.start();
    controller->outlineView()->expandAll();
    controller->outlineView()->viewport()->repaint();
    std::printf("%-52s %7.2f ms\n", "all of it expanded", milliseconds(timer));
    controller->outlineView()->collapseAll();
    std::vector<double> times;
    for (int step = 0; step < 2000; ++step) {
        const HostPDFDestination place(document->page((step * 7) % pageCount),
                                       {0, 700.0 - step % 600});
        timer.start();
        controller->showsPlace(place);
        times.push_back(milliseconds(timer));
    }
    isWithin &= tell("following a place, p99", at99(times), 1);
    timer.start();
    controller->view()->findChild<QLineEdit *>()->setText(u"over"_s);
    controller->outlineView()->viewport()->repaint();
    isWithin &= tell("filtering the outline", milliseconds(timer), 30);
    return isWithin;
}

} // namespace

} // namespace Tavrin::Benchmarks

int main(int argc, char **argv)
{
    using namespace Tavrin::Benchmarks;
    return runWindowBenchmark(argc, argv, [] {
        const bool isSearchWithin = measureSearch();
        const bool isOutlineWithin = measureOutline();
        return isSearchWithin && isOutlineWithin;
    });
}
