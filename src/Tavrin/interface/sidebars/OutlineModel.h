// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QStringList>

#include <vector>

namespace Tavrin
{

class OutlineItem;

/// The items below a root, or those of them whose titles hold all words of a filter, with all above
/// them.
class OutlineModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    /// The root itself is not shown. It must outlive the model, or be taken away by null.
    void setRoot(const OutlineItem *root);
    /// Words of any case; without one all items are shown.
    void setFilter(const QStringList &words);
    bool isFiltered() const { return !m_filter.isEmpty(); }

    /// Null for the invalid index.
    const OutlineItem *item(const QModelIndex &index) const;
    /// The invalid index for the root and for an item that is not shown.
    QModelIndex indexOf(const OutlineItem &item) const;
    /// The first item that is shown for its own title; the invalid index if there is none.
    QModelIndex firstMatch() const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Node {
        const OutlineItem *item = nullptr;
        std::size_t parent = 0;
        int row = 0;
        std::vector<std::size_t> children;
    };

    void rebuild();
    bool appendNode(const OutlineItem &item, std::size_t parent);
    bool matches(const OutlineItem &item) const;
    std::size_t nodeOf(const QModelIndex &index) const;

    const OutlineItem *m_root = nullptr;
    QStringList m_filter;
    /// The first is the root; none without a root.
    std::vector<Node> m_nodes;
    QHash<const OutlineItem *, std::size_t> m_positions;
};

} // namespace Tavrin
