// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <limits>

#include <Tavrin/enhance/RelatedEntryGraph.h>

using Tavrin::RelatedEntryGraph::NodePtr;
using Type = Tavrin::SpecificationEntryType;

namespace
{

class Graph : public testing::Test
{
protected:
    NodePtr add(const QString &label, Type type, const std::vector<int> &index,
                const std::vector<WeightedKeyword> &keywords = {})
    {
        auto node = std::make_shared<EntryGraphNode>(nullptr, label, u"Title"_s, type, index);
        node->setWeightedKeywords(keywords);
        QStringList texts;
        for (const WeightedKeyword &keyword : keywords)
            texts.append(keyword.text);
        node->setKeywords(texts);
        nodes.push_back(node);
        return node;
    }

    NodePtr find(const QString &label) const
    {
        const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const NodePtr &node) {
            return node->label() == label;
        });
        return found == nodes.end() ? nullptr : *found;
    }

    void share(double weight, const PDFXMLEnhancer::TextBlock &block)
    {
        RelatedEntryGraph::addSharedTexts(nodes, weight, block,
                                          [this](const QString &label) { return find(label); });
    }

    void shareTitles()
    {
        share(1, [](const EntryGraphNode &node) { return QStringList{node.title()}; });
    }

    std::vector<NodePtr> nodes;
};

std::vector<std::string> labels(const std::vector<RelatedEntryGraph::Edge> &edges)
{
    std::vector<std::string> result;
    result.reserve(edges.size());
    for (const auto &edge : edges)
        result.push_back(edge.target->label().toStdString());
    return result;
}

} // namespace

TEST_F(Graph, weighsSharedTitlesByLengthRarityAndKinship)
{
    const auto a = add(u"a"_s, Type::Section, {1, 1});
    const auto b = add(u"b"_s, Type::Section, {2, 1});
    const auto parent = add(u"p"_s, Type::Chapter, {1});
    shareTitles();
    EXPECT_DOUBLE_EQ(a->adjacentNodes().value(u"b"_s), 5.0 / 3);
    EXPECT_DOUBLE_EQ(a->adjacentNodes().value(u"p"_s), 0.25 * 5 / 3);
    EXPECT_DOUBLE_EQ(parent->adjacentNodes().value(u"a"_s), 0.25 * 5 / 3);
    EXPECT_DOUBLE_EQ(b->adjacentNodes().value(u"p"_s), 5.0 / 3);
}

TEST_F(Graph, givesNoEdgeToATitleOfOneAndNoDiscountToFigures)
{
    const auto section = add(u"s"_s, Type::Section, {1});
    shareTitles();
    EXPECT_TRUE(section->adjacentNodes().isEmpty());
    const auto figure = add(u"f"_s, Type::Figure, {1, 1});
    shareTitles();
    EXPECT_DOUBLE_EQ(figure->adjacentNodes().value(u"s"_s), 5.0 / 2);
}

TEST_F(Graph, weighsSharedKeywordsByTheirStrength)
{
    const auto a = add(u"a"_s, Type::Section, {1}, {{u"bus"_s, 3}, {u"pin"_s, 1}});
    const auto b = add(u"b"_s, Type::Section, {2}, {{u"bus"_s, 2}});
    share(0.25, [](const EntryGraphNode &node) { return node.keywords(); });
    EXPECT_DOUBLE_EQ(a->adjacentNodes().value(u"b"_s), 0.25 * (3.0 * 2) / (4 * 2) * 3 / 2);
    EXPECT_DOUBLE_EQ(b->adjacentNodes().value(u"a"_s), a->adjacentNodes().value(u"b"_s));
}

TEST_F(Graph, bearsEndlessScores)
{
    const double endless = std::numeric_limits<double>::infinity();
    const auto a = add(u"a"_s, Type::Figure, {1}, {{u"bus"_s, endless}});
    add(u"b"_s, Type::Figure, {2}, {{u"bus"_s, endless}});
    add(u"c"_s, Type::Section, {2});
    share(1, [](const EntryGraphNode &node) { return node.keywords(); });
    a->adjacentNodes().add(u"c"_s, 0.5);
    const auto edges = RelatedEntryGraph::strongestEdges(
        a, 5, [this](const QString &label) { return find(label); });
    EXPECT_THAT(labels(edges), ElementsAre("c", "b"));
}

TEST_F(Graph, keepsTheStrongestEdgesTiesByNumber)
{
    const auto a = add(u"a"_s, Type::Section, {1});
    add(u"late"_s, Type::Section, {9});
    add(u"early"_s, Type::Section, {2});
    add(u"best"_s, Type::Section, {5});
    for (const auto &[label, weight] :
         {std::pair(u"late"_s, 1.0), {u"early"_s, 1.0}, {u"gone"_s, 9.0}, {u"best"_s, 2.0}})
        a->adjacentNodes().add(label, weight);
    const auto strongest = [&](int count) {
        return labels(RelatedEntryGraph::strongestEdges(
            a, count, [this](const QString &label) { return find(label); }));
    };
    EXPECT_THAT(strongest(5), ElementsAre("best", "early", "late"));
    EXPECT_THAT(strongest(2), ElementsAre("best", "early"));
    EXPECT_THAT(strongest(0), IsEmpty());
}
