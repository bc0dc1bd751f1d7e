// SPDX-License-Identifier: Apache-2.0
#include "GraphDocument.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

QString quoted(QString text)
{
    return u'"' + text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

QString shapeOf(SpecificationEntryType type)
{
    switch (type) {
    case SpecificationEntryType::Chapter:
        return u"box"_s;
    case SpecificationEntryType::Figure:
        return u"diamond"_s;
    case SpecificationEntryType::Table:
        return u"hexagon"_s;
    case SpecificationEntryType::Section:
        break;
    }
    return u"ellipse"_s;
}

} // namespace

GraphDocument::GraphDocument(Specification &specification) : m_title(specification.title())
{
    QHash<const SpecificationEntry *, qsizetype> positions;
    for (const auto &entry : specification.entries()) {
        positions.insert(entry.get(), qsizetype(m_nodes.size()));
        m_nodes.push_back({entry->outlineTitle(), entry->type(), entry->keywords()});
    }
    for (const auto &entry : specification.entries()) {
        qsizetype rank = 0;
        for (const QString &related : entry->relatedEntries()) {
            const auto target = specification.entry(related);
            if (target && positions.contains(target.get()))
                m_edges.push_back({positions[entry.get()], positions[target.get()], rank++});
        }
    }
}

QString GraphDocument::dot() const
{
    QString text = u"digraph related {\n    label=%1;\n    rankdir=LR;\n"_s.arg(quoted(m_title));
    std::vector<bool> isTied(m_nodes.size());
    for (const Edge &edge : m_edges) {
        isTied[std::size_t(edge.from)] = true;
        isTied[std::size_t(edge.to)] = true;
    }
    for (std::size_t position = 0; position < m_nodes.size(); ++position) {
        const Node &node = m_nodes[position];
        if (isTied[position]) {
            text += u"    n%1 [label=%2, shape=%3];\n"_s.arg(position).arg(quoted(node.title),
                                                                           shapeOf(node.type));
        }
    }
    for (const Edge &edge : m_edges) {
        text += u"    n%1 -> n%2 [weight=%3];\n"_s.arg(edge.from).arg(edge.to).arg(
            std::max<qsizetype>(1, 5 - edge.rank));
    }
    return text + u'}';
}

QString GraphDocument::html() const
{
    QJsonArray nodes;
    for (const Node &node : m_nodes) {
        nodes.append(
            QJsonArray{node.title, textForm(node.type), QJsonArray::fromStringList(node.keywords)});
    }
    QJsonArray edges;
    for (const Edge &edge : m_edges)
        edges.append(QJsonArray{edge.from, edge.to, edge.rank});
    const QJsonObject graph{{u"title"_s, m_title}, {u"nodes"_s, nodes}, {u"edges"_s, edges}};
    QByteArray json = QJsonDocument(graph).toJson(QJsonDocument::Compact);
    // Nothing in a title ends the script that the data stand in.
    json.replace('<', "\\u003c");
    QFile page(u":/tavrin/graph.html"_s);
    if (!page.open(QIODevice::ReadOnly))
        qFatal("The page of the graph is missing from the program");
    return QString::fromUtf8(page.readAll().replace("@GRAPH@", json)).trimmed();
}

} // namespace Tavrin::Cli
