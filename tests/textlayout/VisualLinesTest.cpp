// SPDX-License-Identifier: Apache-2.0
#include "PageSketch.h"

#include <support/Test.h>

#include <algorithm>
#include <iterator>

namespace
{

const QString bodyLine = u"Running text that goes on to the margin"_s;

/// Lines of body text, each `bodyLine`.
void printColumn(PageSketch &page, double x, double y, int count, double leading = 12)
{
    for (int i = 0; i < count; ++i)
        page.print(bodyLine, {x, y - i * leading});
}

} // namespace

TEST(VisualLines, doNotDependOnTheOrderOfTheContent)
{
    PageSketch page;
    page.print(u"third line"_s, {50, 676});
    page.print(u"first"_s, {50, 700});
    page.print(u"second line"_s, {50, 688});
    page.print(u"line"_s, {78, 700});
    EXPECT_EQ(page.lines(), (QStringList{u"first line"_s, u"second line"_s, u"third line"_s}));

    const QStringList before = page.lines();
    std::reverse(page.glyphs.glyphs.begin(), page.glyphs.glyphs.end());
    EXPECT_EQ(page.lines(), before);
}

TEST(VisualLines, keepExponentsAndIndexesWithTheirBase)
{
    PageSketch page;
    const PageSketch::Look script{.size = 7};
    Point end = page.print(u"where x"_s, {50, 700});
    end = page.print(u"2"_s, {end.x, 704}, script);
    end = page.print(u" and y"_s, {end.x, 700});
    end = page.print(u"i+1"_s, {end.x, 698}, script);
    page.print(u" meet."_s, {end.x, 700});
    page.print(u"Next line"_s, {50, 688});
    EXPECT_EQ(page.lines(), (QStringList{u"where x2 and yi+1 meet."_s, u"Next line"_s}));
}

TEST(VisualLines, keepAnExponentOverAnIndexApart)
{
    PageSketch page;
    const PageSketch::Look script{.size = 7};
    const Point end = page.print(u"x"_s, {50, 700});
    page.print(u"12"_s, {end.x, 704}, script);
    const Point behind = page.print(u"ijk"_s, {end.x, 697}, script);
    page.print(u" = y"_s, {behind.x, 700});
    EXPECT_EQ(page.lines(), QStringList{u"x12ijk = y"_s});
}

TEST(VisualLines, bridgeAGapThatALongExponentFills)
{
    PageSketch page;
    const Point end = page.print(u"e"_s, {50, 700});
    const Point behind = page.print(u"abcdefghijklm"_s, {end.x, 704}, {.size = 7});
    page.print(u"dt"_s, {behind.x, 700});
    EXPECT_EQ(page.lines(), QStringList{u"eabcdefghijklmdt"_s});
}

TEST(VisualLines, takeAFootnoteMarkSetApartToItsText)
{
    PageSketch page;
    const Point end = page.print(u"12"_s, {50, 103}, {.size = 6});
    page.print(u"See below"_s, {end.x + 4, 100}, {.size = 8});
    EXPECT_EQ(page.lines(), QStringList{u"12 See below"_s});
}

TEST(VisualLines, keepSmallCapitalsTogether)
{
    PageSketch page;
    Point end = page.print(u"S"_s, {50, 700});
    end = page.print(u"MALL "_s, end, {.size = 8});
    end = page.print(u"C"_s, end);
    page.print(u"APS"_s, end, {.size = 8});
    EXPECT_EQ(page.lines(), QStringList{u"SMALL CAPS"_s});
}

TEST(VisualLines, neverMergeLinesSetTight)
{
    PageSketch page;
    printColumn(page, 50, 700, 5, 8.5);
    EXPECT_EQ(page.lines().size(), 5);
}

