// SPDX-License-Identifier: Apache-2.0
// The detail view: which entry is current, what is outlined, and who is told.
#include <QSplitter>

#include <support/Corpus.h>
#include <support/FinishTasks.h>

#include <Tavrin/interface/detail/CustomDividerSplitView.h>
#include <Tavrin/manager/SpecificationManager.h>

#include "DetailFixture.h"
#include "LinkOpener.h"

namespace
{

class SpecPDFViewControllerTest : public DetailFixture
{
protected:
    void showSelectable(const EntryPtr &entry = nullptr)
    {
        controller->setAllowsEntrySelection(true);
        if (entry)
            controller->setEntry(entry);
        else
            controller->setSpecification(specification);
        show();
    }
    std::vector<int> outlinedPages() const
    {
        std::vector<int> result;
        for (const auto &[page, rect] : view().pageRects.value_or(SpecPDFViewer::PageRects()))
            result.push_back(page);
        return result;
    }
    HostPDFSelection word(int pageIndex, Point point) const
    {
        return *specification->document()->page(pageIndex)->selectionForWord(point);
    }
};

TEST_F(SpecPDFViewControllerTest, LoadingHandsTheSpecificationToAllParts)
{
    controller->setEntry(terms);
    EXPECT_EQ(controller->specification(), specification);
    EXPECT_FALSE(controller->viewer());
    EXPECT_FALSE(controller->sourceViewControllers());
    show();
    ASSERT_TRUE(controller->sourceViewControllers());
    EXPECT_THAT(*controller->sourceViewControllers(), ElementsAre(list));
    EXPECT_EQ(list->entry(), terms);
    EXPECT_EQ(list->specification(), specification);
    EXPECT_EQ(list->delegate(), controller);
    EXPECT_EQ(controller->title(), u"A Specification"_s);
    EXPECT_EQ(view().document(), specification->document());
    EXPECT_TRUE(isAtTop(terms));
    EXPECT_FALSE(view().pageRects);
    EXPECT_THAT(listener->labels, IsEmpty());
    EXPECT_EQ(detail().splitView().sizes().first(), 270);
}

TEST_F(SpecPDFViewControllerTest, ATitleThatIsEmptyHasAStandIn)
{
    specification->setTitle({});
    controller->setSpecification(specification);
    controller->view();
    EXPECT_EQ(controller->title(), u"Specification"_s);
}

TEST_F(SpecPDFViewControllerTest, OfASpecificationNothingIsCurrentOrOutlined)
{
    controller->setShouldHighlightOnLoad(true);
    showSelectable();
    EXPECT_FALSE(controller->entry());
    EXPECT_FALSE(view().pageRects);
    EXPECT_THAT(listener->labels, IsEmpty());
}

TEST_F(SpecPDFViewControllerTest, AnEntrySelectedBeforeLoadingIsOutlinedThen)
{
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(red);
    EXPECT_TRUE(controller->shouldHighlightOnLoad());
    EXPECT_THAT(listener->labels, IsEmpty());
    show();
    EXPECT_FALSE(controller->shouldHighlightOnLoad());
    // Its pages are read meanwhile.
    EXPECT_TRUE(QTest::qWaitFor([this] { return view().pageRects.has_value(); }));
    EXPECT_THAT(outlinedPages(), ElementsAre(2));
    EXPECT_THAT(listener->labels, ElementsAre(u"Figure 1"_s));
}

TEST_F(SpecPDFViewControllerTest, AnEntryThatIsReplacedBeforeItIsReadIsNotOutlined)
{
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(red);
    controller->view();
    controller->setEntry(scope);
    show();
    finishTasks(backgroundPool());
    QCoreApplication::processEvents();
    EXPECT_FALSE(view().pageRects);
    EXPECT_THAT(listener->labels, IsEmpty());
}

TEST_F(SpecPDFViewControllerTest, AnEntryThatIsReadBeforeTheViewIsLoadedIsOutlinedAtOnce)
{
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(red);
    finishTasks(backgroundPool());
    QCoreApplication::processEvents();
    controller->view();
    EXPECT_THAT(outlinedPages(), ElementsAre(2));
    EXPECT_THAT(listener->labels, ElementsAre(u"Figure 1"_s));
}

TEST_F(SpecPDFViewControllerTest, SelectingAnEntryMarksItAndTellsTheListsAlone)
{
    showSelectable();
    controller->selectEntry(red);
    EXPECT_EQ(controller->entry(), red);
    EXPECT_EQ(list->entry(), red);
    EXPECT_THAT(outlinedPages(), ElementsAre(2));
    settle();
    EXPECT_TRUE(isAtTop(red));
    EXPECT_THAT(listener->labels, IsEmpty());
    // One without a place leaves no outline of another one.
    controller->selectEntry(nowhere);
    EXPECT_THAT(outlinedPages(), IsEmpty());
    EXPECT_THAT(notice(), testing::Property(&QString::toStdString, testing::HasSubstr("Nowhere")));
    controller->selectEntry(scope);
    EXPECT_EQ(notice(), QString());
    controller->selectEntry(nullptr);
    EXPECT_FALSE(list->entry());
}

TEST_F(SpecPDFViewControllerTest, SelectingIsRefusedWhereItIsSwitchedOff)
{
    controller->setEntry(scope);
    show();
    LogCapture log("tavrin.interface");
    controller->selectEntry(red);
    EXPECT_EQ(controller->entry(), scope);
    EXPECT_EQ(list->entry(), scope);
    EXPECT_FALSE(controller->shouldHighlightOnLoad());
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Tried to select an entry in a PDF detail view when entry selection "
                            "is disabled - set allowsEntrySelection to true"_s));
}

