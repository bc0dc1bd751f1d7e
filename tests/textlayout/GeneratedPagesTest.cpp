// SPDX-License-Identifier: Apache-2.0
#include "PageSketch.h"

#include <support/Test.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace
{

using Random = std::mt19937;

double between(Random &random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// Words of all sizes and directions anywhere, over each other too.
PageSketch wildPage(unsigned seed)
{
    Random random(seed);
    PageSketch page;
    page.geometry.rotation = static_cast<int>(seed % 4) * 90;
    page.geometry.cropBox = {{30, 40}, {500, 700}};
    const std::vector<Point> directions{{1, 0}, {1, 0}, {1, 0}, {0, 1}, {-1, 0}, {0.8, 0.6}};
    const int count = static_cast<int>(between(random, 1, 150));
    for (int i = 0; i < count; ++i) {
        PageSketch::Look look;
        look.size = between(random, 4, 20);
        look.direction = directions[random() % directions.size()];
        look.style = static_cast<quint32>(random() % 2);
        page.print(u"some words to print"_s.left(1 + static_cast<int>(random() % 18)),
                   {between(random, 0, 500), between(random, 0, 700)}, look);
    }
    return page;
}

/// What characterIndex says, told by looking at every character.
std::vector<qsizetype> indexesAt(const PageText &text, Point point)
{
    std::vector<qsizetype> printed;
    std::vector<qsizetype> blank;
    for (qsizetype i = 0; i < text.string().size(); ++i) {
        if (text.characterBounds(i).contains(point))
            (text.string()[i] == u' ' ? blank : printed).push_back(i);
    }
    return printed.empty() ? blank : printed;
}

/// The characters that rangesIn must hold, line feeds aside.
std::vector<qsizetype> indexesIn(const PageText &text, const Rect &rect)
{
    std::vector<qsizetype> result;
    for (qsizetype i = 0; i < text.string().size(); ++i) {
        const Rect bounds = text.characterBounds(i);
        if (!bounds.isNull() && rect.contains(bounds.center()))
            result.push_back(i);
    }
    return result;
}

/// The time a build and some questions take, in milliseconds.
qint64 buildTime(const PageSketch &page)
{
    QElapsedTimer timer;
    timer.start();
    const PageText text = page.text();
    for (qsizetype i = 0; i < std::min<qsizetype>(text.string().size(), 2000); ++i) {
        const Rect bounds = text.characterBounds(i);
        if (!bounds.isNull())
            text.lineAt(bounds.center());
    }
    return timer.elapsed();
}

/// Generous, for slow machines and sanitizers; what is quadratic takes minutes.
constexpr qint64 longestBuild = 20000;

PageGlyph letterAt(double x, double y, char32_t character = U'x')
{
    PageSketch page;
    page.print(u"x"_s, {x, y});
    PageGlyph glyph = page.glyphs.glyphs.front();
    glyph.character = character;
    return glyph;
}

} // namespace

TEST(GeneratedPages, keepTextStylesLinesAndGlyphsInStep)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        const PageSketch page = wildPage(seed);
        const PageText text = page.text();
        EXPECT_EQ(text.styledText().string(), text.string());
        qsizetype next = 0;
        for (const PageTextLine &line : text.lines()) {
            ASSERT_EQ(line.range.location, next);
            const QString string = text.string().mid(line.range.location, line.range.length);
            EXPECT_FALSE(string.contains(u'\n'));
            EXPECT_EQ(string, string.simplified());
            next = line.range.end() + 1;
        }
        EXPECT_EQ(next, text.string().size() + 1);
        const qsizetype printed = std::count_if(text.string().begin(), text.string().end(),
                                                [](QChar c) { return !c.isSpace(); });
        // Now and then a word lies on the same word, as if to look bold.
        const qsizetype glyphs = static_cast<qsizetype>(page.glyphs.glyphs.size());
        EXPECT_LE(printed, glyphs) << seed;
        EXPECT_GE(printed, glyphs * 98 / 100) << seed;
    }
}

