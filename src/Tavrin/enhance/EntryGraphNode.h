// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <Tavrin/enhance/KeywordRanking.h>
#include <Tavrin/enhance/TermCounts.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// An entry as a node of the graph of what belongs together. Edges are held by label, so the graph
/// owns nothing.
class EntryGraphNode : public PDFSpecification::Entry
{
public:
    using PDFSpecification::Entry::Entry;

    std::shared_ptr<SpecificationEntry> copy() const override
    {
        auto result =
            std::make_shared<EntryGraphNode>(specification(), label(), title(), type(), index());
        copyValuesTo(*result);
        return result;
    }

    /// Labels of the entries that this entry's summary links to, each once, in order of their
    /// first appearance.
    const QStringList &linkedNodes() const { return m_linkedNodes; }
    void setLinkedNodes(const QStringList &labels) { m_linkedNodes = labels; }

    /// Labels of the entries whose summaries link to this entry, each once.
    const QStringList &linkingNodes() const { return m_linkingNodes; }
    void setLinkingNodes(const QStringList &labels) { m_linkingNodes = labels; }

    /// The weight of the edge to each neighbour, by label.
    const TermCounts &adjacentNodes() const { return m_adjacentNodes; }
    TermCounts &adjacentNodes() { return m_adjacentNodes; }
    void setAdjacentNodes(const TermCounts &weights) { m_adjacentNodes = weights; }

    /// The keywords with their scores, best first.
    const std::vector<WeightedKeyword> &weightedKeywords() const { return m_weightedKeywords; }
    void setWeightedKeywords(const std::vector<WeightedKeyword> &keywords)
    {
        m_weightedKeywords = keywords;
    }

private:
    QStringList m_linkedNodes;
    QStringList m_linkingNodes;
    TermCounts m_adjacentNodes;
    std::vector<WeightedKeyword> m_weightedKeywords;
};

} // namespace Tavrin
