// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/drafting/HeadingFinder.h>
#include <Tavrin/drafting/OutlineReader.h>

#include "PrintedSketch.h"

namespace
{

class HeadingFinderTest : public testing::Test
{
protected:
    /// An item as an outline has it, looked up on these pages.
    DraftItem found(const QString &label, int page, double y)
    {
        DraftItem item = OutlineReader::itemFromLabel(label);
        item.page = page;
        item.hint = Point{72, y};
        const PrintedPages printed(m_pages, letter);
        HeadingFinder finder(printed, m_column);
        finder.find(item);
        return item;
    }

    static QString numberOf(const DraftItem &item)
    {
        return item.number ? item.number->text() : QString();
    }

    std::vector<std::vector<PrintedLine>> m_pages{body(0), body(1), body(2)};
    BodyColumn m_column{{{0, 60}, {612, 650}}, {}, letter};
};

} // namespace

TEST_F(HeadingFinderTest, TakesNumberAndTitleFromThePage)
{
    m_pages[1].insert(m_pages[1].begin() + 10, heading(72, 575, u"4.2 The “state” of things"_s));
    const DraftItem item = found(u"The ``state'' of things"_s, 1, 600);
    EXPECT_TRUE(item.isFound);
    EXPECT_EQ(item.title, u"The “state” of things"_s);
    EXPECT_EQ(numberOf(item), u"4.2"_s);
    EXPECT_NEAR(item.corner.y, 586.2, 0.01);
    EXPECT_EQ(item.corner.x, 72);
}

TEST_F(HeadingFinderTest, FollowsToTheNextPageWhereTheDestinationStayedBehind)
{
    m_pages[2].insert(m_pages[2].begin(), heading(72, 695, u"4.2 Scope"_s));
    const DraftItem item = found(u"4.2 Scope"_s, 1, 95);
    EXPECT_TRUE(item.isFound);
    EXPECT_EQ(item.page, 2);
}

TEST_F(HeadingFinderTest, FindsAHeadingThatBeginsAboveItsDestination)
{
    m_pages[1].insert(m_pages[1].begin(), heading(72, 700, u"Scope"_s));
    EXPECT_EQ(found(u"Scope"_s, 1, 704).page, 1);
}

TEST_F(HeadingFinderTest, BeginsAtTheNumberAboveTheTitle)
{
    m_pages[1] = {heading(72, 600, u"Chapter 3"_s), heading(72, 560, u"Frame Decode of"_s),
                  heading(72, 544, u"Inter Frames"_s), line(72, 500, u"Text."_s)};
    const DraftItem item = found(u"Frame Decode of Inter Frames"_s, 1, 700);
    EXPECT_EQ(numberOf(item), u"3"_s);
    EXPECT_EQ(item.title, u"Frame Decode of Inter Frames"_s);
    EXPECT_NEAR(item.corner.y, 611.2, 0.01);
}

TEST_F(HeadingFinderTest, BeginsAtTheTitleBelowANumberSpelledOut)
{
    m_pages[1] = {heading(400, 640, u"CHAPTER"_s), heading(400, 620, u"TWELVE"_s),
                  heading(300, 560, u"DOCUMENTATION"_s)};
    const DraftItem item = found(u"Documentation"_s, 1, 700);
    EXPECT_EQ(numberOf(item), u"12"_s);
    EXPECT_EQ(item.title, u"DOCUMENTATION"_s);
    EXPECT_NEAR(item.corner.y, 571.2, 0.01);
}

TEST_F(HeadingFinderTest, PrefersTheHeadingToTheSameWordsInTextAndRunningHeads)
{
    m_pages[1] = {heading(72, 730, u"4.2 Scope"_s), line(72, 690, u"Scope"_s),
                  line(72, 678, u"Scope of this is"_s), heading(72, 400, u"4.2 Scope"_s)};
    EXPECT_NEAR(found(u"Scope"_s, 1, 700).corner.y, 411.2, 0.01);
}

TEST_F(HeadingFinderTest, GivesALineToOneItemAlone)
{
    m_pages[1] = {heading(72, 600, u"2 Namespaces"_s), heading(72, 500, u"2.1 Namespaces"_s)};
    const PrintedPages printed(m_pages, letter);
    HeadingFinder finder(printed, m_column);
    DraftItem chapter = OutlineReader::itemFromLabel(u"Namespaces"_s);
    chapter.page = 1;
    chapter.hint = Point{72, 700};
    DraftItem section = chapter;
    section.depth = 1;
    ASSERT_TRUE(finder.find(chapter) && finder.find(section));
    EXPECT_EQ(numberOf(chapter), u"2"_s);
    EXPECT_EQ(numberOf(section), u"2.1"_s);
}

TEST_F(HeadingFinderTest, LeavesAnItemAloneThatThePageDoesNotPrint)
{
    const DraftItem item = found(u"4.2 Scope"_s, 1, 600);
    EXPECT_FALSE(item.isFound);
    EXPECT_EQ(numberOf(item), u"4.2"_s);
    EXPECT_EQ(item.hint->y, 600);
}

TEST_F(HeadingFinderTest, GoesOnOverPagesForAHeadingThatStandsOut)
{
    m_pages.push_back({heading(72, 650, u"Bibliography"_s)});
    const PrintedPages printed(m_pages, letter);
    HeadingFinder finder(printed, m_column);
    DraftItem item = OutlineReader::itemFromLabel(u"Bibliography"_s);
    item.page = 0;
    EXPECT_FALSE(finder.findLater(item, 2));
    EXPECT_TRUE(finder.findLater(item, 3));
    EXPECT_EQ(item.page, 3);
}