TEST_F(SpecPDFViewControllerTest, AnEntryDoesNotOutliveItsSpecification)
{
    controller->setEntry(scope);
    controller->setSpecification(specification);
    EXPECT_EQ(controller->entry(), scope);
    const auto other = Specification::make<PDFSpecification>();
    controller->setSpecification(other);
    EXPECT_FALSE(controller->entry());
    EXPECT_EQ(controller->specification(), other);
    // Nor is one of another kind of specification kept.
    const auto plain = Specification::make<Specification>();
    controller->setEntry(std::make_shared<SpecificationEntry>(plain));
    EXPECT_FALSE(controller->entry());
    EXPECT_FALSE(controller->specification());
}

TEST_F(SpecPDFViewControllerTest, AClickIsToldOnceASelectionTwice)
{
    showSelectable();
    controller->viewerClicked(*controller->viewer(), at(1, 100, 560));
    EXPECT_THAT(listener->labels, ElementsAre(u"2"_s));
    EXPECT_THAT(outlinedPages(), ElementsAre(1, 2));
    listener->labels.clear();
    controller->viewerSelected(*controller->viewer(), word(2, {230, 283}));
    EXPECT_THAT(listener->labels, ElementsAre(u"Figure 1"_s, u"Figure 1"_s));
    EXPECT_THAT(outlinedPages(), ElementsAre(2));
    // Before all entries there is nothing to click.
    listener->labels.clear();
    controller->viewerClicked(*controller->viewer(), at(0, 100, 700));
    EXPECT_THAT(listener->labels, IsEmpty());
    EXPECT_THAT(outlinedPages(), ElementsAre(2));
}

TEST_F(SpecPDFViewControllerTest, WithChoosingOffClicksAreMuteAndSelectionsToldOnce)
{
    controller->setSpecification(specification);
    show();
    controller->viewerClicked(*controller->viewer(), at(1, 100, 560));
    EXPECT_THAT(listener->labels, IsEmpty());
    controller->viewerSelected(*controller->viewer(), word(2, {230, 283}));
    EXPECT_THAT(listener->labels, ElementsAre(u"Figure 1"_s));
    EXPECT_THAT(outlinedPages(), IsEmpty());
    EXPECT_FALSE(controller->viewer()->allowsHighlighting());
    controller->setAllowsEntrySelection(true);
    EXPECT_TRUE(controller->viewer()->allowsHighlighting());
}

TEST_F(SpecPDFViewControllerTest, AChoiceInAListLeadsThereAndOutlinesTheEntryAtThePlace)
{
    showSelectable();
    controller->sourceListChose(*end->destination());
    settle();
    EXPECT_EQ(view().currentPage(), 3);
    EXPECT_THAT(listener->labels, ElementsAre(u"3"_s));
    controller->sourceListChose(at(2, 0, 500));
    settle();
    EXPECT_EQ(view().currentPage(), 2);
    EXPECT_THAT(listener->labels, ElementsAre(u"3"_s));
}

TEST_F(SpecPDFViewControllerTest, ListsHearOfThePlaceWhereOneReads)
{
    controller->setEntry(terms);
    show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !list->places.empty(); }));
    QTest::qWait(200);
    // Below the top of the entry that one has gone to, not above.
    EXPECT_EQ(list->places.back().page()->index(), 1);
    EXPECT_LE(list->places.back().point().y, 620);
    list->places.clear();
    for (int page = 0; page < 4; ++page)
        view().goToPage(page);
    QTest::qWait(400);
    // Throttled, and the last word is where one has come to rest.
    EXPECT_LE(list->places.size(), 2U);
    ASSERT_FALSE(list->places.empty());
    EXPECT_EQ(list->places.back().page()->index(), 3);
}

