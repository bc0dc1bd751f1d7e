// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QSplitter>

namespace Tavrin
{

/// A split view whose divider is a thin line that is seen on any background.
class CustomDividerSplitView : public QSplitter
{
    Q_OBJECT

public:
    explicit CustomDividerSplitView(QWidget *parent = nullptr);
    explicit CustomDividerSplitView(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// The gray of the palette, so that it follows light and dark.
    QColor dividerColor() const;

    /// Puts a divider, counted from 0, at a distance from where the view begins, as far as the view
    /// reaches. The two parts beside it share the room that they had.
    void setPosition(double position, int divider);

protected:
    QSplitterHandle *createHandle() override;
};

} // namespace Tavrin
