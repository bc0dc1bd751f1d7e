// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QRandomGenerator>

#include <algorithm>

#include <Tavrin/drafting/NumberedSequence.h>

using NumberedSequence::Member;

namespace
{

int weightOf(const std::vector<Member> &members, const std::vector<std::size_t> &chosen)
{
    int weight = 0;
    for (const std::size_t i : chosen)
        weight += members[i].weight;
    return weight;
}

/// The same in square time.
int naiveWeight(const std::vector<Member> &members)
{
    std::vector<int> best;
    for (std::size_t i = 0; i < members.size(); ++i) {
        int before = 0;
        for (std::size_t k = 0; k < i; ++k) {
            if (members[k].ranks < members[i].ranks)
                before = std::max(before, best[k]);
        }
        best.push_back(before + members[i].weight);
    }
    return best.empty() ? 0 : *std::max_element(best.begin(), best.end());
}

} // namespace

TEST(NumberedSequence, LeavesOutWhatBreaksTheOrder)
{
    const std::vector<Member> members{{{1}, 1},     {{1, 1}, 1}, {{3, 5}, 1}, {{1, 2}, 1},
                                      {{1, 10}, 1}, {{2}, 1},    {{1}, 1},    {{2, 1}, 1}};
    EXPECT_THAT(NumberedSequence::heaviest(members), testing::ElementsAre(0, 1, 3, 4, 5, 7));
}

TEST(NumberedSequence, PrefersTheHeavierOfTwoEqualNumbers)
{
    const std::vector<Member> members{{{1, 1}, 1}, {{1, 2}, 1}, {{1, 1}, 5}, {{1, 2}, 5}};
    EXPECT_THAT(NumberedSequence::heaviest(members), testing::ElementsAre(2, 3));
}

TEST(NumberedSequence, IsAsHeavyAsTheNaiveOne)
{
    QRandomGenerator random(7);
    for (int round = 0; round < 200; ++round) {
        std::vector<Member> members;
        const int count = random.bounded(60);
        for (int i = 0; i < count; ++i) {
            Member member{{random.bounded(4)}, 1 + random.bounded(9)};
            while (random.bounded(2) == 0)
                member.ranks.push_back(random.bounded(4));
            members.push_back(member);
        }
        const auto chosen = NumberedSequence::heaviest(members);
        for (std::size_t i = 1; i < chosen.size(); ++i)
            ASSERT_LT(members[chosen[i - 1]].ranks, members[chosen[i]].ranks);
        ASSERT_EQ(weightOf(members, chosen), naiveWeight(members));
    }
}
