// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/DynamicHeightTextView.h>

#include <Tavrin/interface/summary/StyledTextWriter.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QTextBlock>
#include <QTextLayout>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <memory>

namespace Tavrin
{

namespace
{

/// Room for the ring around a link at the edge.
constexpr int textMargin = 2;

/// A link as it can be pasted elsewhere: a label alone says too little there.
QString pasteableLink(const QString &link)
{
    const bool isURL =
        SpecURL::components(link) || !QUrl(link, QUrl::StrictMode).scheme().isEmpty();
    return isURL ? link : SpecURL::shortForm(link);
}

} // namespace

DynamicHeightTextView::DynamicHeightTextView(QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    viewport()->setCursor(Qt::IBeamCursor);
    document()->setDocumentMargin(textMargin);
    document()->setUndoRedoEnabled(false);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(this, &QTextEdit::textChanged, this, [this] {
        readLinks();
        invalidateIntrinsicContentSize();
    });
}

void DynamicHeightTextView::insertAtStart(const StyledText &text)
{
    QTextCursor cursor(document());
    StyledTextWriter(font(), palette()).insert(cursor, text);
}

// Size

QSizeF DynamicHeightTextView::intrinsicContentSize() const
{
    return document()->documentLayout()->documentSize();
}

int DynamicHeightTextView::unwrappedWidth() const
{
    const double before = document()->textWidth();
    document()->setTextWidth(-1);
    const double width = document()->idealWidth();
    document()->setTextWidth(before);
    return int(std::ceil(width));
}

QSize DynamicHeightTextView::sizeHint() const
{
    return {int(std::ceil(document()->idealWidth())),
            int(std::ceil(intrinsicContentSize().height()))};
}

QSize DynamicHeightTextView::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

int DynamicHeightTextView::heightForWidth(int width) const
{
    // The next resize lays out again if this is not the width that the view gets.
    document()->setTextWidth(width);
    return int(std::ceil(intrinsicContentSize().height()));
}

// Links

void DynamicHeightTextView::readLinks()
{
    m_links.clear();
    m_focusedLink.reset();
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment part = it.fragment();
            if (!part.charFormat().isAnchor())
                continue;
            const QString target = part.charFormat().anchorHref();
            const int end = part.position() + part.length();
            if (!m_links.empty() && m_links.back().end == part.position() &&
                m_links.back().target == target) {
                m_links.back().end = end;
            } else {
                m_links.push_back({part.position(), end, target});
            }
        }
    }
    setFocusPolicy(m_links.empty() ? Qt::ClickFocus : Qt::StrongFocus);
}

std::vector<QRect> DynamicHeightTextView::linkRects(const Link &link) const
{
    std::vector<QRect> rects;
    const QTextBlock block = document()->findBlock(link.start);
    const QTextLayout *layout = block.layout();
    const QPointF origin = document()->documentLayout()->blockBoundingRect(block).topLeft();
    const int first = link.start - block.position();
    const int last = link.end - block.position();
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine line = layout->lineAt(i);
        const int from = std::max(first, line.textStart());
        const int to = std::min(last, line.textStart() + line.textLength());
        if (from >= to)
            continue;
        const double a = line.cursorToX(from);
        const double b = line.cursorToX(to, QTextLine::Leading);
        const QRectF rect(std::min(a, b), line.y(), std::abs(b - a), line.height());
        rects.push_back(rect.translated(origin).toAlignedRect());
    }
    return rects;
}

void DynamicHeightTextView::setFocusedLink(std::optional<std::size_t> link)
{
    m_focusedLink = link;
    viewport()->update();
    if (!link)
        return;
    const std::vector<QRect> rects = linkRects(m_links[*link]);
    for (QWidget *above = parentWidget(); above && !rects.empty(); above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above)) {
            const QPoint place = mapTo(area->widget(), rects.front().center());
            area->ensureVisible(place.x(), place.y(), 0, 2 * fontMetrics().height());
            return;
        }
    }
}

void DynamicHeightTextView::follow(const QString &target)
{
    if (m_delegate)
        m_delegate->textViewClickedLink(*this, target);
}

// Keyboard

bool DynamicHeightTextView::event(QEvent *event)
{
    // The base class would take these for editing.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!key->matches(QKeySequence::Copy) && !key->matches(QKeySequence::SelectAll)) {
            event->ignore();
            return false;
        }
    }
    return QTextEdit::event(event);
}

bool DynamicHeightTextView::focusNextPrevChild(bool next)
{
    if (!m_links.empty()) {
        const std::size_t last = m_links.size() - 1;
        if (!m_focusedLink) {
            setFocusedLink(next ? 0 : last);
            return true;
        }
        if (next ? *m_focusedLink < last : *m_focusedLink > 0) {
            setFocusedLink(next ? *m_focusedLink + 1 : *m_focusedLink - 1);
            return true;
        }
    }
    return QTextEdit::focusNextPrevChild(next);
}

void DynamicHeightTextView::focusInEvent(QFocusEvent *event)
{
    QTextEdit::focusInEvent(event);
    if (m_links.empty())
        return;
    if (event->reason() == Qt::TabFocusReason)
        setFocusedLink(0);
    else if (event->reason() == Qt::BacktabFocusReason)
        setFocusedLink(m_links.size() - 1);
}

void DynamicHeightTextView::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    setFocusedLink({});
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
}

void DynamicHeightTextView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_focusedLink)
        follow(m_links[*m_focusedLink].target);
    else if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::SelectAll))
        QTextEdit::keyPressEvent(event);
    else
        event->ignore();
}

// Mouse

void DynamicHeightTextView::mousePressEvent(QMouseEvent *event)
{
    m_pressedLink =
        event->button() == Qt::LeftButton ? anchorAt(event->position().toPoint()) : QString();
    setFocusedLink({});
    QTextEdit::mousePressEvent(event);
}

void DynamicHeightTextView::mouseMoveEvent(QMouseEvent *event)
{
    QTextEdit::mouseMoveEvent(event);
    const bool isOverLink = !anchorAt(event->position().toPoint()).isEmpty();
    viewport()->setCursor(isOverLink ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void DynamicHeightTextView::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    const QString pressed = std::exchange(m_pressedLink, QString());
    // What ends in a selection was none.
    if (!pressed.isEmpty() && !textCursor().hasSelection() &&
        anchorAt(event->position().toPoint()) == pressed)
        follow(pressed);
}

void DynamicHeightTextView::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void DynamicHeightTextView::contextMenuEvent(QContextMenuEvent *event)
{
    QString link = anchorAt(event->pos());
    if (event->reason() == QContextMenuEvent::Keyboard && m_focusedLink)
        link = m_links[*m_focusedLink].target;
    QMenu menu(this);
    if (!link.isEmpty()) {
        menu.addAction(localized("Copy Link", "menu item"), &menu,
                       [link] { QGuiApplication::clipboard()->setText(pasteableLink(link)); });
    }
    menu.addAction(localized("Copy", "menu item"), QKeySequence::Copy, this, &QTextEdit::copy)
        ->setEnabled(textCursor().hasSelection());
    menu.addAction(localized("Select All", "menu item"), QKeySequence::SelectAll, this,
                   &QTextEdit::selectAll);
    menu.exec(event->globalPos());
}

void DynamicHeightTextView::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    if (!m_focusedLink || !hasFocus())
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
    for (const QRect &rect : linkRects(m_links[*m_focusedLink]))
        painter.drawRoundedRect(QRectF(rect).adjusted(-1, 0, 1, 0), 3, 3);
}

} // namespace Tavrin