TEST(VisualLines, divideColumnsAtANarrowGutter)
{
    PageSketch page;
    const double width = page.print(bodyLine, {0, 0}).x;
    page.glyphs.glyphs.clear();
    for (int i = 0; i < 6; ++i) {
        page.print(u"left "_s + bodyLine, {50, 700 - i * 12.0});
        page.print(u"right"_s + bodyLine, {50 + width + 23 + 11, 700 - i * 12.0});
    }
    const QStringList lines = page.lines();
    ASSERT_EQ(lines.size(), 12);
    for (int i = 0; i < 6; ++i)
        EXPECT_TRUE(lines[i].startsWith(u"left"_s)) << i;
    for (int i = 6; i < 12; ++i)
        EXPECT_TRUE(lines[i].startsWith(u"right"_s)) << i;
}

TEST(VisualLines, divideColumnsBehindANumberThatEndsALine)
{
    PageSketch page;
    const double end = page.print(bodyLine, {50, 700}).x;
    for (int i = 0; i < 5; ++i) {
        if (i != 0 && i != 2)
            page.print(bodyLine, {50, 700 - i * 12.0});
        page.print(bodyLine, {end + 20, 700 - i * 12.0});
    }
    page.print(u"640"_s, {end - 15, 676});
    EXPECT_EQ(page.lines().size(), 10);
    EXPECT_TRUE(page.lines().contains(u"640"_s));
}

TEST(VisualLines, keepAWideGapInsideOneLineOfText)
{
    PageSketch page;
    printColumn(page, 50, 712, 1);
    const Point end = page.print(u"for all x,"_s, {50, 700});
    page.print(u"where y"_s, {end.x + 15, 700});
    printColumn(page, 50, 688, 3);
    EXPECT_EQ(page.lines()[1], u"for all x, where y"_s);
}

TEST(VisualLines, keepAHeadingNumberWithItsTitle)
{
    for (const double gap : {10.0, 14.0, 30.0, 60.0}) {
        PageSketch page;
        const PageSketch::Look heading{.size = 14, .style = 1};
        const Point end = page.print(u"4.2"_s, {50, 700}, heading);
        page.print(u"Scope"_s, {end.x + gap, 700}, heading);
        printColumn(page, 50, 680, 4);
        EXPECT_EQ(page.lines().front(), u"4.2 Scope"_s) << gap;
    }
    PageSketch page;
    const Point end = page.print(u"Chapter 3"_s, {50, 700});
    page.print(u"Lexical Structure"_s, {end.x + 40, 700});
    EXPECT_EQ(page.lines(), QStringList{u"Chapter 3 Lexical Structure"_s});
}

TEST(VisualLines, keepTheEntriesOfATableOfContentsWhole)
{
    PageSketch page;
    const QStringList titles{u"General"_s, u".INCLUDE lines"_s, u"4:2:0 Subsampling"_s};
    for (int i = 0; i < 3; ++i) {
        const double y = 700 - i * 14;
        const Point number = page.print(u"4.%1"_s.arg(i + 1), {50, y});
        Point end = page.print(titles[i], {number.x + 12, y});
        for (int dot = 0; dot < 8; ++dot)
            end = page.print(u"."_s, {end.x + 6, y});
        page.print(u"17"_s, {end.x + 20, y});
    }
    EXPECT_EQ(page.lines()[0], u"4.1 General . . . . . . . . 17"_s);
    EXPECT_EQ(page.lines()[1], u"4.2 .INCLUDE lines . . . . . . . . 17"_s);
    EXPECT_EQ(page.lines()[2], u"4.3 4:2:0 Subsampling . . . . . . . . 17"_s);
}

TEST(VisualLines, divideTheCellsOfATableRowByRow)
{
    PageSketch page;
    const QStringList rows{u"Name Type Use"_s, u"sign int flag"_s, u"mag int value"_s,
                           u"len int count"_s};
    for (int row = 0; row < rows.size(); ++row) {
        const QStringList cells = rows[row].split(u' ');
        for (int cell = 0; cell < cells.size(); ++cell)
            page.print(cells[cell], {50 + cell * 33.0, 700 - row * 12.0});
    }
    EXPECT_EQ(page.lines(), rows.join(u' ').split(u' '));
}

