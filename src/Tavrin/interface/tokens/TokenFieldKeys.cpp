// SPDX-License-Identifier: Apache-2.0
// What the user does to a TokenField by keys, input methods and the clipboard.
#include <Tavrin/interface/tokens/TokenField.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMimeData>

#include <algorithm>

#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <Tavrin/interface/tokens/TokenLayout.h>
#include <Tavrin/interface/tokens/TokenMimeData.h>

namespace Tavrin
{

// Clipboard and history

void TokenField::undo()
{
    m_completer->hide();
    m_editor->undoStack().undo();
}

void TokenField::redo()
{
    m_completer->hide();
    m_editor->undoStack().redo();
}

void TokenField::copy() const
{
    const TextRange selected = m_editor->selection();
    if (selected.length == 0)
        return;
    auto mimeData =
        TokenMimeData::make(m_editor->content().part(selected), m_editor->editingText(selected));
    QApplication::clipboard()->setMimeData(mimeData.release());
}

void TokenField::cut()
{
    copy();
    m_editor->remove(m_editor->selection());
}

void TokenField::paste()
{
    m_completer->hide();
    if (const QMimeData *mimeData = QApplication::clipboard()->mimeData())
        insertFrom(*mimeData);
}

void TokenField::insertFrom(const QMimeData &mimeData)
{
    if (const auto content = TokenMimeData::read(mimeData))
        m_editor->insert(*content);
    else if (mimeData.hasText())
        m_editor->insertPastedText(mimeData.text());
}

void TokenField::selectAll()
{
    m_completer->hide();
    m_editor->selectAll();
}

// Keys

void TokenField::keyPressEvent(QKeyEvent *event)
{
    if (handleHistoryAndClipboard(event) || handleMove(event) || handleDelete(event) ||
        handleOther(event))
        event->accept();
    else
        event->ignore();
}

bool TokenField::handleHistoryAndClipboard(QKeyEvent *event)
{
    struct Command {
        QKeySequence::StandardKey key;
        void (*run)(TokenField &);
    };
    static constexpr Command commands[] = {
        {QKeySequence::Undo, [](TokenField &field) { field.undo(); }},
        {QKeySequence::Redo, [](TokenField &field) { field.redo(); }},
        {QKeySequence::Cut, [](TokenField &field) { field.cut(); }},
        {QKeySequence::Copy, [](TokenField &field) { field.copy(); }},
        {QKeySequence::Paste, [](TokenField &field) { field.paste(); }},
        {QKeySequence::SelectAll, [](TokenField &field) { field.selectAll(); }},
    };
    for (const Command &command : commands) {
        if (event->matches(command.key)) {
            command.run(*this);
            return true;
        }
    }
    return false;
}

void TokenField::moveTo(qsizetype position, bool select)
{
    m_completer->hide();
    m_editor->select(select ? m_editor->anchor() : position, position);
}

void TokenField::step(bool forward, bool byWord, bool select)
{
    const TokenContent &content = m_editor->content();
    const qsizetype from = m_editor->cursor();
    if (m_editor->hasSelection() && !select && !byWord) {
        const TextRange selected = m_editor->selection();
        moveTo(forward ? selected.end() : selected.location, false);
        return;
    }
    const qsizetype to = byWord    ? forward ? content.nextWord(from) : content.previousWord(from)
                            : forward ? content.nextPosition(from)
                                   : content.previousPosition(from);
    // A token is selected on the way across it, so that keys reach its menu.
    if (!select && !byWord && content.isToken(std::min(from, to)) && from != to)
        m_editor->select(from, to);
    else
        moveTo(to, select);
}

void TokenField::stepRow(int rows, bool select)
{
    const QRectF caret = m_layout->caretRect(m_editor->cursor());
    moveTo(m_layout->positionAt(caret.center() + QPointF(0, rows * m_layout->rowHeight())), select);
}

bool TokenField::handleMove(QKeyEvent *event)
{
    struct Motion {
        QKeySequence::StandardKey move;
        QKeySequence::StandardKey select;
        void (*run)(TokenField &, bool select);
    };
    static constexpr Motion motions[] = {
        {QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar,
         [](TokenField &f, bool s) { f.step(!f.isRightToLeft(), false, s); }},
        {QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar,
         [](TokenField &f, bool s) { f.step(f.isRightToLeft(), false, s); }},
        {QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord,
         [](TokenField &f, bool s) { f.step(!f.isRightToLeft(), true, s); }},
        {QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord,
         [](TokenField &f, bool s) { f.step(f.isRightToLeft(), true, s); }},
        {QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine,
         [](TokenField &f, bool s) { f.stepRow(-1, s); }},
        {QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine,
         [](TokenField &f, bool s) { f.moveTo(f.rowEdge(false), s); }},
        {QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine,
         [](TokenField &f, bool s) { f.moveTo(f.rowEdge(true), s); }},
        {QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument,
         [](TokenField &f, bool s) { f.moveTo(0, s); }},
        {QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument,
         [](TokenField &f, bool s) { f.moveTo(f.m_editor->content().size(), s); }},
    };
    for (const Motion &motion : motions) {
        const bool isSelecting = event->matches(motion.select);
        if (isSelecting || event->matches(motion.move)) {
            motion.run(*this, isSelecting);
            return true;
        }
    }
    // Below the last row is the list.
    const bool isSelecting = event->matches(QKeySequence::SelectNextLine);
    if (!isSelecting && !event->matches(QKeySequence::MoveToNextLine))
        return false;
    const QRectF caret = m_layout->caretRect(m_editor->cursor());
    if (!isSelecting && caret.bottom() + m_layout->rowHeight() > m_layout->height())
        complete();
    else
        stepRow(1, isSelecting);
    return true;
}

qsizetype TokenField::rowEdge(bool end) const
{
    const qreal far = 2 * viewport()->width();
    const QRectF caret = m_layout->caretRect(m_editor->cursor());
    return m_layout->positionAt({end != isRightToLeft() ? far : -far, caret.center().y()});
}

void TokenField::removeTo(qsizetype position)
{
    const qsizetype cursor = m_editor->cursor();
    m_editor->remove(m_editor->hasSelection()
                         ? m_editor->selection()
                         : TextRange{std::min(cursor, position), std::abs(cursor - position)});
    m_completionTimer.start();
}

bool TokenField::handleDelete(QKeyEvent *event)
{
    const TokenContent &content = m_editor->content();
    const qsizetype cursor = m_editor->cursor();
    const bool isBackspace = event->key() == Qt::Key_Backspace &&
                             (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    if (event->matches(QKeySequence::DeleteStartOfWord))
        removeTo(content.previousWord(cursor));
    else if (event->matches(QKeySequence::DeleteEndOfWord))
        removeTo(content.nextWord(cursor));
    else if (event->matches(QKeySequence::Delete))
        removeTo(content.nextPosition(cursor));
    else if (isBackspace)
        removeTo(content.previousPosition(cursor));
    else
        return false;
    return true;
}

bool TokenField::handleOther(QKeyEvent *event)
{
    const int key = event->key();
    const bool isPlain = event->modifiers() == Qt::NoModifier;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        m_completer->hide();
        // With nothing left to confirm the key is the window's.
        const bool confirmed = m_editor->tokenizeText();
        Q_EMIT editingFinished();
        return confirmed;
    }
    if (key == Qt::Key_F2 && isPlain && m_editor->selectedToken()) {
        m_editor->editToken(*m_editor->selectedToken());
        return true;
    }
    if ((key == Qt::Key_F5 && isPlain) ||
        (key == Qt::Key_Space && event->modifiers() == Qt::ControlModifier)) {
        complete();
        return true;
    }
    if (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        QContextMenuEvent wanted(QContextMenuEvent::Keyboard, caretRect().bottomLeft(),
                                 viewport()->mapToGlobal(caretRect().bottomLeft()));
        contextMenuEvent(&wanted);
        return true;
    }
    const QString text = event->text();
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier) &&
                           !(event->modifiers() & Qt::AltModifier);
    if (text.isEmpty() || isCommand || !(text[0].isPrint() || text[0] == QChar::Tabulation))
        return false;
    m_editor->insertTypedText(text);
    m_completionTimer.start();
    return true;
}

