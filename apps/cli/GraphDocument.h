// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

#include <Tavrin/model/Specification.h>

namespace Tavrin::Cli
{

/// The related entries of a specification as a directed graph. Relations to other specifications
/// are left out.
class GraphDocument
{
public:
    explicit GraphDocument(Specification &specification);

    /// There is no relation.
    bool isEmpty() const { return m_edges.empty(); }

    /// For Graphviz.
    QString dot() const;
    /// A page with the graph and a list, which loads nothing.
    QString html() const;

private:
    struct Node {
        QString title;
        SpecificationEntryType type = SpecificationEntryType::Section;
        QStringList keywords;
    };
    struct Edge {
        qsizetype from = 0;
        qsizetype to = 0;
        /// 0 for the strongest relation of its entry.
        qsizetype rank = 0;
    };

    QString m_title;
    std::vector<Node> m_nodes;
    std::vector<Edge> m_edges;
};

} // namespace Tavrin::Cli
