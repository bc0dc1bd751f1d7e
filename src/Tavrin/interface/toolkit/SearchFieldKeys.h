// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QAbstractItemView;
class QKeyEvent;
class QLineEdit;

namespace Tavrin
{

/// Lets one work in a list while the cursor stays in the field above it: the arrows up and down and
/// the page keys move the list's selection, Return chooses, Escape clears the field, and Copy
/// without a selected text copies from the list. Ends with the field, which must not outlive the
/// list.
class SearchFieldKeys : public QObject
{
    Q_OBJECT

public:
    SearchFieldKeys(QLineEdit &field, QAbstractItemView &list);

Q_SIGNALS:
    /// Return was pressed; another row may be current than is wanted, or none.
    void chosen();
    void copyWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handle(QKeyEvent &event);

    QLineEdit &m_field;
    QAbstractItemView &m_list;
};

} // namespace Tavrin
