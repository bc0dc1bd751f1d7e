// SPDX-License-Identifier: Apache-2.0
// The related entries of PDFXMLEnhancer: a graph of shared words and links, of which each entry
// keeps its strongest edges.
#include <Tavrin/enhance/PDFXMLEnhancer.h>

#include <algorithm>
#include <cmath>

#include <Tavrin/enhance/EntryGraphNode.h>
#include <Tavrin/enhance/RelatedEntryGraph.h>
#include <Tavrin/enhance/ScoreOrder.h>
#include <Tavrin/enhance/SectionOfEntry.h>
#include <Tavrin/model/SpecURL.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using NodePtr = std::shared_ptr<EntryGraphNode>;
using RelatedEntryGraph::Edge;

/// Where the edge from a figure to its section begins if nothing else ties the two.
constexpr double figureAssociationStart = 1;

void appendOnce(QStringList &labels, const QString &label)
{
    if (!labels.contains(label))
        labels.append(label);
}

/// How many of the weakest edges are dropped.
std::size_t prunedCount(double fraction, std::size_t edges)
{
    const double pruned = std::trunc(fraction * double(edges));
    if (!std::isfinite(pruned) || std::abs(pruned) >= 0x1p63)
        qFatal("The share of related entries to drop is no number that counts");
    return static_cast<std::size_t>(std::clamp(pruned, 0.0, double(edges)));
}

} // namespace

std::vector<std::shared_ptr<EntryGraphNode>> PDFXMLEnhancer::sortedNodes()
{
    std::vector<NodePtr> nodes;
    for (const PDFEntryPtr &entry : sortedEntries()) {
        if (auto node = std::dynamic_pointer_cast<EntryGraphNode>(entry))
            nodes.push_back(std::move(node));
    }
    return nodes;
}

void PDFXMLEnhancer::addRelatedEntriesBySharedText(double weight, const TextBlock &textBlock)
{
    RelatedEntryGraph::addSharedTexts(
        sortedNodes(), weight, textBlock, [this](const QString &label) {
            return std::dynamic_pointer_cast<EntryGraphNode>(entry(label));
        });
}

void PDFXMLEnhancer::computeLinkedEntries()
{
    const auto nodes = sortedNodes();
    QHash<QString, QString> labelsByLink;
    for (const NodePtr &node : nodes) {
        node->setLinkedNodes({});
        node->setLinkingNodes({});
        if (node->internalLink())
            labelsByLink.insert(*node->internalLink(), node->label());
    }
    for (const NodePtr &source : nodes) {
        const auto summary = isTextual(source->type()) ? source->summaryText() : std::nullopt;
        if (!summary)
            continue;
        QStringList linked;
        summary->enumerateLinks(
            {0, summary->length()}, [&](const QString *link, TextRange, bool &) {
                const NodePtr target = link ? linkTarget(*source, *link, labelsByLink) : nullptr;
                if (!target)
                    return;
                appendOnce(linked, target->label());
                QStringList linking = target->linkingNodes();
                appendOnce(linking, source->label());
                target->setLinkingNodes(linking);
            });
        source->setLinkedNodes(linked);
    }
}

/// The entry that a link of a summary leads to: by its label, or by a spec URL. The links of a PDF
/// come as URLs, with the label of the entry that holds the place, or failing that with the name of
/// the destination; one to a place within its own section ties nothing.
std::shared_ptr<EntryGraphNode>
PDFXMLEnhancer::linkTarget(const EntryGraphNode &source, const QString &link,
                           const QHash<QString, QString> &labelsByLink) const
{
    const auto node = [this](const QString &label) {
        return std::dynamic_pointer_cast<EntryGraphNode>(entries().value(label));
    };
    if (auto exact = node(link))
        return exact;
    const auto components = SpecURL::components(link);
    if (!components || components->isEmpty())
        return nullptr;
    const QString &name = components->constFirst();
    auto target = node(name);
    if (!target && labelsByLink.contains(name))
        target = node(labelsByLink.value(name));
    return target.get() == &source ? nullptr : target;
}

void PDFXMLEnhancer::computeRelatedEntries()
{
    for (const PDFEntryPtr &entry : sortedEntries()) {
        if (const auto node = std::dynamic_pointer_cast<EntryGraphNode>(entry))
            node->setAdjacentNodes({});
        entry->setRelatedEntries({});
    }
    addRelatedEntriesBySharedText(relatedEntryTitleWeight(), [](const EntryGraphNode &node) {
        return QStringList{node.title()};
    });
    addRelatedEntriesBySharedText(relatedEntryKeywordWeight(),
                                  [](const EntryGraphNode &node) { return node.keywords(); });
    computeLinkedEntries();
    std::vector<Edge> edges = strongestEdges();
    std::stable_sort(edges.begin(), edges.end(), byScore);
    edges.resize(edges.size() - prunedCount(relatedEntryPruningFraction(), edges.size()));
    for (const Edge &edge : edges) {
        const auto owner = edge.target->specification();
        if (!owner)
            continue;
        // The relation names the specification and no revision, so that it outlives this one.
        edge.source->setRelatedEntries(edge.source->relatedEntries() +
                                       QStringList{owner->generateURL(*edge.target, true, false)});
    }
}

std::vector<RelatedEntryGraph::Edge> PDFXMLEnhancer::strongestEdges()
{
    std::vector<Edge> edges;
    const std::vector<PDFEntryPtr> sorted = sortedEntries();
    for (std::size_t position = 0; position < sorted.size(); ++position) {
        const auto node = std::dynamic_pointer_cast<EntryGraphNode>(sorted[position]);
        if (!node)
            continue;
        for (const QString &label : node->linkedNodes())
            node->adjacentNodes().add(label, relatedEntryLinkedWeight());
        for (const QString &label : node->linkingNodes())
            node->adjacentNodes().add(label, relatedEntryLinkingWeight());
        if (const auto section =
                isTextual(node->type()) ? nullptr : sectionBefore(sorted, position)) {
            node->adjacentNodes().add(section->label(), relatedEntryFigureAssociationWeight(),
                                      figureAssociationStart);
        }
        const auto strongest = RelatedEntryGraph::strongestEdges(
            node, maxRelatedEntryCount(), [this](const QString &label) { return entry(label); });
        edges.insert(edges.end(), strongest.begin(), strongest.end());
    }
    return edges;
}

} // namespace Tavrin
