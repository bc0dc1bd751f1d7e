// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/RelatedEntryGraph.h>

#include <algorithm>

#include <Tavrin/enhance/ScoreOrder.h>
#include <Tavrin/model/EntryText.h>

namespace Tavrin::RelatedEntryGraph
{

namespace
{

/// What an edge between an ancestor and its descendant counts for: that they share words says
/// little.
constexpr double familyDiscount = 0.25;

/// A node with what every pair asks of it.
struct Holder {
    NodePtr node;
    /// The text's score among the node's keywords, and the sum of all scores; absent where it is
    /// none of them.
    std::optional<double> score;
    double scoreSum = 0;
};

bool isFamily(const EntryGraphNode &a, const EntryGraphNode &b)
{
    const auto &first = a.index();
    const auto &second = b.index();
    if (first.size() == second.size() || !isTextual(a.type()) || !isTextual(b.type()))
        return false;
    const auto length = static_cast<std::ptrdiff_t>(std::min(first.size(), second.size()));
    return std::equal(first.begin(), first.begin() + length, second.begin());
}

Holder makeHolder(const NodePtr &node, const QString &text)
{
    Holder holder;
    holder.node = node;
    for (const auto &[keyword, score] : node->weightedKeywords()) {
        if (!holder.score && keyword == text)
            holder.score = score;
        holder.scoreSum += score;
    }
    return holder;
}

double pairWeight(const Holder &a, const Holder &b, double weight)
{
    if (isFamily(*a.node, *b.node))
        weight = familyDiscount * weight;
    if (a.score && b.score)
        weight *= (*a.score * *b.score) / (a.scoreSum * b.scoreSum);
    return weight;
}

/// Texts in the order in which they are first held, with the labels of their holders.
class SharedTextIndex
{
public:
    void add(const QString &text, const QString &label)
    {
        auto position = m_positions.constFind(text);
        if (position == m_positions.constEnd()) {
            position = m_positions.insert(text, m_labels.size());
            m_labels.emplace_back(text, QStringList());
        }
        m_labels[*position].second.append(label);
    }

    const std::vector<std::pair<QString, QStringList>> &labels() const { return m_labels; }

private:
    QHash<QString, std::size_t> m_positions;
    std::vector<std::pair<QString, QStringList>> m_labels;
};

/// A long text that few entries hold says most.
void addPairs(const std::vector<Holder> &holders, double weight, double textLength, double count)
{
    for (const Holder &a : holders) {
        for (const Holder &b : holders) {
            if (a.node->label() == b.node->label())
                continue;
            a.node->adjacentNodes().add(b.node->label(),
                                        pairWeight(a, b, weight) * textLength / count);
        }
    }
}

} // namespace

void addSharedTexts(const std::vector<NodePtr> &nodes, double weight,
                    const PDFXMLEnhancer::TextBlock &block,
                    const std::function<NodePtr(const QString &label)> &resolve)
{
    SharedTextIndex index;
    for (const NodePtr &node : nodes) {
        for (const QString &text : block(*node))
            index.add(text, node->label());
    }
    for (const auto &[text, labels] : index.labels()) {
        if (labels.size() < 2)
            continue;
        std::vector<Holder> holders;
        for (const QString &label : labels) {
            if (const NodePtr node = resolve(label))
                holders.push_back(makeHolder(node, text));
        }
        addPairs(holders, weight, double(EntryText::characterCount(text)), double(labels.size()));
    }
}

std::vector<Edge>
strongestEdges(const NodePtr &node, int maximumCount,
               const std::function<Specification::EntryPtr(const QString &label)> &resolve)
{
    std::vector<Edge> edges;
    for (const auto &[label, weight] : node->adjacentNodes()) {
        if (const auto target = resolve(label))
            edges.push_back({node, target, weight});
    }
    std::stable_sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) {
        if (isBetterScore(a.score, b.score) || isBetterScore(b.score, a.score))
            return isBetterScore(a.score, b.score);
        return std::pair(a.target->index(), a.target->label()) <
               std::pair(b.target->index(), b.target->label());
    });
    edges.resize(std::min(edges.size(), static_cast<std::size_t>(std::max(maximumCount, 0))));
    return edges;
}

} // namespace Tavrin::RelatedEntryGraph