TEST_F(SpecPDFViewControllerTest, TheLandingPlaceLightsUpForAMoment)
{
    controller->setSpecification(specification);
    show();
    const auto page = specification->document()->page(1);
    const Rect lineAtPlace = LandingFlash::landingArea(*page, *page->text(), {72, 620});
    EXPECT_TRUE(lineAtPlace.contains({80, 604}));
    EXPECT_LT(lineAtPlace.size.height, 30);
    controller->setEntry(terms);
    settle();
    const QImage lit = view().viewport()->grab().toImage();
    ASSERT_TRUE(QTest::qWaitFor([&] { return view().viewport()->grab().toImage() != lit; }, 3'000));
    QTest::qWait(1'600);
    const QImage faded = view().viewport()->grab().toImage();
    const QPoint beside =
        view().convertFromPage({lineAtPlace.minX() + 1, lineAtPlace.center().y}, *page).toPoint();
    EXPECT_NE(lit.pixel(beside), faded.pixel(beside));
    EXPECT_EQ(faded.pixelColor(beside), QColor(Qt::white));
}

TEST_F(SpecPDFViewControllerTest, TheNumberOfChildrenIsChecked)
{
    LogCapture log("tavrin.interface");
    const auto lonely = std::make_shared<SpecPDFViewController>();
    lonely->addChildViewController(list);
    lonely->setEntry(scope);
    lonely->view()->show();
    EXPECT_FALSE(lonely->viewer());
    EXPECT_FALSE(lonely->sidebar());
    EXPECT_EQ(lonely->title(), u"A Specification"_s);
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Wrong number of child view controllers of "
                            "Tavrin::SpecPDFViewController: [Tavrin::ViewController]"_s));
}

TEST_F(SpecPDFViewControllerTest, AfterItsWindowHasGoneAllOperationsAreHarmless)
{
    showSelectable(scope);
    delete controller->view();
    controller->setEntry(terms);
    controller->selectEntry(red);
    controller->viewerClicked(*controller->viewer(), at(1, 100, 560));
    controller->sourceListChose(*end->destination());
    controller->setSpecification(nullptr);
    controller->highlightReferenceCoverage();
    EXPECT_FALSE(controller->isViewLoaded());
}

TEST_F(SpecPDFViewControllerTest, LinksOutOfTheDocumentOpenOnlyWhereTheyAreSafe)
{
    const LinkOpener opener({u"https"_s, u"file"_s});
    controller->setSpecification(specification);
    show();
    Q_EMIT view().linkActivated(QUrl(u"https://example.org/a"_s));
    EXPECT_THAT(opener.opened, ElementsAre(u"https://example.org/a"_s));
    EXPECT_EQ(notice(), QString());
    Q_EMIT view().linkActivated(QUrl(u"file:///etc/passwd"_s));
    EXPECT_EQ(opener.opened.size(), 1);
    EXPECT_TRUE(notice().contains(u"file:///etc/passwd"_s));
}

TEST_F(SpecPDFViewControllerTest, F6SwitchesBetweenSidebarAndDocument)
{
    controller->setSpecification(specification);
    show();
    controller->view()->activateWindow();
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_F6);
    EXPECT_TRUE(list->view()->hasFocus());
    QTest::keyClick(list->view(), Qt::Key_F6);
    EXPECT_TRUE(view().hasFocus());
    // A hidden sidebar comes back.
    detail().showSidebar(false);
    QTest::keyClick(&view(), Qt::Key_F6);
    EXPECT_TRUE(detail().isSidebarShown());
    EXPECT_TRUE(list->view()->hasFocus());
}

/// A real document.
TEST(SpecPDFViewControllerCorpusTest, OpeningAtAnEntryShowsItsHighlight)
{
    SpecificationManager manager;
    const auto specification = bindCorpusSample(manager, u"slepc"_s);
    if (!specification)
        GTEST_SKIP() << noCorpus;
    const auto entry = specification->entry(u"2.3"_s);
    ASSERT_TRUE(entry);
    const auto controller = SpecPDFViewController::make(SpecPDFViewController::EntryPtr());
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(entry);
    controller->view()->resize(1000, 800);
    controller->view()->show();
    auto &view = controller->viewer()->pdfView();
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.isFullyDrawn() && view.pageRects; }, 20'000));
    EXPECT_EQ(controller->title(), specification->title());
    const auto shown = std::dynamic_pointer_cast<PDFSpecification::Entry>(entry);
    const auto info = specification->pageRectInfo(*shown);
    ASSERT_TRUE(info && view.pageRects);
    EXPECT_EQ(*view.pageRects, info->pageRects);
    const int page = shown->destination()->page()->index();
    EXPECT_THAT(view.visiblePages(), testing::Contains(page));
    // The outline is on the screen: a pixel of its left edge has its colour.
    const Rect rect = view.pageRects->at(page);
    const QPointF edge =
        view.convertFromPage({rect.minX(), rect.maxY() - 12}, *shown->destination()->page());
    const QColor outline = view.palette().color(QPalette::Active, QPalette::Highlight);
    const QColor pixel = view.viewport()->grab().toImage().pixelColor(edge.toPoint());
    EXPECT_NEAR(pixel.red(), outline.red(), 60);
    EXPECT_NEAR(pixel.blue(), outline.blue(), 60);
}

} // namespace
