// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/enhance/EntryGraphNode.h>
#include <Tavrin/enhance/PDFXMLEnhancer.h>

/// The weights of the graph of related entries.
namespace Tavrin::RelatedEntryGraph
{

using NodePtr = std::shared_ptr<EntryGraphNode>;

/// An entry's proposal of another.
struct Edge {
    NodePtr source;
    Specification::EntryPtr target;
    double score = 0;
};

/// Adds to the edges between nodes that share a text of the block. `resolve` gives the node of a
/// label, or null. Takes time by the pairs that share something.
void addSharedTexts(const std::vector<NodePtr> &nodes, double weight,
                    const PDFXMLEnhancer::TextBlock &block,
                    const std::function<NodePtr(const QString &label)> &resolve);

/// The strongest edges of a node, at most so many, strongest first; ties by number and label.
/// Labels that `resolve` knows nothing of are passed over.
std::vector<Edge>
strongestEdges(const NodePtr &node, int maximumCount,
               const std::function<Specification::EntryPtr(const QString &label)> &resolve);

} // namespace Tavrin::RelatedEntryGraph
