// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QWidget>

#include <Tavrin/WidgetsExport.h>

class QAbstractItemView;
class QPainter;

namespace Tavrin
{

/// Lies over a view that files can be dropped on: says how they come into it, and frames it while
/// they are dragged over it. The mouse doesn't see it. Main thread.
class TAVRIN_WIDGETS_EXPORT FileDropOverlay : public QWidget
{
    Q_OBJECT

public:
    /// Goes with the view. Of a table it leaves out the header.
    explicit FileDropOverlay(QWidget &covered);

    /// Drawn below the rows of a table, where they leave room for it, else in the middle; empty for
    /// none.
    void setHint(const QString &hint);
    const QString &hint() const { return m_hint; }
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_isHighlighted; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void cover();
    void paintHint(QPainter &painter) const;
    void paintHighlight(QPainter &painter) const;
    QRect hintRect() const;

    QWidget &m_covered;
    /// Null if that is no table.
    QAbstractItemView *m_table;
    QString m_hint;
    bool m_isHighlighted = false;
};

} // namespace Tavrin
