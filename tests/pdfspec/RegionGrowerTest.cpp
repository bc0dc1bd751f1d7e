// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/pdfspec/RegionGrower.h>

namespace
{

using Kind = CaptionSurroundings::Kind;
using Side = CaptionSurroundings::Side;

/// A page of 600 by 800 with a caption in its middle.
class RegionGrowing : public testing::Test
{
protected:
    RegionGrowing()
    {
        page.preferred = Side::Above;
        page.box = {{0, 0}, {600, 800}};
        page.caption = {{200, 400}, {200, 12}};
        line(400, 200, 200);
    }

    void line(double y, double x, double width, Kind kind = Kind::Free)
    {
        page.lines.push_back({{{x, y}, {width, 12}}, kind});
    }
    void drawing(double x, double y, double width, double height)
    {
        page.drawings.push_back({{x, y}, {width, height}});
    }
    /// Without the margin for ink around it.
    Rect area() const { return RegionGrower(page).grow().area.insetBy(1.5, 1.5); }

    CaptionSurroundings page;
};

Rect corners(double x0, double y0, double x1, double y1)
{
    return Rect::fromCorners({x0, y0}, {x1, y1});
}

} // namespace

TEST_F(RegionGrowing, TakesTheDrawingAboveWithItsLabels)
{
    drawing(150, 430, 300, 200);
    line(632, 250, 60);
    line(500, 455, 60);
    line(660, 100, 400, Kind::Body);
    line(380, 100, 400, Kind::Body);
    EXPECT_EQ(area(), corners(150, 400, 515, 644)) << "the text above stands too far for a label";
}

TEST_F(RegionGrowing, EndsAtBodyAndAtHeadingsButNotInDrawings)
{
    drawing(150, 430, 300, 200);
    line(500, 150, 80, Kind::Body);
    line(636, 100, 60, Kind::Barrier);
    line(650, 100, 60);
    EXPECT_EQ(area(), corners(150, 400, 450, 630));
    page.drawings.clear();
    page.lines.resize(1);
    line(380, 220, 100);
    line(364, 100, 400, Kind::Body);
    line(348, 220, 100);
    EXPECT_EQ(area(), corners(200, 380, 400, 412));
}

TEST_F(RegionGrowing, TakesATableFromRuleToRule)
{
    page.preferred = Side::Nearer;
    drawing(100, 390, 400, 0.5);
    line(370, 100, 50, Kind::Body);
    line(370, 300, 90);
    line(330, 100, 50, Kind::Body);
    drawing(100, 310, 400, 0.5);
    line(280, 100, 400, Kind::Body);
    drawing(100, 200, 400, 0.5);
    EXPECT_EQ(area(), corners(100, 310, 500, 412)) << "a table below the next paragraph is another";
}

TEST_F(RegionGrowing, PrefersWhatIsNearerForTablesAndAboveForFigures)
{
    line(435, 200, 100);
    line(384, 200, 100);
    EXPECT_EQ(area().maxY(), 447);
    EXPECT_EQ(area().minY(), 400);
    page.preferred = Side::Nearer;
    EXPECT_EQ(area(), corners(200, 384, 400, 412));
    page.lines[1].bounds.origin.y = 414;
    EXPECT_EQ(area(), corners(200, 400, 400, 426));
    EXPECT_EQ(RegionGrower(page).onlySide(), std::nullopt);
    page.preferred = Side::Below;
    EXPECT_EQ(area(), corners(200, 384, 400, 412));
    page.lines.pop_back();
    EXPECT_EQ(area(), corners(200, 400, 400, 426)) << "what is there counts before what is usual";
    EXPECT_EQ(RegionGrower(page).onlySide(), Side::Above);
}

TEST_F(RegionGrowing, TakesTheBlankThatHidesADrawingNobodyTells)
{
    line(600, 100, 400, Kind::Body);
    line(380, 100, 400, Kind::Body);
    EXPECT_EQ(area(), corners(200, 400, 400, 600));
    page.lines[1].bounds.origin.y = 430;
    EXPECT_EQ(area(), page.caption) << "a common gap hides nothing";
}

TEST_F(RegionGrowing, IgnoresBackgroundsAndWhatIsOutside)
{
    drawing(0, 0, 600, 800);
    drawing(150, 820, 100, 50);
    line(440, 100, 400, Kind::Body);
    line(380, 100, 400, Kind::Body);
    EXPECT_EQ(area(), page.caption);
    drawing(180, 390, 240, 40);
    EXPECT_EQ(area(), corners(180, 390, 420, 430)) << "a frame around the caption is its own";
}

TEST_F(RegionGrowing, TellsThatTheRegionRunsOffThePage)
{
    page.preferred = Side::Nearer;
    line(380, 200, 100);
    EXPECT_TRUE(RegionGrower(page).grow().isOpenBelow);
    line(300, 100, 400, Kind::Body);
    EXPECT_FALSE(RegionGrower(page).grow().isOpenBelow);
}

TEST_F(RegionGrowing, StaysLinearOnHostilePages)
{
    for (int i = 0; i < 40'000; ++i)
        line(380.0 - i * 0.009, 200, 5);
    EXPECT_LT(area().minY(), 30);
}
