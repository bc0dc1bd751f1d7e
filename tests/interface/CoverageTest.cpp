// SPDX-License-Identifier: Apache-2.0
// Marks of what references cover: how they merge, and how they come onto the pages.
#include <Tavrin/interface/detail/CoverageMarks.h>

#include "DetailFixture.h"
#include "PoolGate.h"

namespace
{

Rect strip(double y, double height = 20, double x = 72, double width = 300)
{
    return {{x, y}, {width, height}};
}

TEST(CoverageMarksTest, PassagesThatFollowCloselyAreOneMark)
{
    CoverageMarks marks;
    marks.add({{0, strip(125)}});
    marks.add({{0, strip(100)}});
    // The lower one reaches up to 130.
    EXPECT_THAT(marks.merged(), ElementsAre(Pair(0, ElementsAre(strip(100, 55)))));

    CoverageMarks apart;
    apart.add({{0, strip(135)}});
    apart.add({{0, strip(100)}});
    EXPECT_THAT(apart.merged(), ElementsAre(Pair(0, ElementsAre(strip(100, 30), strip(135, 30)))));
}

TEST(CoverageMarksTest, PagesAndColumnsDoNotMix)
{
    CoverageMarks marks;
    marks.add({{0, strip(100)}, {1, strip(110)}});
    marks.add({{0, strip(110, 20, 400)}});
    EXPECT_THAT(marks.merged(),
                ElementsAre(Pair(0, ElementsAre(strip(100, 30), strip(110, 30, 400))),
                            Pair(1, ElementsAre(strip(110, 30)))));
    EXPECT_TRUE(CoverageMarks().merged().empty());
}

TEST(CoverageMarksTest, AChainMergesAndOneInsideAnotherAddsNothing)
{
    CoverageMarks marks;
    for (const double y : {160.0, 130.0, 100.0})
        marks.add({{3, strip(y)}});
    marks.add({{3, strip(110, 5)}});
    EXPECT_THAT(marks.merged(), ElementsAre(Pair(3, ElementsAre(strip(100, 90)))));
}

class CoverageTest : public DetailFixture
{
protected:
    CoverageTest()
    {
        controller->setSpecification(specification);
        controller->setShowsReferenceCoverage(true);
    }
    void cover(const QStringList &labels)
    {
        ReferenceCoverage references;
        for (const QString &label : labels)
            references.push_back({label, u"here"_s});
        controller->setReferenceCoverage(references);
    }
    /// Shows the view with the sheet over it, until `gate` opens.
    void showHeldUp()
    {
        gate = std::make_unique<PoolGate>();
        show();
        ASSERT_TRUE(waitForSheet());
    }
    static bool waitForSheet()
    {
        return waitFor([] { return sheet() != nullptr; });
    }

    std::unique_ptr<PoolGate> gate;
};

TEST_F(CoverageTest, EntriesAreMarkedWhenTheViewAppearsUnderASheet)
{
    cover({u"1"_s, u"2"_s, u"9"_s, u"nothing"_s, u"Figure 1"_s});
    LogCapture log("tavrin.interface");
    showHeldUp();
    EXPECT_EQ(sheet()->messageText(), u"Highlighting spec coverage…"_s);
    EXPECT_EQ(sheet()->value(), 0.0);
    // It can't be cancelled.
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_TRUE(sheet());
    gate.reset();
    ASSERT_TRUE(waitForCoverage());
    ASSERT_EQ(coverage()->size(), 2U);
    // The second section ends above the figure of the next page.
    EXPECT_EQ(coverage()->at(1).size(), 2U);
    EXPECT_EQ(coverage()->at(2).size(), 2U);
    EXPECT_EQ(view().coverageHighlights, coverage());
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Couldn't find entry geometry for 9 in Spec"_s,
                            u"Couldn't find entry geometry for nothing in Spec"_s));
}

TEST_F(CoverageTest, EachAppearanceRunsIt)
{
    cover({u"1"_s});
    show();
    ASSERT_TRUE(waitForCoverage());
    EXPECT_THAT(*coverage(), ElementsAre(Pair(1, testing::SizeIs(1))));
    controller->view()->hide();
    cover({u"Figure 1"_s});
    controller->view()->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return coverage()->count(2) == 1; }));
    EXPECT_EQ(coverage()->size(), 1U);
}

TEST_F(CoverageTest, NoReferencesOpenAndCloseTheSheetAndLeaveNoMarks)
{
    cover({});
    showHeldUp();
    gate.reset();
    ASSERT_TRUE(waitForCoverage());
    EXPECT_TRUE(coverage()->empty());
}

TEST_F(CoverageTest, WithoutAWindowItRunsWithoutASheet)
{
    cover({u"1"_s});
    controller->view();
    controller->highlightReferenceCoverage();
    EXPECT_FALSE(sheet());
    ASSERT_TRUE(waitForCoverage());
    EXPECT_EQ(coverage()->size(), 1U);
}

TEST_F(CoverageTest, WithoutReferencesTheSheetStaysAndLetsTheReaderGo)
{
    show();
    ASSERT_TRUE(waitForSheet());
    QTest::qWait(50);
    ASSERT_TRUE(sheet());
    EXPECT_FALSE(sheet()->informativeText().isEmpty());
    EXPECT_FALSE(coverage());
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_FALSE(sheet());
}

TEST_F(CoverageTest, NothingIsDeliveredToAViewThatIsGone)
{
    cover({u"1"_s, u"2"_s});
    showHeldUp();
    const std::weak_ptr<Controller> gone = controller;
    controller.reset();
    EXPECT_TRUE(gone.expired());
    EXPECT_FALSE(sheet());
    gate.reset();
    QTest::qWait(20);
}

TEST_F(CoverageTest, AWindowThatClosesMeanwhileTakesTheSheetAlong)
{
    cover({u"1"_s});
    gate = std::make_unique<PoolGate>();
    auto window = std::make_unique<QWidget>();
    auto *column = new QVBoxLayout(window.get());
    column->addWidget(controller->view());
    window->show();
    ASSERT_TRUE(waitForSheet());
    window.reset();
    EXPECT_FALSE(sheet());
    EXPECT_FALSE(controller->isViewLoaded());
    gate.reset();
    ASSERT_TRUE(waitForCoverage());
}

TEST_F(CoverageTest, AnotherFileMeanwhileMakesTheRunWorthless)
{
    cover({u"1"_s, u"2"_s});
    showHeldUp();
    specification->loadPDFStructure(CachingPDFDocument::open(pdf.build()));
    gate.reset();
    ASSERT_TRUE(QTest::qWaitFor([] { return !sheet(); }));
    EXPECT_FALSE(coverage());
}

TEST_F(CoverageTest, ALaterRunReplacesOneUnderWay)
{
    cover({u"1"_s});
    showHeldUp();
    cover({u"Figure 1"_s});
    controller->highlightReferenceCoverage();
    gate.reset();
    ASSERT_TRUE(waitForCoverage());
    EXPECT_THAT(*coverage(), ElementsAre(Pair(2, testing::SizeIs(1))));
    QTest::qWait(20);
    EXPECT_EQ(coverage()->count(1), 0U);
}

} // namespace
