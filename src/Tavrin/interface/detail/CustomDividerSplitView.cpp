// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/CustomDividerSplitView.h>

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace Tavrin
{

namespace
{

/// Wide enough to be taken hold of, with a line of one pixel in its middle.
constexpr int gripWidth = 5;

class Divider : public QSplitterHandle
{
public:
    explicit Divider(CustomDividerSplitView *owner)
        : QSplitterHandle(owner->orientation(), owner), m_owner(owner)
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QRect line = rect();
        if (orientation() == Qt::Horizontal)
            line = {line.center().x(), line.top(), 1, line.height()};
        else
            line = {line.left(), line.center().y(), line.width(), 1};
        QPainter(this).fillRect(line, m_owner->dividerColor());
    }

private:
    const CustomDividerSplitView *m_owner;
};

} // namespace

CustomDividerSplitView::CustomDividerSplitView(QWidget *parent)
    : CustomDividerSplitView(Qt::Horizontal, parent)
{
}

CustomDividerSplitView::CustomDividerSplitView(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
{
    setHandleWidth(gripWidth);
}

QColor CustomDividerSplitView::dividerColor() const
{
    return palette().color(QPalette::Mid);
}

void CustomDividerSplitView::setPosition(double position, int divider)
{
    QList<int> parts = sizes();
    if (divider < 0 || divider + 1 >= parts.size())
        return;
    const int before =
        std::accumulate(parts.cbegin(), parts.cbegin() + divider, divider * handleWidth());
    const int room = parts[divider] + parts[divider + 1];
    parts[divider] = std::clamp(qRound(position) - before, 0, room);
    parts[divider + 1] = room - parts[divider];
    setSizes(parts);
}

QSplitterHandle *CustomDividerSplitView::createHandle()
{
    return new Divider(this);
}

} // namespace Tavrin
