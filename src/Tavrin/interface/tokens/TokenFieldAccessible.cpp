// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenFieldAccessible.h>

#include <Tavrin/interface/tokens/TokenEditor.h>
#include <Tavrin/interface/tokens/TokenField.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QAccessibleInterface *make(const QString &, QObject *object)
{
    auto *field = qobject_cast<TokenField *>(object);
    return field ? new TokenFieldAccessible(field) : nullptr;
}

/// What a place of the content is read as.
QString spokenAt(const TokenContent &content, qsizetype position)
{
    if (!content.isToken(position))
        return content.text().mid(position, 1);
    const bool isLast = position + 1 == content.size();
    return content.tokenAt(position).displayString + (isLast ? QString() : u", "_s);
}

} // namespace

void TokenFieldAccessible::install()
{
    // Qt keeps a list in which a factory stands once.
    QAccessible::installFactory(make);
}

void TokenFieldAccessible::tellOfContent(TokenField &field)
{
    if (!QAccessible::isActive())
        return;
    const auto *interface = QAccessible::queryAccessibleInterface(&field);
    QAccessibleValueChangeEvent event(&field, interface->text(QAccessible::Value));
    QAccessible::updateAccessibility(&event);
}

void TokenFieldAccessible::tellOfSelection(TokenField &field)
{
    if (!QAccessible::isActive())
        return;
    auto *interface = QAccessible::queryAccessibleInterface(&field);
    auto *text = interface->textInterface();
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    QAccessibleTextSelectionEvent event(&field, start, end);
    event.setCursorPosition(text->cursorPosition());
    QAccessible::updateAccessibility(&event);
}

TokenFieldAccessible::TokenFieldAccessible(TokenField *field)
    : QAccessibleWidget(field, QAccessible::EditableText)
{
}

TokenField &TokenFieldAccessible::field() const
{
    return *static_cast<TokenField *>(object());
}

void *TokenFieldAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State TokenFieldAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.multiLine = true;
    state.selectableText = true;
    state.supportsAutoCompletion = true;
    return state;
}

QString TokenFieldAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return spoken();
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && text.isEmpty() ? field().placeholderText() : text;
}

void TokenFieldAccessible::setText(QAccessible::Text kind, const QString &text)
{
    if (kind != QAccessible::Value)
        return;
    field().editor().selectAll();
    field().editor().insertPastedText(text);
}

// Offsets

QString TokenFieldAccessible::spoken() const
{
    const TokenContent &content = field().editor().content();
    QString result;
    for (qsizetype at = 0; at < content.size(); ++at)
        result += spokenAt(content, at);
    return result;
}

int TokenFieldAccessible::toSpoken(qsizetype position) const
{
    const TokenContent &content = field().editor().content();
    qsizetype offset = 0;
    for (qsizetype at = 0; at < position; ++at)
        offset += spokenAt(content, at).size();
    return static_cast<int>(offset);
}

qsizetype TokenFieldAccessible::fromSpoken(int offset) const
{
    const TokenContent &content = field().editor().content();
    qsizetype at = 0;
    for (qsizetype end = 0; at < content.size(); ++at) {
        end += spokenAt(content, at).size();
        if (end > offset)
            break;
    }
    return at;
}

// Text

void TokenFieldAccessible::selection(int index, int *start, int *end) const
{
    const TextRange selected = index == 0 ? field().editor().selection() : TextRange();
    *start = toSpoken(selected.location);
    *end = toSpoken(selected.end());
}

int TokenFieldAccessible::selectionCount() const
{
    return field().editor().hasSelection() ? 1 : 0;
}

void TokenFieldAccessible::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void TokenFieldAccessible::removeSelection(int)
{
    const qsizetype cursor = field().editor().cursor();
    field().editor().select(cursor, cursor);
}

void TokenFieldAccessible::setSelection(int, int start, int end)
{
    field().editor().select(fromSpoken(start), fromSpoken(end));
}

int TokenFieldAccessible::cursorPosition() const
{
    return toSpoken(field().editor().cursor());
}

void TokenFieldAccessible::setCursorPosition(int position)
{
    setSelection(0, position, position);
}

QString TokenFieldAccessible::text(int start, int end) const
{
    return spoken().mid(start, end - start);
}

int TokenFieldAccessible::characterCount() const
{
    return toSpoken(field().editor().content().size());
}

QRect TokenFieldAccessible::characterRect(int offset) const
{
    const TokenContent &content = field().editor().content();
    const qsizetype position = fromSpoken(offset);
    const QRect rect = content.isToken(position)
                           ? field().tokenRect(static_cast<int>(content.tokenIndex(position)))
                           : field().caretRect(position);
    return {field().viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

int TokenFieldAccessible::offsetAtPoint(const QPoint &point) const
{
    return toSpoken(field().positionAt(field().viewport()->mapFromGlobal(point)));
}

void TokenFieldAccessible::scrollToSubstring(int start, int)
{
    setCursorPosition(start);
}

QString TokenFieldAccessible::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace Tavrin
