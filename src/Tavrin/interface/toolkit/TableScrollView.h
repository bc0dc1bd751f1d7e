// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QScrollArea>

namespace Tavrin
{

class TableView;

/// Scrolls a TableView, which is as wide as the view and as tall as its rows.
///
/// It would like to be as wide as its width constraint and as tall as its height constraint, and
/// scrolls where it gets less.
class TableScrollView : public QScrollArea
{
    Q_OBJECT

public:
    explicit TableScrollView(QWidget *parent = nullptr);

    TableView *tableView() const { return m_table; }

    /// In pixels.
    int widthConstraint() const { return m_widthConstraint; }
    void setWidthConstraint(int width);
    int heightConstraint() const { return m_heightConstraint; }
    void setHeightConstraint(int height);

    QSize sizeHint() const override;
    int heightForWidth(int width) const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fit();

    TableView *m_table;
    int m_widthConstraint = 0;
    int m_heightConstraint = 0;
};

} // namespace Tavrin
