// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemView>
#include <QWidget>

namespace Tavrin
{

/// Lies over a table: says, below its rows, how files come into it, and frames it while files are
/// dragged over it. The mouse doesn't see it.
class FileDropOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit FileDropOverlay(QAbstractItemView &table);

    /// Drawn where the rows leave room for it; empty for none.
    void setHint(const QString &hint);
    const QString &hint() const { return m_hint; }
    void setHighlighted(bool highlighted);
    bool isHighlighted() const { return m_isHighlighted; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void cover();
    QRect hintRect() const;

    QAbstractItemView *m_table;
    QString m_hint;
    bool m_isHighlighted = false;
};

} // namespace Tavrin