// Input methods

void TokenField::inputMethodEvent(QInputMethodEvent *event)
{
    if (!isEnabled()) {
        event->ignore();
        return;
    }
    const bool isEdit = !event->commitString().isEmpty() || event->replacementLength() > 0;
    if (isEdit || (m_editor->hasSelection() && !event->preeditString().isEmpty()))
        m_editor->remove(m_editor->selection());
    if (event->replacementLength() > 0) {
        // Counted from the cursor, and never beyond the run.
        const TextRange run = m_editor->content().run(m_editor->cursor());
        const qsizetype from = m_editor->cursor() + event->replacementStart();
        const qsizetype begin = std::clamp(from, run.location, run.end());
        const qsizetype end = std::clamp(from + event->replacementLength(), begin, run.end());
        m_editor->remove({begin, end - begin});
    }
    m_preedit = {event->preeditString(), static_cast<int>(event->preeditString().size()), {}};
    for (const auto &attribute : event->attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) {
            m_preedit.cursor = std::clamp(attribute.start, 0, m_preedit.cursor);
        } else if (attribute.type == QInputMethodEvent::TextFormat) {
            const auto format = attribute.value.value<QTextFormat>().toCharFormat();
            m_preedit.formats += {attribute.start, attribute.length, format};
        }
    }
    if (!event->commitString().isEmpty()) {
        m_editor->insertTypedText(event->commitString());
        m_completionTimer.start();
    }
    layOut();
    ensureCaretVisible();
    updateMicroFocus();
    event->accept();
}

QVariant TokenField::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const TokenContent &content = m_editor->content();
    // Input methods see the text that is being typed, and no tokens.
    const TextRange run = content.run(m_editor->cursor());
    const qsizetype cursor = m_editor->cursor() - run.location;
    const qsizetype anchor = std::clamp(m_editor->anchor(), run.location, run.end()) - run.location;
    switch (query) {
    case Qt::ImEnabled:
        return isEnabled();
    case Qt::ImCursorRectangle:
    case Qt::ImAnchorRectangle:
        return QRect(viewport()->mapTo(this, caretRect().topLeft()), caretRect().size());
    case Qt::ImFont:
        return font();
    case Qt::ImCursorPosition:
        return static_cast<int>(cursor);
    case Qt::ImAnchorPosition:
        return static_cast<int>(anchor);
    case Qt::ImSurroundingText:
        return content.textOf(run);
    case Qt::ImCurrentSelection:
        return content.textOf({run.location + std::min(cursor, anchor), std::abs(cursor - anchor)});
    default:
        return QAbstractScrollArea::inputMethodQuery(query);
    }
}

} // namespace Tavrin
