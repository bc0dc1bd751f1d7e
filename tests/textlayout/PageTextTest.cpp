// SPDX-License-Identifier: Apache-2.0
#include "PageSketch.h"

#include <support/Test.h>

TEST(PageText, ofAnEmptyPageIsEmpty)
{
    const PageText text = PageSketch().text();
    EXPECT_TRUE(text.string().isEmpty());
    EXPECT_TRUE(text.lines().empty());
    EXPECT_TRUE(text.characterBounds(0).isNull());
    EXPECT_FALSE(text.characterIndex({10, 10}));
    EXPECT_FALSE(text.lineAt({10, 10}));
    EXPECT_FALSE(text.wordAt({10, 10}));
    EXPECT_TRUE(text.rangesIn({{0, 0}, {600, 800}}).empty());
}

TEST(PageText, hasAFontAndAColourForEveryCharacter)
{
    PageSketch page;
    page.print(u"4 Title"_s, {50, 700}, {.size = 14, .style = 1});
    const Point end = page.print(u"plain "_s, {50, 680});
    page.print(u"strong"_s, end, {.style = 1});
    const PageText text = page.text();
    EXPECT_EQ(text.styledText().string(), text.string());

    // Blanks and line feeds look like what is before them.
    const std::vector<StyledText::Run> runs = text.styledText().runs();
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].range, (TextRange{0, 8}));
    EXPECT_EQ(runs[0].attributes.font, page.glyphs.styles[1].font);
    EXPECT_EQ(runs[0].attributes.foregroundColor, 0xff0000ffu);
    EXPECT_EQ(runs[1].range, (TextRange{8, 6}));
    EXPECT_EQ(runs[1].attributes.font, page.glyphs.styles[0].font);
    EXPECT_EQ(runs[2].range, (TextRange{14, 6}));
}

TEST(PageText, keepsWhatHasNoSimpleCharacter)
{
    PageSketch page;
    page.print(u"a\U0001D49Cb\ufffdc\u00ad"_s, {50, 700});
    const PageText text = page.text();
    EXPECT_EQ(text.string(), u"a\U0001D49Cb\ufffdc-"_s);
    EXPECT_EQ(text.characterBounds(1), text.characterBounds(2));
    EXPECT_EQ(text.characterBounds(1), (Rect{{55, 698}, {5, 10}}));

    PageSketch controls;
    controls.print(u"a\nb\u2028c"_s, {50, 700});
    EXPECT_EQ(controls.text().string(), u"a\ufffdb\ufffdc"_s);
}

TEST(PageText, dividesTheCellOfALigature)
{
    for (const bool withoutWidth : {false, true}) {
        PageSketch page;
        const Point end = page.print(u"o"_s, {50, 700});
        page.print(u"ffi"_s, end);
        page.ligate(3, withoutWidth);
        page.print(u"ce"_s, {end.x + 5, 700});
        const PageText text = page.text();
        ASSERT_EQ(text.string(), u"office"_s);
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(text.characterBounds(1 + i).minX(), 55 + i * 5 / 3.0, 1e-4);
            EXPECT_NEAR(text.characterBounds(1 + i).size.width, 5 / 3.0, 1e-4);
        }
    }
}

TEST(PageText, isInPageSpaceWhateverTheFrame)
{
    for (const int rotation : {0, 90, 180, 270}) {
        PageSketch page;
        page.geometry = {{{10, 20}, {700, 900}}, {{100, 50}, {400, 600}}, rotation};
        page.print(u"upright words"_s, {50, 300});
        const PageText text = page.text();
        const Rect first = page.geometry.toPage(Rect{{50, 298}, {5, 10}});
        EXPECT_EQ(text.characterBounds(0), first) << rotation;
        EXPECT_EQ(text.characterIndex(first.center()), 0) << rotation;
        EXPECT_EQ(text.lineAt(first.center()), (TextRange{0, 13})) << rotation;
        EXPECT_EQ(text.lines().front().bounds, page.geometry.toPage(Rect{{50, 298}, {64, 10}}))
            << rotation;
        EXPECT_EQ(text.rangesIn(text.lines().front().bounds), std::vector<TextRange>({{0, 13}}))
            << rotation;
    }
}

TEST(PageText, hasNothingAtALineFeedOrBeyondTheText)
{
    PageSketch page;
    page.print(u"one"_s, {50, 700});
    page.print(u"two"_s, {50, 688});
    const PageText text = page.text();
    EXPECT_TRUE(text.characterBounds(3).isNull());
    EXPECT_TRUE(text.characterBounds(-1).isNull());
    EXPECT_TRUE(text.characterBounds(7).isNull());
    EXPECT_FALSE(text.characterIndex({300, 700}));
    EXPECT_FALSE(text.lineAt({300, 700}));
}

TEST(PageText, findsTheLineAndTheWordThroughAPoint)
{
    PageSketch page;
    page.print(u"the printf() call"_s, {50, 700});
    page.print(u"second line"_s, {50, 692});
    const PageText text = page.text();
    EXPECT_EQ(text.lineAt({52, 702}), (TextRange{0, 17}));
    // The cells of both lines hold this point; it is nearer to the middle of the lower.
    EXPECT_EQ(text.lineAt({52, 698.5}), (TextRange{18, 11}));
    EXPECT_EQ(text.lineAt({66, 702}), (TextRange{0, 17})) << "on a blank";
    EXPECT_EQ(text.wordAt({80, 702}), (TextRange{4, 6}));
    EXPECT_EQ(text.wordAt({52, 702}), (TextRange{0, 3}));
    EXPECT_FALSE(text.wordAt({66, 703}));
}

TEST(PageText, givesOneRangeForAParagraph)
{
    PageSketch page;
    page.print(u"before"_s, {50, 724});
    page.print(u"first line"_s, {50, 700});
    page.print(u"second line"_s, {50, 688});
    page.print(u"behind"_s, {50, 660});
    const PageText text = page.text();
    EXPECT_EQ(text.rangesIn({{40, 680}, {200, 35}}), std::vector<TextRange>({{7, 22}}));
    // A strip through both lines holds a part of each.
    EXPECT_EQ(text.rangesIn({{50, 680}, {10, 35}}), std::vector<TextRange>({{7, 2}, {18, 2}}));
    EXPECT_TRUE(text.rangesIn(Rect::null()).empty());
}
