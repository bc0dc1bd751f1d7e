// SPDX-License-Identifier: Apache-2.0
// Clicks and selections as the viewer tells them.
#include <Tavrin/interface/detail/SpecPDFViewer.h>

#include "ViewFixture.h"

namespace
{

struct Listener : public SpecPDFViewerDelegate {
    std::vector<HostPDFDestination> clicks;
    QStringList selections;

    void viewerClicked(SpecPDFViewer &, const HostPDFDestination &place) override
    {
        clicks.push_back(place);
    }
    void viewerSelected(SpecPDFViewer &, const HostPDFSelection &selection) override
    {
        selections << selection.string();
    }
};

class SpecPDFViewerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        viewer.delegate = listener;
        viewer.setDocument(HostPDFDocument::open(twentyPages().build()));
        viewer.view()->resize(700, 600);
        viewer.setAllowsHighlighting(true);
        viewer.view()->show();
        ASSERT_TRUE(waitFor([this] { return view().textOf(0) && view().isFullyDrawn(); }));
    }
    EntryHighlightPDFView &view() { return viewer.pdfView(); }
    QPoint at(Point point)
    {
        return view().convertFromPage(point, *viewer.document()->page(0)).toPoint();
    }
    QPoint quick() { return at({72 + 60, 665}); }
    void click(QPoint point) { QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, point); }
    void doubleClick(QPoint point)
    {
        click(point);
        QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, point);
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, point);
    }
    /// Long enough for a single click not to become a double one, and for a selection to rest.
    static void rest() { QTest::qWait(QApplication::doubleClickInterval() + 150); }

    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
    SpecPDFViewer viewer;
};

} // namespace

TEST_F(SpecPDFViewerTest, TellsASingleClickOnceNoSecondFollows)
{
    click(at({300, 600}));
    EXPECT_TRUE(listener->clicks.empty()) << "a second might follow";
    rest();
    ASSERT_EQ(listener->clicks.size(), 1U);
    EXPECT_EQ(listener->clicks[0].page(), viewer.document()->page(0));
    EXPECT_NEAR(listener->clicks[0].point().x, 300, 1.5);
    EXPECT_NEAR(listener->clicks[0].point().y, 600, 1.5);
    EXPECT_TRUE(listener->selections.isEmpty());
}

TEST_F(SpecPDFViewerTest, TellsTheWordOfADoubleClickAndNoSingleClick)
{
    doubleClick(quick());
    ASSERT_FALSE(listener->selections.isEmpty()) << "at once";
    EXPECT_EQ(listener->selections.front(), u"quick"_s);
    rest();
    EXPECT_TRUE(listener->clicks.empty());
    // The view has selected the word as well, which is told when it rests.
    EXPECT_THAT(listener->selections, ElementsAre(u"quick"_s, u"quick"_s));
}

TEST_F(SpecPDFViewerTest, TellsNothingOfADoubleClickOffAnyWord)
{
    doubleClick(at({400, 200}));
    rest();
    EXPECT_TRUE(listener->clicks.empty());
}

TEST_F(SpecPDFViewerTest, LeavesClicksToLinksAndSelections)
{
    QSignalSpy outside(&view(), &HostPDFView::linkActivated);
    click(at({100, 460}));
    rest();
    EXPECT_EQ(outside.size(), 1) << "the link works";
    EXPECT_TRUE(listener->clicks.empty());

    view().setCurrentSelection(viewer.document()->page(0)->selection(TextRange{0, 4}));
    rest();
    listener->selections.clear();
    doubleClick(at({300, 250}));
    rest();
    EXPECT_TRUE(listener->clicks.empty()) << "a click that ends a selection";
    click(at({300, 250}));
    view().clearSelection();
    rest();
    listener->clicks.clear();
    view().setCurrentSelection(viewer.document()->page(0)->selection(TextRange{0, 4}));
    click(at({300, 250}));
    EXPECT_EQ(view().currentSelection(), std::nullopt);
    rest();
    EXPECT_TRUE(listener->clicks.empty());
}

TEST_F(SpecPDFViewerTest, PutsManySelectionChangesIntoOneEvent)
{
    const auto page = viewer.document()->page(0);
    for (int length = 1; length <= 20; ++length)
        view().setCurrentSelection(page->selection(TextRange{0, length}));
    EXPECT_TRUE(listener->selections.isEmpty());
    rest();
    ASSERT_EQ(listener->selections.size(), 1);
    EXPECT_EQ(listener->selections[0].size(), 20);
    view().clearSelection();
    rest();
    EXPECT_EQ(listener->selections.size(), 1) << "an empty selection raises nothing";
}

TEST_F(SpecPDFViewerTest, GatesClicksAndOutlinesButNotSelectionsAndCoverage)
{
    viewer.setAllowsHighlighting(false);
    EXPECT_FALSE(viewer.highlightGestureRecognizer().isEnabled());
    EXPECT_FALSE(viewer.doubleHighlightGestureRecognizer().isEnabled());
    viewer.highlightPageRects(SpecPDFViewer::PageRects{{0, Rect{{1, 1}, {5, 5}}}});
    EXPECT_EQ(view().pageRects, std::nullopt);
    viewer.setCoverageHighlights(SpecPDFViewer::Coverage{{0, {Rect{{1, 1}, {5, 5}}}}});
    EXPECT_EQ(view().coverageHighlights, viewer.coverageHighlights());
    EXPECT_TRUE(view().coverageHighlights.has_value());
    click(at({300, 600}));
    view().setCurrentSelection(viewer.document()->page(0)->selection(TextRange{0, 4}));
    rest();
    EXPECT_TRUE(listener->clicks.empty());
    EXPECT_THAT(listener->selections, ElementsAre(u"page"_s));
}

TEST(SpecPDFViewer, EndsTheProcessWhenItsViewIsUsedTooEarly)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(SpecPDFViewer().pdfView(), "before it was loaded");
}
