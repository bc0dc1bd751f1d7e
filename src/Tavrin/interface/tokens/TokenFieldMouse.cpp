// SPDX-License-Identifier: Apache-2.0
// What the user does to a TokenField by the mouse, by menus and by drags.
#include <Tavrin/interface/tokens/TokenField.h>

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QHelpEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <Tavrin/interface/tokens/TokenLayout.h>
#include <Tavrin/interface/tokens/TokenMimeData.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

namespace
{

/// Of a longer display string a tool tip shows no more.
constexpr int toolTipLength = 1'000;

} // namespace

// Mouse

std::optional<qsizetype> TokenField::menuAt(const QPointF &inViewport) const
{
    const QPointF point = toLayout(inViewport);
    const auto position = m_layout->tokenAt(point);
    if (!position)
        return {};
    const QRectF menu =
        m_layout->menuRect(*m_layout->pieceAt(*position), m_editor->content().tokenAt(*position));
    return menu.contains(point) ? position : std::nullopt;
}

void TokenField::setHoveredMenu(std::optional<qsizetype> position)
{
    if (position == m_hoveredMenu)
        return;
    m_hoveredMenu = position;
    viewport()->update();
}

void TokenField::mousePressEvent(QMouseEvent *event)
{
    m_completer->hide();
    if (event->button() != Qt::LeftButton)
        return;
    const bool extends = event->modifiers() & Qt::ShiftModifier;
    const QPointF point = toLayout(event->position());
    const qsizetype position = m_layout->positionAt(point);
    const auto token = m_layout->tokenAt(point);
    m_pressed = event->pos();
    m_gesture = Gesture::Selecting;
    if (const auto menu = menuAt(event->position()); menu && !extends) {
        m_gesture = Gesture::None;
        m_editor->selectToken(*menu);
        showMenuAt(*menu);
    } else if (extends) {
        moveTo(position, true);
    } else if (m_editor->selection().contains(token.value_or(position))) {
        // Perhaps the selection is to be dragged; if it isn't, the release selects anew.
        m_gesture = Gesture::MayDrag;
    } else if (token) {
        m_editor->selectToken(*token);
        m_gesture = Gesture::MayDrag;
    } else {
        moveTo(position, false);
    }
}

void TokenField::mouseMoveEvent(QMouseEvent *event)
{
    const bool isFar =
        (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (!(event->buttons() & Qt::LeftButton)) {
        setHoveredMenu(menuAt(event->position()));
        const bool isChip = m_layout->tokenAt(toLayout(event->position())).has_value();
        viewport()->setCursor(isChip ? Qt::ArrowCursor : Qt::IBeamCursor);
    } else if (m_gesture == Gesture::Selecting) {
        moveTo(m_layout->positionAt(toLayout(event->position())), true);
    } else if (m_gesture == Gesture::MayDrag && isFar) {
        m_gesture = Gesture::None;
        startDrag();
    }
}

void TokenField::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_gesture == Gesture::MayDrag) {
        const QPointF point = toLayout(event->position());
        if (const auto token = m_layout->tokenAt(point))
            m_editor->selectToken(*token);
        else
            moveTo(m_layout->positionAt(point), false);
    }
    m_gesture = Gesture::None;
}

void TokenField::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointF point = toLayout(event->position());
    if (event->button() != Qt::LeftButton || menuAt(event->position()))
        return;
    m_gesture = Gesture::None;
    if (const auto token = m_layout->tokenAt(point)) {
        m_editor->editToken(*token);
        return;
    }
    const TokenContent &content = m_editor->content();
    const qsizetype position = m_layout->positionAt(point);
    const qsizetype begin = content.previousWord(content.nextPosition(position));
    m_editor->select(begin, std::min(content.nextWord(begin), content.run(begin).end()));
}

bool TokenField::showToolTip(const QPoint &place)
{
    const auto position = m_layout->tokenAt(toLayout(place));
    if (!position)
        return false;
    const Token &token = m_editor->content().tokenAt(*position);
    const TokenLayout::Piece &chip = *m_layout->pieceAt(*position);
    const QString &text = token.displayString;
    if (fontMetrics().horizontalAdvance(text.left(toolTipLength)) <=
        m_layout->textRect(chip, token).width() + 1)
        return false;
    QToolTip::showText(viewport()->mapToGlobal(place),
                       QStringLiteral("<qt>%1</qt>").arg(text.left(toolTipLength).toHtmlEscaped()),
                       viewport(), toViewport(chip.rect));
    return true;
}

bool TokenField::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && showToolTip(static_cast<QHelpEvent *>(event)->pos()))
        return true;
    if (event->type() == QEvent::Leave)
        setHoveredMenu({});
    return QAbstractScrollArea::viewportEvent(event);
}

