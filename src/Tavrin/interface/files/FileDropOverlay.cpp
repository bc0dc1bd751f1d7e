// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/FileDropOverlay.h>

#include <Tavrin/interface/files/AuxiliaryFileTableColorTransformer.h>

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace Tavrin
{

namespace
{

constexpr int margin = 12;
constexpr qreal frameWidth = 2;
constexpr qreal cornerRadius = 4;
constexpr int fillAlpha = 28;

} // namespace

FileDropOverlay::FileDropOverlay(QWidget &covered)
    : QWidget(&covered), m_covered(covered), m_table(qobject_cast<QAbstractItemView *>(&covered))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    (m_table ? m_table->viewport() : &covered)->installEventFilter(this);
    cover();
}

void FileDropOverlay::setHint(const QString &hint)
{
    m_hint = hint;
    m_covered.setAccessibleDescription(hint);
    update();
}

void FileDropOverlay::setHighlighted(bool highlighted)
{
    m_isHighlighted = highlighted;
    update();
}

bool FileDropOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move ||
        event->type() == QEvent::Show)
        cover();
    return QWidget::eventFilter(watched, event);
}

void FileDropOverlay::cover()
{
    setGeometry(m_table ? m_table->viewport()->geometry() : m_covered.rect());
    raise();
}

/// What the rows leave, in this widget.
QRect FileDropOverlay::hintRect() const
{
    const QAbstractItemModel *model = m_table ? m_table->model() : nullptr;
    const int rows = model ? model->rowCount() : 0;
    const int top = rows == 0 ? 0 : m_table->visualRect(model->index(rows - 1, 0)).bottom() + 1;
    return rect().adjusted(0, std::max(top, 0), 0, 0).adjusted(margin, margin, -margin, -margin);
}

void FileDropOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_isHighlighted)
        paintHighlight(painter);
    paintHint(painter);
}

/// What lies below shines through the highlight, so the hint has a ground of its own there.
void FileDropOverlay::paintHint(QPainter &painter) const
{
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect room = hintRect();
    const QRect needed = fontMetrics().boundingRect(room, flags, m_hint);
    if (m_hint.isEmpty() || !room.isValid() || !room.contains(needed))
        return;
    if (!m_table) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Window));
        painter.drawRoundedRect(needed.adjusted(-margin, -margin, margin, margin), cornerRadius,
                                cornerRadius);
    }
    painter.setPen(AuxiliaryFileTableColorTransformer::transformedValue(!m_table, palette()));
    painter.drawText(room, flags, m_hint);
}

void FileDropOverlay::paintHighlight(QPainter &painter) const
{
    QColor colour = palette().color(QPalette::Active, QPalette::Highlight);
    painter.setPen(QPen(colour, frameWidth));
    colour.setAlpha(fillAlpha);
    painter.setBrush(colour);
    constexpr qreal inset = frameWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius,
                            cornerRadius);
}

} // namespace Tavrin
