// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QModelIndex>
#include <QObject>

class QAbstractItemView;

namespace Tavrin
{

/// Tells which row of a list is chosen: one that becomes selected, by whatever means, and the
/// selected one when it is clicked again or Return is pressed on it. Ends with the list, whose
/// model is set before.
class RowChooser : public QObject
{
    Q_OBJECT

public:
    explicit RowChooser(QAbstractItemView &list);

Q_SIGNALS:
    void chosen(const QModelIndex &index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Whether the latest press of a mouse button has chosen a row already.
    bool m_hasPressChosen = false;
};

} // namespace Tavrin