// Menus

void TokenField::showTokenMenu(int index)
{
    if (index >= 0 && index < tokenCount())
        showMenuAt(m_editor->content().tokenPosition(index));
}

void TokenField::showMenuAt(qsizetype position)
{
    const auto delegate = m_editor->delegate();
    const QVariant object = m_editor->content().tokenAt(position).representedObject;
    if (!delegate || !delegate->hasMenu(object))
        return;
    QMenu *menu = delegate->menu(object);
    if (!menu)
        return;
    setHoveredMenu({});
    const QRect chip = toViewport(m_layout->chipRect(*m_layout->pieceAt(position)));
    menu->setLayoutDirection(layoutDirection());
    const int left = isRightToLeft() ? chip.right() + 1 - menu->sizeHint().width() : chip.left();
    menu->popup(viewport()->mapToGlobal(QPoint(left, chip.bottom() + 1)));
}

void TokenField::contextMenuEvent(QContextMenuEvent *event)
{
    m_completer->hide();
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    const auto token =
        isMouse ? m_layout->tokenAt(toLayout(event->pos())) : m_editor->selectedToken();
    const auto delegate = m_editor->delegate();
    if (token && !m_editor->selection().contains(*token))
        m_editor->selectToken(*token);
    if (token && delegate &&
        delegate->hasMenu(m_editor->content().tokenAt(*token).representedObject))
        showMenuAt(*token);
    else
        showEditMenu(isMouse ? event->globalPos()
                             : viewport()->mapToGlobal(caretRect().bottomLeft()));
}

void TokenField::showEditMenu(const QPoint &globalPlace)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool hasSelection = m_editor->hasSelection();
    const QMimeData *mimeData = QApplication::clipboard()->mimeData();
    const auto add = [&](const QString &title, QKeySequence::StandardKey key, bool isEnabled,
                         auto &&run) {
        QAction *action = menu->addAction(title, this, run);
        action->setShortcut(key);
        action->setEnabled(isEnabled);
    };
    add(localized("Undo", "menu item"), QKeySequence::Undo, m_editor->undoStack().canUndo(),
        &TokenField::undo);
    add(localized("Redo", "menu item"), QKeySequence::Redo, m_editor->undoStack().canRedo(),
        &TokenField::redo);
    menu->addSeparator();
    add(localized("Cut", "menu item"), QKeySequence::Cut, hasSelection, &TokenField::cut);
    add(localized("Copy", "menu item"), QKeySequence::Copy, hasSelection, &TokenField::copy);
    add(localized("Paste", "menu item"), QKeySequence::Paste, mimeData && mimeData->hasText(),
        &TokenField::paste);
    add(localized("Delete", "menu item"), QKeySequence::Delete, hasSelection,
        [this] { m_editor->remove(m_editor->selection()); });
    menu->addSeparator();
    add(localized("Select All", "menu item"), QKeySequence::SelectAll,
        !m_editor->content().isEmpty(), &TokenField::selectAll);
    menu->popup(globalPlace);
}

// Drags

void TokenField::startDrag()
{
    const TextRange selected = m_editor->selection();
    auto *drag = new QDrag(this);
    drag->setMimeData(
        TokenMimeData::make(m_editor->content().part(selected), m_editor->editingText(selected))
            .release());
    if (const auto token = m_editor->selectedToken()) {
        const QRect chip = toViewport(m_layout->chipRect(*m_layout->pieceAt(*token)));
        drag->setPixmap(viewport()->grab(chip));
        drag->setHotSpot(m_pressed - chip.topLeft());
    }
    // Within the field the drop moves; what leaves it is copied.
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
}

void TokenField::setDropPosition(std::optional<qsizetype> position)
{
    m_dropPosition = position;
    viewport()->update();
}

void TokenField::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasText())
        event->acceptProposedAction();
}

void TokenField::dragMoveEvent(QDragMoveEvent *event)
{
    setDropPosition(m_layout->positionAt(toLayout(event->position())));
    event->setDropAction(event->source() == this ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
}

void TokenField::dragLeaveEvent(QDragLeaveEvent *)
{
    setDropPosition({});
}

void TokenField::dropEvent(QDropEvent *event)
{
    setDropPosition({});
    const qsizetype to = m_layout->positionAt(toLayout(event->position()));
    if (event->source() == this) {
        event->setDropAction(Qt::MoveAction);
        m_editor->moveSelection(to);
    } else {
        event->setDropAction(Qt::CopyAction);
        moveTo(to, false);
        insertFrom(*event->mimeData());
    }
    event->accept();
    setFocus(Qt::MouseFocusReason);
}

} // namespace Tavrin
