// SPDX-License-Identifier: Apache-2.0
#include "PageSketch.h"

#include <support/Test.h>

namespace
{

QString printed(const QString &text, const PageSketch::Look &look)
{
    PageSketch page;
    page.print(text, {50, 700}, look);
    return page.text().string();
}

} // namespace

TEST(Blanks, standWhereThePrintHasAGap)
{
    const QString text = u"Of that there is no doubt"_s;
    for (const double width : {0.19, 0.25, 0.33, 0.6, 0.85})
        EXPECT_EQ(printed(text, {.blankWidth = width}), text) << width;
    EXPECT_EQ(printed(text, {.blankWidth = 0.1}), u"Ofthatthereisnodoubt"_s);
}

TEST(Blanks, ofTheFileCountOnceAndNotAtTheEnds)
{
    EXPECT_EQ(printed(u"  a   b  "_s, {.blankGlyphs = true}), u"a b"_s);
    EXPECT_EQ(printed(u"narrow blank"_s, {.blankWidth = 0.1, .blankGlyphs = true}),
              u"narrow blank"_s);
    EXPECT_EQ(printed(u"   "_s, {.blankGlyphs = true}), QString());
}

TEST(Blanks, areNoneWhereABlankOfTheFileIsPulledTogether)
{
    PageSketch page;
    const Point end = page.print(u"over"_s, {50, 700});
    page.print(u" "_s, end, {.blankGlyphs = true});
    page.print(u"lap"_s, {end.x - 0.2, end.y});
    EXPECT_EQ(page.lines(), QStringList{u"overlap"_s});
}

TEST(Blanks, areNotTornIntoLetterspacedHeadings)
{
    const QString text = u"SECTION OF THE WHOLE"_s;
    for (const double tracking : {0.1, 0.2, 0.35})
        EXPECT_EQ(printed(text, {.tracking = tracking, .blankWidth = 0.4}), text) << tracking;
    EXPECT_EQ(printed(u"TIGHT SET HEAD"_s, {.tracking = -0.08}), u"TIGHT SET HEAD"_s);
}

TEST(Blanks, keepSingleLettersApart)
{
    EXPECT_EQ(printed(u"a + b = c"_s, {}), u"a + b = c"_s);
    EXPECT_EQ(printed(u"A B"_s, {}), u"A B"_s);
}

TEST(Blanks, areNoneAtKerning)
{
    PageSketch page;
    const Point end = page.print(u"A"_s, {50, 700});
    const Point next = page.print(u"V"_s, {end.x - 1.2, 700});
    page.print(u"ERT"_s, {next.x + 0.8, 700});
    EXPECT_EQ(page.lines(), QStringList{u"AVERT"_s});
}

TEST(Blanks, standForATabBehindANumber)
{
    PageSketch page;
    const Point end = page.print(u"4.10"_s, {50, 700}, {.size = 14});
    page.print(u"Core"_s, {end.x + 15, 700}, {.size = 14});
    EXPECT_EQ(page.lines(), QStringList{u"4.10 Core"_s});
}

TEST(Blanks, ofAListingAreSingleAndItsIndentationIsNone)
{
    PageSketch page;
    const PageSketch::Look listing{.blankWidth = 0.5, .fixedWidth = true};
    page.print(u"int main()    // start"_s, {50, 700}, listing);
    page.print(u"    return x; // done"_s, {50, 688}, listing);
    page.print(u"    exit();   // never"_s, {50, 676}, listing);
    EXPECT_EQ(page.lines(), (QStringList{u"int main() // start"_s, u"return x; // done"_s,
                                         u"exit(); // never"_s}));
}

TEST(Blanks, coverTheGapBetweenTheirNeighbours)
{
    PageSketch page;
    page.print(u"a b"_s, {50, 700});
    EXPECT_EQ(page.text().characterBounds(1), (Rect{{55, 698}, {3, 10}}));
}
