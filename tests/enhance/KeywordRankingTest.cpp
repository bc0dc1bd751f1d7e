// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <cmath>

#include <Tavrin/enhance/KeywordRanking.h>

namespace
{

TermCounts counts(const std::vector<std::pair<QString, double>> &terms)
{
    TermCounts result;
    for (const auto &[term, count] : terms)
        result.add(term, count);
    return result;
}

std::vector<std::string> texts(const std::vector<WeightedKeyword> &keywords)
{
    std::vector<std::string> result;
    result.reserve(keywords.size());
    for (const WeightedKeyword &keyword : keywords)
        result.push_back(keyword.text.toStdString());
    return result;
}

} // namespace

TEST(KeywordRanking, weighsLengthShareAndWords)
{
    const auto ranked =
        rankKeywords(counts({{u"bus"_s, 4}, {u"wide bus"_s, 3}, {u"x"_s, 9}}),
                     counts({{u"bus"_s, 8}, {u"wide bus"_s, 3}, {u"x"_s, 9}}), u"Title"_s, 10);
    ASSERT_EQ(texts(ranked), (std::vector<std::string>{"wide bus", "x"}));
    EXPECT_DOUBLE_EQ(ranked[0].score, std::log(8) * 3 / (2 * 3));
    EXPECT_EQ(ranked[1].score, 0);
}

TEST(KeywordRanking, leavesOutTheTitleAndPhrasesMetOnce)
{
    const auto terms = counts({{u"bus arbiter"_s, 1}, {u"wide bus"_s, 2}, {u"arbiter"_s, 1}});
    EXPECT_THAT(texts(rankKeywords(terms, terms, u"Wide Bus"_s, 10)), ElementsAre("arbiter"));
}

TEST(KeywordRanking, keepsTheBetterOfAWordAndAPhraseThatHoldsIt)
{
    const auto terms = counts({{u"bus arbiter"_s, 2}, {u"arbiter"_s, 2}, {u"zone"_s, 1}});
    EXPECT_THAT(
        texts(rankKeywords(terms, counts({{u"bus arbiter"_s, 9}, {u"arbiter"_s, 2}}), u""_s, 2)),
        ElementsAre("zone", "arbiter"));
    EXPECT_THAT(
        texts(rankKeywords(
            terms, counts({{u"bus arbiter"_s, 2}, {u"arbiter"_s, 20}, {u"zone"_s, 1}}), u""_s, 10)),
        ElementsAre("zone", "bus arbiter"));
    // What is removed isn't replaced by what was cut off.
    EXPECT_THAT(texts(rankKeywords(terms, terms, u""_s, 2)), ElementsAre("arbiter", "zone"));
}

TEST(KeywordRanking, bearsScoresThatAreNoNumbers)
{
    const auto ranked = rankKeywords(counts({{u"x"_s, 1}, {u"finite"_s, 1}, {u"unseen"_s, 1}}),
                                     counts({{u"finite"_s, 1}}), u""_s, 10);
    EXPECT_EQ(texts(ranked), (std::vector<std::string>{"unseen", "finite", "x"}));
    EXPECT_TRUE(std::isinf(ranked[0].score));
    EXPECT_TRUE(std::isnan(ranked[2].score));
    EXPECT_TRUE(rankKeywords(counts({{u"x"_s, 1}}), {}, u""_s, -1).empty());
}

TEST(KeywordRanking, keepsTheOrderOfEquals)
{
    const auto terms = counts({{u"delta"_s, 1}, {u"alpha"_s, 1}, {u"gamma"_s, 1}});
    EXPECT_THAT(texts(rankKeywords(terms, terms, u""_s, 10)),
                ElementsAre("delta", "alpha", "gamma"));
}