TEST(GeneratedPages, answerPointsLikeALookAtEveryCharacter)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        const PageSketch page = wildPage(seed);
        const PageText text = page.text();
        Random random(seed);
        for (int i = 0; i < 200; ++i) {
            const Point point =
                page.geometry.toPage(Point{between(random, -10, 510), between(random, -10, 710)});
            const std::vector<qsizetype> expected = indexesAt(text, point);
            const std::optional<qsizetype> index = text.characterIndex(point);
            ASSERT_EQ(index.has_value(), !expected.empty()) << seed;
            if (index) {
                EXPECT_TRUE(std::count(expected.begin(), expected.end(), *index)) << seed;
            }
        }
    }
}

TEST(GeneratedPages, answerRectanglesLikeALookAtEveryCharacter)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        const PageText text = wildPage(seed).text();
        Random random(seed);
        for (int i = 0; i < 60; ++i) {
            const Rect rect = Rect::fromCorners({between(random, 0, 600), between(random, 0, 800)},
                                                {between(random, 0, 600), between(random, 0, 800)});
            std::vector<qsizetype> found;
            qsizetype last = -2;
            for (const TextRange &range : text.rangesIn(rect)) {
                ASSERT_GT(range.location, last) << "neither touching nor overlapping";
                last = range.end();
                for (qsizetype k = range.location; k < range.end(); ++k) {
                    if (text.string()[k] != u'\n')
                        found.push_back(k);
                }
            }
            EXPECT_EQ(found, indexesIn(text, rect)) << seed;
        }
    }
}

TEST(HostileGlyphs, withoutAPlaceAreDropped)
{
    PageSketch page;
    page.print(u"abcdef"_s, {50, 700});
    page.glyphs.glyphs[1].left = std::numeric_limits<float>::quiet_NaN();
    page.glyphs.glyphs[2].originY = std::numeric_limits<float>::infinity();
    page.glyphs.glyphs[3].right = 1e30f;
    page.glyphs.glyphs[4].directionX = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(page.text().string().simplified().remove(u' '), u"af"_s);
    EXPECT_FALSE(page.text().characterIndex({std::nan(""), 3}));
}

TEST(HostileGlyphs, withoutASizeAStyleOrADirectionAreKept)
{
    PageSketch page;
    page.print(u"abcd"_s, {50, 700});
    page.glyphs.glyphs[0].size = 0;
    page.glyphs.glyphs[1].size = -5;
    page.glyphs.glyphs[2].directionX = 0;
    page.glyphs.glyphs[3].style = 4000;
    page.glyphs.glyphs[3].right = page.glyphs.glyphs[3].left - 4;
    EXPECT_EQ(page.text().string().simplified().remove(u' '), u"abcd"_s);
    page.glyphs.styles.clear();
    EXPECT_EQ(page.text().styledText().length(), page.text().string().size());
}

TEST(HostileGlyphs, piledUpOnOnePointTakeBoundedTime)
{
    PageSketch same;
    same.glyphs.glyphs.assign(1'000'000, letterAt(50, 700));
    EXPECT_LT(buildTime(same), longestBuild);

    PageSketch different;
    for (int i = 0; i < 300'000; ++i)
        different.glyphs.glyphs.push_back(letterAt(50, 700, U'a' + static_cast<char32_t>(i % 26)));
    EXPECT_LT(buildTime(different), longestBuild);
}

TEST(HostileGlyphs, scatteredOverThePageTakeBoundedTime)
{
    PageSketch column;
    PageSketch row;
    PageSketch cloud;
    Random random(7);
    for (int i = 0; i < 40'000; ++i) {
        column.glyphs.glyphs.push_back(letterAt(50, i * 2.0));
        row.glyphs.glyphs.push_back(letterAt(i * 2.0, 700, U'1'));
        cloud.glyphs.glyphs.push_back(letterAt(between(random, 0, 600), between(random, 0, 800)));
    }
    EXPECT_LT(buildTime(column), longestBuild);
    EXPECT_LT(buildTime(row), longestBuild);
    EXPECT_LT(buildTime(cloud), longestBuild);
    for (PageGlyph &glyph : cloud.glyphs.glyphs)
        glyph.size = static_cast<float>(between(random, 0.1, 5000));
    EXPECT_LT(buildTime(cloud), longestBuild);
}
