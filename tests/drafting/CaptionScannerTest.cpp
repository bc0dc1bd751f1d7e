// SPDX-License-Identifier: Apache-2.0
#include "PrintedSketch.h"

#include <support/Test.h>

#include <Tavrin/drafting/CaptionScanner.h>

namespace
{

using Page = std::vector<PrintedLine>;

/// What is found on pages with running text, to which each of the given lines is added.
std::vector<std::string> captions(const std::vector<Page> &additions, const QSet<int> &skipped = {})
{
    std::vector<Page> pages;
    for (std::size_t page = 0; page < std::max<std::size_t>(additions.size(), 8); ++page) {
        pages.push_back(body(static_cast<int>(page), 690, 400));
        if (page < additions.size())
            pages.back().insert(pages.back().end(), additions[page].begin(), additions[page].end());
    }
    const PrintedPages printed(pages, letter);
    const BodyColumn column = BodyColumnMeasurer(printed).measure();
    std::vector<std::string> result;
    for (const DraftCaption &caption : CaptionScanner(printed, column).scan(skipped))
        result.push_back((caption.number.label + u"|"_s + caption.title).toStdString());
    return result;
}

} // namespace

TEST(CaptionScanner, findsCaptionsWithTheirTitles)
{
    EXPECT_THAT(captions({{line(200, 300, u"Figure 1.1: The bus"_s)},
                          {line(200, 300, u"Table 1.1: The pins"_s),
                           line(90, 150, u"Figure 1.2: The arbiter"_s)}}),
                ElementsAre("Figure 1.1|The bus", "Table 1.1|The pins", "Figure 1.2|The arbiter"));
}

TEST(CaptionScanner, leavesSentencesOut)
{
    EXPECT_THAT(
        captions(
            {{line(72, 300, u"Figure 1.1 shows how the bus is driven by both"_s)},
             {line(
                  72, 300,
                  u"the pins of the part, all of which are told with their meaning in the long table"_s),
              line(72, 288, u"Table 1.1. They are described in the next chapter too."_s)},
             {line(200, 300, u"Figure 1.1: The bus"_s)}}),
        ElementsAre("Figure 1.1|The bus"));
}

TEST(CaptionScanner, leavesListsOut)
{
    Page list;
    for (int row = 1; row < 6; ++row)
        list.push_back(line(72, 390 - 20 * row, u"Table 2.%1: Codes %1 1%1"_s.arg(row)));
    EXPECT_THAT(captions({list, {line(72, 300, u"Figure 2.1: Bus . . . . . . . . 17"_s)}}),
                IsEmpty());
    EXPECT_THAT(captions({{line(200, 300, u"Figure 1.1: The bus"_s)}}, {0}), IsEmpty());
}

TEST(CaptionScanner, joinsTitlesOfSeveralLines)
{
    EXPECT_THAT(
        captions(
            {{line(100, 300, u"Figure 1.1: What the arbiter grants to whom, in the order of re-"_s),
              line(100, 288, u"quests that came in while the bus was held by another master"_s),
              line(100, 240, u"Text that has nothing to do with it"_s)}}),
        ElementsAre(
            "Figure 1.1|What the arbiter grants to whom, in the order of requests that came "
            "in while the bus was held by another master"));
    EXPECT_THAT(captions({{line(280, 300, u"TABLE II"_s), line(240, 289, u"OPERATION CODES"_s)}}),
                ElementsAre("Table II|OPERATION CODES"));
}

TEST(CaptionScanner, givesEachNumberOnce)
{
    EXPECT_THAT(captions({{line(200, 300, u"Table 1: Codes"_s)},
                          {line(200, 300, u"Table 1: (continued)"_s)},
                          {line(200, 300, u"Table 1: Codes"_s)},
                          {line(200, 300, u"Table 2: Names"_s)}}),
                ElementsAre("Table 1|Codes", "Table 2|Names"));
}

TEST(CaptionScanner, letsTheFloatsOfAPageStandInAnyOrder)
{
    EXPECT_THAT(captions({{line(200, 300, u"Figure 2: The arbiter"_s),
                           line(200, 200, u"Figure 1: The bus"_s)},
                          {line(200, 300, u"Figure 3: The pins"_s)}}),
                testing::UnorderedElementsAre("Figure 1|The bus", "Figure 2|The arbiter",
                                              "Figure 3|The pins"));
}
