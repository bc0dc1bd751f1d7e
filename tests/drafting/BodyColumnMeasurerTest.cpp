// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/drafting/BodyColumnMeasurer.h>

#include "PrintedSketch.h"

namespace
{

using Pages = std::vector<std::vector<PrintedLine>>;

Pages bodies(int count)
{
    Pages pages;
    for (int page = 0; page < count; ++page)
        pages.push_back(body(page));
    return pages;
}

BodyColumn measured(const Pages &pages)
{
    const PrintedPages printed(pages, letter);
    return BodyColumnMeasurer(printed).measure();
}

} // namespace

TEST(BodyColumn, LeavesOutHeadsAndPageNumbers)
{
    Pages pages = bodies(40);
    for (int page = 0; page < 40; ++page) {
        pages[size_t(page)].push_back(line(72, 730, u"A Standard, Release 4"_s));
        pages[size_t(page)].push_back(line(300, 50, QString::number(page + 1)));
    }
    const BodyColumn column = measured(pages);
    EXPECT_THAT(column.area.maxY(), testing::AllOf(testing::Gt(698), testing::Lt(728)));
    EXPECT_THAT(column.area.minY(), testing::AllOf(testing::Gt(58), testing::Lt(90)));
    EXPECT_EQ(column.area.size.width, letter.width);
    EXPECT_TRUE(column.isOutside(line(72, 730, u"Head"_s), letter));
    EXPECT_FALSE(column.isOutside(line(72, 690, u"Text"_s), letter));
    EXPECT_FALSE(column.isOutside(line(72, 730, u"Wide table"_s), {792, 612}));
}

TEST(BodyColumn, SeesHeadsThatAlternateAndChangeWithTheChapter)
{
    Pages pages = bodies(120);
    for (int page = 0; page < 120; ++page) {
        auto &lines = pages[size_t(page)];
        const QString chapter = u"Chapter %1. Of Things"_s.arg(page / 12 + 1);
        const QString section = u"%1.%2. Some Things"_s.arg(page / 12 + 1).arg(page % 12 / 3);
        // A chapter begins without a head, with its number at the foot.
        if (page % 12 == 0) {
            lines.push_back(line(300, 50, QString::number(page + 1)));
        } else if (page % 2 == 0) {
            lines.push_back(line(72, 730, section));
            lines.push_back(line(500, 730, QString::number(page + 1)));
        } else {
            lines.push_back(line(107, 730, QString::number(page + 1)));
            lines.push_back(line(400, 730, chapter));
        }
    }
    const BodyColumn column = measured(pages);
    EXPECT_THAT(column.area.maxY(), testing::AllOf(testing::Gt(698), testing::Lt(728)));
    EXPECT_THAT(column.area.minY(), testing::AllOf(testing::Gt(58), testing::Lt(90)));
}

TEST(BodyColumn, KeepsTablesThatBeginEveryPage)
{
    Pages pages;
    for (int page = 0; page < 40; ++page) {
        std::vector<PrintedLine> lines{line(72, 730, u"%1 Register map"_s.arg(page + 1))};
        lines.push_back(line(72, 690, u"Name"_s));
        lines.push_back(line(172, 690, u"Size"_s));
        const auto rest = body(page, 670);
        lines.insert(lines.end(), rest.begin(), rest.end());
        pages.push_back(lines);
    }
    const BodyColumn column = measured(pages);
    EXPECT_LT(column.area.maxY(), 728);
    EXPECT_FALSE(column.isOutside(line(72, 680, u"Text"_s), letter));
}

TEST(BodyColumn, IsTheWholePageWhereNothingRepeats)
{
    const PrintedPages printed(bodies(30), letter);
    BodyColumnMeasurer measurer(printed);
    EXPECT_EQ(measurer.measure().area, (Rect{{0, 0}, letter}));
    EXPECT_EQ(measurer.remarks().size(), 2);
}

TEST(BodyColumn, IsAbsentInADocumentWithoutText)
{
    const PrintedPages printed(Pages(3), letter);
    BodyColumnMeasurer measurer(printed);
    EXPECT_FALSE(measurer.measure().pageBounds);
    EXPECT_EQ(measurer.remarks().size(), 1);
}
