// SPDX-License-Identifier: Apache-2.0
// Scrolling, places, zoom, links and looks of the PDF view.
#include <QAccessible>
#include <QLineEdit>
#include <QScrollBar>
#include <QVBoxLayout>

#include <Tavrin/interface/pdfview/InvertedPage.h>
#include <support/TemporaryFiles.h>

#include "ViewFixture.h"

namespace
{

class PDFViewTest : public ViewTest
{
protected:
    int scroll() const { return view.verticalScrollBar()->value(); }
    /// Once a glide has ended.
    int restingScroll()
    {
        int last = -1;
        waitFor([&] {
            return std::exchange(last, scroll()) == scroll() &&
                   (QTest::qWait(200), last == scroll());
        });
        return scroll();
    }
    /// Where the top of a page is in the view.
    double topOf(int index) const { return view.convertFromPage({0, 792}, *page(index)).y(); }
};

} // namespace

TEST_F(PDFViewTest, ShowsPagesAtTheWidthOfTheView)
{
    show(twentyPages());
    EXPECT_EQ(view.currentPage(), 0);
    EXPECT_NEAR(view.convertFromPage({612, 0}, *page(0)).x() -
                    view.convertFromPage({0, 0}, *page(0)).x(),
                view.viewport()->width() - 2 * PageLayout::margin, 1);
    const QImage image = picture();
    const QPoint white = at(0, {300, 400});
    EXPECT_EQ(image.pixelColor(white), QColor(Qt::white));
    bool hasInk = false;
    for (int x = at(0, {72, 700}).x(); x < at(0, {200, 700}).x(); ++x)
        hasInk = hasInk || image.pixelColor(x, at(0, {72, 705}).y()).lightness() < 128;
    EXPECT_TRUE(hasInk);
}

TEST_F(PDFViewTest, RemembersWhereToGoUntilThePagesAreKnown)
{
    const auto document = HostPDFDocument::open(twentyPages().build());
    view.resize(700, 600);
    view.setDocument(document);
    view.goTo(HostPDFDestination(document->page(10), {0, 660}));
    EXPECT_EQ(view.currentPage(), -1);
    show(document);
    EXPECT_EQ(view.currentPage(), 10);
    EXPECT_NEAR(view.convertFromPage({0, 660}, *page(10)).y(), 12, 1.5);
    EXPECT_FALSE(view.canGoBack());
}

TEST_F(PDFViewTest, ScrollsByKeys)
{
    show(twentyPages());
    key(Qt::Key_PageDown);
    const int once = restingScroll();
    EXPECT_NEAR(once, view.viewport()->height() * 0.9, 2);
    key(Qt::Key_Space);
    EXPECT_NEAR(restingScroll(), 2 * once, 2);
    key(Qt::Key_Space, Qt::ShiftModifier);
    key(Qt::Key_PageUp);
    EXPECT_EQ(restingScroll(), 0);
    key(Qt::Key_Down);
    EXPECT_EQ(restingScroll(), view.verticalScrollBar()->singleStep());
    key(Qt::Key_End);
    EXPECT_EQ(scroll(), view.verticalScrollBar()->maximum());
    EXPECT_EQ(view.currentPage(), 19);
    key(Qt::Key_Home);
    EXPECT_EQ(scroll(), 0);
}

TEST_F(PDFViewTest, GoesBackAndForwardThroughPlaces)
{
    show(twentyPages());
    QSignalSpy changed(&view, &HostPDFView::historyChanged);
    view.goToPage(10);
    EXPECT_NEAR(topOf(10), 12, 1.5);
    EXPECT_TRUE(view.canGoBack());
    EXPECT_GT(changed.size(), 0);
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(scroll(), 0);
    QTest::mouseClick(view.viewport(), Qt::ForwardButton);
    EXPECT_EQ(view.currentPage(), 10);
    key(Qt::Key_Backspace);
    EXPECT_EQ(scroll(), 0);
    EXPECT_FALSE(view.canGoBack());
}

TEST_F(PDFViewTest, KeepsThePointUnderTheMouseWhenZooming)
{
    show(twentyPages());
    view.goToPage(5);
    const QPointF mouse(333, 222);
    const Point under = view.convertToPage(mouse, *page(5));
    const double before = view.scaleFactor();
    QWheelEvent wheel(mouse, view.viewport()->mapToGlobal(mouse), {}, {0, 240}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.viewport(), &wheel);
    EXPECT_NEAR(view.scaleFactor(), before * 1.44, 0.01);
    EXPECT_EQ(view.zoomMode(), HostPDFView::ZoomMode::Custom);
    const QPointF after = view.convertFromPage(under, *page(5));
    EXPECT_NEAR(after.x(), mouse.x(), 1.5);
    EXPECT_NEAR(after.y(), mouse.y(), 1.5);
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(view.scaleFactor(), before * 1.2, 0.01);
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(view.scaleFactor(), before, 0.001);
    settle();
}

TEST_F(PDFViewTest, FitsAPageAndStaysThereWhenResized)
{
    show(twentyPages());
    view.goToPage(7);
    view.setZoomMode(HostPDFView::ZoomMode::FitPage);
    EXPECT_EQ(view.currentPage(), 7);
    EXPECT_LE(792 * view.scaleFactor(), view.viewport()->height());
    view.resize(500, 900);
    EXPECT_EQ(view.currentPage(), 7);
    EXPECT_LE(612 * view.scaleFactor(), view.viewport()->width());
    settle();
}