TEST(VisualLines, setLineNumbersAndRunningHeadsApart)
{
    PageSketch page;
    page.print(u"2.1 Problems"_s, {50, 760});
    page.print(u"Chapter 2"_s, {400, 760});
    for (int i = 1; i <= 3; ++i) {
        page.print(QString::number(i), {50, 700 - i * 12.0}, {.size = 5});
        page.print(u"return x;"_s, {60, 700 - i * 12.0}, {.size = 9});
    }
    EXPECT_EQ(page.lines(), (QStringList{u"2.1 Problems"_s, u"Chapter 2"_s, u"1"_s, u"return x;"_s,
                                         u"2"_s, u"return x;"_s, u"3"_s, u"return x;"_s}));
}

TEST(VisualLines, readColumnsBetweenTheLinesThatCrossThem)
{
    PageSketch page;
    page.print(bodyLine + bodyLine, {50, 740});
    for (int i = 0; i < 5; ++i) {
        page.print(u"a"_s + bodyLine, {50, 700 - i * 12.0});
        page.print(u"b"_s + bodyLine, {275, 697 - i * 12.0});
        page.print(u"c"_s + bodyLine, {50, 600 - i * 12.0});
        page.print(u"d"_s + bodyLine, {275, 600 - i * 12.0});
    }
    page.print(bodyLine + bodyLine, {50, 625});
    QString beginnings;
    for (const QString &line : page.lines())
        beginnings += line.front();
    EXPECT_EQ(beginnings, u"RaaaaabbbbbRcccccddddd"_s);
}

TEST(VisualLines, runInTheirOwnDirection)
{
    PageSketch page;
    printColumn(page, 80, 700, 4);
    page.print(u"Sideways caption"_s, {40, 500}, {.direction = {0, 1}});
    page.print(u"DRAFT copy"_s, {300, 300}, {.size = 40, .direction = {0.6, 0.8}});
    const PageText text = page.text();
    ASSERT_EQ(text.lines().size(), 6u);
    const QStringList lines = text.string().split(u'\n');
    EXPECT_EQ(lines[4], u"Sideways caption"_s);
    EXPECT_EQ(lines[5], u"DRAFT copy"_s);
    const Rect bounds = text.lines()[4].bounds;
    EXPECT_GT(bounds.size.height, 5 * bounds.size.width);
    EXPECT_NEAR(bounds.minY(), 500, 0.01);
    EXPECT_NEAR(bounds.minX(), 32, 0.01);
}

TEST(VisualLines, keepTheOrderOfTheContentFromRightToLeft)
{
    PageSketch page;
    const QString word = u"\u05e9\u05dc\u05d5\u05dd"_s;
    double x = 200;
    for (int repeat = 0; repeat < 2; ++repeat) {
        for (const QChar letter : word) {
            page.print(QString(letter), {x, 700});
            x -= 5;
        }
        x -= 3;
    }
    EXPECT_EQ(page.lines(), QStringList{word + u' ' + word});
}

TEST(VisualLines, countGlyphsPrintedTwiceToLookBoldOnce)
{
    PageSketch page;
    page.print(u"Bold llama"_s, {50, 700});
    page.print(u"Bold llama"_s, {50.3, 700});
    EXPECT_EQ(page.lines(), QStringList{u"Bold llama"_s});
}

TEST(VisualLines, composeAnAccentWithTheLetterUnderIt)
{
    PageSketch page;
    const Point end = page.print(u"Rom"_s, {50, 700});
    page.print(u"\u00b4"_s, end);
    page.print(u"an"_s, end);
    EXPECT_EQ(page.lines(), QStringList{u"Rom\u00e1n"_s});
}
