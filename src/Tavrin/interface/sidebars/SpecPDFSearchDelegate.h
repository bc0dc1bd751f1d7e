// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

#include <memory>

namespace Tavrin
{

class SpecPDFSearchCell;

/// Draws the rows of a SpecPDFSearchModel, all with one cell. Rows that it is asked for can be
/// seen.
class SpecPDFSearchDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit SpecPDFSearchDelegate(QObject *parent = nullptr);
    ~SpecPDFSearchDelegate() override;

    void setMarkedWords(const QStringList &words) { m_markedWords = words; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

Q_SIGNALS:
    void rowShown(const QModelIndex &index) const;

private:
    std::unique_ptr<SpecPDFSearchCell> m_cell;
    QStringList m_markedWords;
};

} // namespace Tavrin
