// SPDX-License-Identifier: Apache-2.0
// Value, layout, drawing and completion. What the user does is in TokenFieldKeys.cpp and
// TokenFieldMouse.cpp.
#include <Tavrin/interface/tokens/TokenField.h>

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionFrame>

#include <algorithm>
#include <cmath>

#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <Tavrin/interface/tokens/TokenFieldAccessible.h>
#include <Tavrin/interface/tokens/TokenLayout.h>
#include <Tavrin/interface/tokens/TokenPainter.h>

namespace Tavrin
{

namespace
{

constexpr QMargins viewportInsets(3, 1, 3, 1);
/// Where the caret of an empty field stands.
constexpr int textInset = 2;
/// The hint, in average characters.
constexpr int usualWidth = 40;
constexpr int smallestWidth = 12;

} // namespace

TokenField::TokenField(QWidget *parent)
    : QAbstractScrollArea(parent),
      m_editor(std::make_unique<TokenEditor>()),
      m_layout(std::make_unique<TokenLayout>()),
      m_completer(std::make_unique<TokenCompleter>(*this))
{
    TokenFieldAccessible::install();
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setViewportMargins(viewportInsets);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAcceptDrops(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // The frame's panel is the background.
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::IBeamCursor);
    m_layout->setFont(font());
    m_layout->setDirection(layoutDirection());
    m_completionTimer.setSingleShot(true);
    m_completionTimer.setInterval(0);
    connect(&m_completionTimer, &QTimer::timeout, this, &TokenField::updateCompletions);
    connect(&m_caretTimer, &QTimer::timeout, this, [this] {
        m_isCaretOn = !m_isCaretOn;
        viewport()->update(caretRect());
    });
    connect(m_completer.get(), &TokenCompleter::chosen, this, &TokenField::takeCompletion);
    connect(m_editor.get(), &TokenEditor::displayChanged, this, &TokenField::layOut);
    connect(m_editor.get(), &TokenEditor::edited, this, [this] {
        Q_EMIT objectValueChanged();
        TokenFieldAccessible::tellOfContent(*this);
    });
    connect(m_editor.get(), &TokenEditor::selectionChanged, this, [this] {
        restartCaret();
        ensureCaretVisible();
        updateMicroFocus();
        TokenFieldAccessible::tellOfSelection(*this);
    });
}

TokenField::~TokenField() = default;

// Value

std::shared_ptr<TokenFieldDelegate> TokenField::delegate() const
{
    return m_editor->delegate();
}

void TokenField::setDelegate(const std::weak_ptr<TokenFieldDelegate> &delegate)
{
    m_editor->setDelegate(delegate);
}

namespace
{

QVariantList listOf(const QVariant &value)
{
    if (!value.isValid())
        return {};
    const bool isList = value.metaType() == QMetaType::fromType<QVariantList>() ||
                        value.metaType() == QMetaType::fromType<QStringList>();
    return isList ? value.toList() : QVariantList{value};
}

} // namespace

QVariant TokenField::objectValue() const
{
    return m_editor->representedObjects();
}

void TokenField::setObjectValue(const QVariant &value)
{
    m_completer->hide();
    m_editor->setRepresentedObjects(listOf(value));
}

void TokenField::editObjectValue(const QVariant &value)
{
    m_completer->hide();
    m_editor->replaceRepresentedObjects(listOf(value));
}

void TokenField::reloadTokens()
{
    m_editor->reloadTokens();
}

const QString &TokenField::tokenizingCharacters() const
{
    return m_editor->tokenizingCharacters();
}

void TokenField::setTokenizingCharacters(const QString &characters)
{
    m_editor->setTokenizingCharacters(characters);
}

void TokenField::setPlaceholderText(const QString &text)
{
    m_placeholderText = text;
    viewport()->update();
}

void TokenField::setMaximumVisibleRows(int rows)
{
    m_maximumVisibleRows = std::max(rows, 1);
    updateGeometry();
}

int TokenField::tokenCount() const
{
    return static_cast<int>(m_editor->content().tokens().size());
}

QRect TokenField::tokenRect(int index) const
{
    if (index < 0 || index >= tokenCount())
        return {};
    return toViewport(
        m_layout->chipRect(*m_layout->pieceAt(m_editor->content().tokenPosition(index))));
}

void TokenField::selectToken(int index)
{
    if (index >= 0 && index < tokenCount())
        m_editor->selectToken(m_editor->content().tokenPosition(index));
}

// Layout

void TokenField::layOut()
{
    m_layout->layOut(m_editor->content(), {m_preedit.text, m_editor->cursor(), m_preedit.formats},
                     viewport()->width());
    const int rows = std::min(m_layout->rowCount(), m_maximumVisibleRows);
    if (rows != m_rowsOfHint) {
        m_rowsOfHint = rows;
        updateGeometry();
    }
    updateScrollBar();
    viewport()->update();
}

void TokenField::updateScrollBar()
{
    const int hidden = static_cast<int>(std::ceil(m_layout->height())) - viewport()->height();
    verticalScrollBar()->setRange(0, std::max(hidden, 0));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(static_cast<int>(m_layout->rowHeight()));
}

int TokenField::heightOfRows(int rows) const
{
    return static_cast<int>(std::ceil(rows * m_layout->rowHeight())) + viewportInsets.top() +
           viewportInsets.bottom() + 2 * frameWidth();
}

QSize TokenField::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * usualWidth, heightOfRows(m_rowsOfHint)};
}