TEST_F(PDFViewTest, FollowsLinksInsideAndTellsOfThoseThatLeadOut)
{
    show(twentyPages());
    QSignalSpy outside(&view, &HostPDFView::linkActivated);
    QTest::mouseMove(view.viewport(), at(0, {300, 600}));
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseMove(view.viewport(), at(0, {100, 460}));
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::PointingHandCursor);
    click(at(0, {100, 460}));
    ASSERT_EQ(outside.size(), 1);
    EXPECT_EQ(outside.front().front().toUrl(), QUrl(u"https://example.org/x"_s));
    EXPECT_EQ(view.currentPage(), 0);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    click(at(0, {100, 510}));
    EXPECT_EQ(view.currentPage(), 10);
    view.goBack();
    EXPECT_EQ(view.currentPage(), 0);
}

TEST_F(PDFViewTest, InvertsPagesOnlyWhenAskedTo)
{
    QPalette dark = view.palette();
    dark.setColor(QPalette::Window, QColor(45, 45, 48));
    view.setPalette(dark);
    show(twentyPages());
    const QPoint paper = at(0, {300, 400});
    EXPECT_EQ(picture().pixelColor(paper), QColor(Qt::white));
    EXPECT_LT(picture().pixelColor(2, 200).lightness(), 60) << "the frame follows the palette";
    view.setColorsInverted(true);
    settle();
    EXPECT_EQ(picture().pixel(paper), invertedPaper);
}

TEST_F(PDFViewTest, LetsTabLeaveAndSaysWhatItIs)
{
    QWidget window;
    auto *before = new QLineEdit(&window);
    auto *inside = new HostPDFView(&window);
    auto *after = new QLineEdit(&window);
    auto *layout = new QVBoxLayout(&window);
    for (QWidget *widget : {static_cast<QWidget *>(before), static_cast<QWidget *>(inside),
                            static_cast<QWidget *>(after)})
        layout->addWidget(widget);
    inside->setDocument(HostPDFDocument::open(twentyPages().build()));
    window.resize(600, 600);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    inside->setFocus();
    QTest::keyClick(inside, Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
    QTest::keyClick(after, Qt::Key_Backtab);
    EXPECT_TRUE(inside->hasFocus());
    QTest::keyClick(inside, Qt::Key_Backtab);
    EXPECT_TRUE(before->hasFocus());

    ASSERT_TRUE(waitFor([&] { return inside->textOf(0) != nullptr; }));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(inside);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Document);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"Document"_s);
    ASSERT_NE(accessible->textInterface(), nullptr);
    EXPECT_EQ(accessible->textInterface()->text(0, 6), u"page 1"_s);
}

TEST_F(PDFViewTest, LivesOnWhenTheDocumentIsReplacedOrClosedWhileItIsDrawn)
{
    QByteArray squares;
    for (int i = 0; i < 300'000; ++i)
        squares += "0 0 600 700 re f\n";
    PDFBuilder slow;
    slow.addPage().operators(squares);
    view.resize(700, 600);
    view.show();
    for (int round = 0; round < 3; ++round) {
        view.setDocument(HostPDFDocument::open(slow.build()));
        ASSERT_TRUE(waitFor([this] { return view.currentPage() == 0; }));
        view.setDocument(round == 1 ? nullptr : HostPDFDocument::open(twentyPages().build()));
        QTest::qWait(20);
    }
    settle();
    EXPECT_EQ(view.textOf(0)->string().left(6), u"page 1"_s);
    view.setDocument(nullptr);
    EXPECT_EQ(view.currentPage(), -1);
    EXPECT_EQ(view.pageAt({10, 10}, true), nullptr);
    EXPECT_FALSE(picture().isNull());
}

TEST_F(PDFViewTest, ShowsAHugePageWithinItsBytes)
{
    PDFBuilder pdf;
    pdf.addPage({14400, 14400}).text(100, 100, u"corner"_s, {.size = 40});
    pdf.addPage();
    show(pdf);
    view.setScaleFactor(16);
    settle();
    for (int step = 0; step < 40; ++step) {
        view.verticalScrollBar()->setValue(step * 2000);
        view.horizontalScrollBar()->setValue(step * 2000);
        QCoreApplication::processEvents();
    }
    settle();
    EXPECT_LE(view.usedTileBytes(), HostPDFView::tileBytes);
    EXPECT_GT(view.usedTileBytes(), 0);
}

TEST_F(PDFViewTest, SaysSoInPlaceOfAPageThatFails)
{
    PDFBuilder pdf = twentyPages();
    pdf.addPage().operators("/Missing Do\n");
    view.setZoomMode(HostPDFView::ZoomMode::FitPage);
    show(pdf);
    view.goToPage(20);
    settle();
    // In place of the page stands a line of gray letters in its middle.
    const QImage shown = picture();
    int ink = 0;
    for (int x = at(20, {100, 0}).x(); x < at(20, {500, 0}).x(); ++x) {
        for (int y = at(20, {0, 410}).y(); y < at(20, {0, 380}).y(); ++y)
            ink += shown.pixelColor(x, y).lightness() < 160 ? 1 : 0;
    }
    EXPECT_GT(ink, 20);
    click(at(20, {300, 300}));
}

TEST_F(PDFViewTest, LivesOnWhenTheFileIsCutShortOrGone)
{
    const TemporaryFiles files;
    const QUrl url = files.write(u"a.pdf"_s, twentyPages().build());
    show(HostPDFDocument::open(url));
    QFile file(url.toLocalFile());
    ASSERT_TRUE(file.resize(700));
    view.goToPage(15);
    settle();
    EXPECT_EQ(view.currentPage(), 15);
    ASSERT_TRUE(file.remove());
    view.goToPage(3);
    settle();
    EXPECT_FALSE(picture().isNull());
}
