// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/OutlineModel.h>

#include <Tavrin/interface/sidebars/OutlineItem.h>

#include <algorithm>

namespace Tavrin
{

void OutlineModel::setRoot(const OutlineItem *root)
{
    beginResetModel();
    m_root = root;
    rebuild();
    endResetModel();
}

void OutlineModel::setFilter(const QStringList &words)
{
    if (words == m_filter)
        return;
    beginResetModel();
    m_filter = words;
    rebuild();
    endResetModel();
}

void OutlineModel::rebuild()
{
    m_nodes.clear();
    m_positions.clear();
    if (!m_root)
        return;
    m_nodes.push_back({m_root, 0, 0, {}});
    for (const auto &child : m_root->children())
        appendNode(*child, 0);
    m_positions.reserve(static_cast<qsizetype>(m_nodes.size()));
    for (std::size_t i = 1; i < m_nodes.size(); ++i)
        m_positions.insert(m_nodes[i].item, i);
}

/// False if neither the item nor anything below it matches; then nothing is left of it.
bool OutlineModel::appendNode(const OutlineItem &item, std::size_t parent)
{
    const std::size_t position = m_nodes.size();
    m_nodes.push_back({&item, parent, static_cast<int>(m_nodes[parent].children.size()), {}});
    bool isShown = matches(item);
    for (const auto &child : item.children())
        isShown = appendNode(*child, position) || isShown;
    if (isShown)
        m_nodes[parent].children.push_back(position);
    else
        m_nodes.resize(position);
    return isShown;
}

bool OutlineModel::matches(const OutlineItem &item) const
{
    if (m_filter.isEmpty())
        return true;
    const QString label = item.outline().label().value_or(QString());
    return std::all_of(m_filter.begin(), m_filter.end(), [&label](const QString &word) {
        return label.contains(word, Qt::CaseInsensitive);
    });
}

std::size_t OutlineModel::nodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<std::size_t>(index.internalId()) : 0;
}

const OutlineItem *OutlineModel::item(const QModelIndex &index) const
{
    return index.isValid() ? m_nodes[nodeOf(index)].item : nullptr;
}

QModelIndex OutlineModel::indexOf(const OutlineItem &item) const
{
    const auto it = m_positions.constFind(&item);
    return it == m_positions.cend() ? QModelIndex() : createIndex(m_nodes[*it].row, 0, *it);
}

QModelIndex OutlineModel::firstMatch() const
{
    const auto it = std::find_if(m_nodes.begin(), m_nodes.end(), [this](const Node &node) {
        return node.item != m_root && matches(*node.item);
    });
    return it == m_nodes.end() ? QModelIndex() : indexOf(*it->item);
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       m_nodes[nodeOf(parent)].children[static_cast<std::size_t>(row)]);
}

QModelIndex OutlineModel::parent(const QModelIndex &child) const
{
    const std::size_t above = child.isValid() ? m_nodes[nodeOf(child)].parent : 0;
    return above == 0 ? QModelIndex() : createIndex(m_nodes[above].row, 0, above);
}

int OutlineModel::rowCount(const QModelIndex &parent) const
{
    return m_nodes.empty() ? 0 : static_cast<int>(m_nodes[nodeOf(parent)].children.size());
}

int OutlineModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant OutlineModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    // Line ends in a title would make its row look cut off.
    return item(index)->outline().label().value_or(QString()).simplified();
}

} // namespace Tavrin