QSize TokenField::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * smallestWidth, heightOfRows(1)};
}

QPointF TokenField::toLayout(const QPointF &inViewport) const
{
    return inViewport + QPointF(0, verticalScrollBar()->value());
}

QRect TokenField::toViewport(const QRectF &inLayout) const
{
    return inLayout.translated(0, -verticalScrollBar()->value()).toAlignedRect();
}

QRect TokenField::caretRect() const
{
    return toViewport(m_layout->caretRect(m_editor->cursor(), m_preedit.cursor));
}

QRect TokenField::caretRect(qsizetype position) const
{
    return toViewport(m_layout->caretRect(position));
}

qsizetype TokenField::positionAt(const QPoint &point) const
{
    return m_layout->positionAt(toLayout(point));
}

void TokenField::ensureCaretVisible()
{
    QScrollBar *bar = verticalScrollBar();
    const QRect caret = caretRect();
    const int above = -caret.top();
    const int below = caret.bottom() + 1 - viewport()->height();
    if (above > 0)
        bar->setValue(bar->value() - above - static_cast<int>(m_layout->rowHeight()) / 2);
    else if (below > 0)
        bar->setValue(bar->value() + below + viewportInsets.bottom() + 1);
    viewport()->update();
}

void TokenField::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void TokenField::scrollContentsBy(int, int)
{
    viewport()->update();
    updateMicroFocus();
}

void TokenField::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::LayoutDirectionChange) {
        m_layout->setFont(font());
        m_layout->setDirection(layoutDirection());
        layOut();
        updateGeometry();
    }
}

// Drawing

bool TokenField::event(QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        drawFrame();
        return true;
    }
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && m_completer->hasChoice()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        // These are the list's, which takes what nobody wants.
        if (key == Qt::Key_Tab || key == Qt::Key_Return || key == Qt::Key_Enter) {
            event->ignore();
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

void TokenField::drawFrame()
{
    QPainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = frameWidth();
    option.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
}

void TokenField::drawPlaceholder(QPainter &painter) const
{
    const QRect room = viewport()->rect().adjusted(textInset, 0, -textInset, 0);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(room,
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) |
                                      Qt::AlignVCenter) |
                         Qt::TextSingleLine,
                     fontMetrics().elidedText(m_placeholderText, Qt::ElideRight, room.width()));
}

void TokenField::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    if (m_editor->content().isEmpty() && m_preedit.text.isEmpty())
        drawPlaceholder(painter);
    const bool showsSelection = hasFocus() || QApplication::activePopupWidget();
    TokenPainter::Look look{palette(), std::nullopt, m_hoveredMenu};
    look.palette.setCurrentColorGroup(!isEnabled()       ? QPalette::Disabled
                                      : isActiveWindow() ? QPalette::Active
                                                         : QPalette::Inactive);
    if (showsSelection && m_editor->hasSelection())
        look.selection = m_editor->selection();
    const int scrolled = verticalScrollBar()->value();
    painter.translate(0, -scrolled);
    TokenPainter(*m_layout, m_editor->content(), look)
        .draw(painter, QRectF(event->rect()).translated(0, scrolled));
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const bool showsCaret = hasFocus() && m_isCaretOn && !m_editor->hasSelection();
    if (m_dropPosition)
        painter.fillRect(toViewport(m_layout->caretRect(*m_dropPosition)), palette().text());
    else if (showsCaret && isEnabled())
        painter.fillRect(caretRect(), palette().text());
}

void TokenField::restartCaret()
{
    m_isCaretOn = true;
    const int period = QApplication::cursorFlashTime() / 2;
    if (hasFocus() && period > 0)
        m_caretTimer.start(period);
    else
        m_caretTimer.stop();
}

// Focus

void TokenField::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    restartCaret();
    update();
    viewport()->update();
}

void TokenField::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    restartCaret();
    update();
    viewport()->update();
    // A menu or another window takes it for a while only.
    const auto reason = event->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
        reason == Qt::MenuBarFocusReason)
        return;
    m_completer->hide();
    tokenizeText();
    Q_EMIT editingFinished();
}

// Completion

void TokenField::updateCompletions()
{
    if (m_editor->completionPrefix().isEmpty())
        m_completer->hide();
    else
        complete();
}

void TokenField::complete()
{
    m_completionTimer.stop();
    const auto delegate = m_editor->delegate();
    if (!delegate || !isEnabled() || m_editor->hasSelection() || !m_preedit.text.isEmpty()) {
        m_completer->hide();
        return;
    }
    const auto completions = delegate->completions(m_editor->completionPrefix());
    // Below the last row, below the frame.
    const QPoint caret = viewport()->mapTo(this, caretRect().bottomLeft());
    const bool isLast = caret.y() + m_layout->rowHeight() > viewport()->geometry().bottom();
    const int bottom = isLast ? height() - 1 : caret.y() + 1;
    const QRect row(QPoint(0, bottom - caretRect().height()), QPoint(width() - 1, bottom));
    m_completer->show(completions, row);
}

void TokenField::takeCompletion(const QString &text)
{
    m_completer->hide();
    m_editor->complete(text);
}

void TokenField::tokenizeText()
{
    m_editor->tokenizeText();
}

} // namespace Tavrin
