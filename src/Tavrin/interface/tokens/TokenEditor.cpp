// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenEditor.h>

#include <algorithm>
#include <utility>

#include <Tavrin/interface/tokens/TokenEditCommand.h>

namespace Tavrin
{

namespace
{

/// As many steps as a reader would go back.
constexpr int undoLimit = 200;
/// Setting text in lines takes time with its length.
constexpr qsizetype longestText = 32'767;

bool isLineEnd(QChar c)
{
    return (c >= QChar::LineFeed && c <= QChar::CarriageReturn) || c == QChar(0x85) ||
           c == QChar(QChar::LineSeparator) || c == QChar(QChar::ParagraphSeparator);
}

} // namespace

TokenEditor::TokenEditor(QObject *parent) : QObject(parent)
{
    m_undoStack.setUndoLimit(undoLimit);
}

TokenEditor::~TokenEditor() = default;

void TokenEditor::setDelegate(const std::weak_ptr<TokenFieldDelegate> &delegate)
{
    m_delegate = delegate;
    reloadTokens();
}

void TokenEditor::setTokenizingCharacters(const QString &characters)
{
    m_tokenizingCharacters = characters;
}

// Tokens

void TokenEditor::describe(Token &token) const
{
    const auto delegate = m_delegate.lock();
    QString text = delegate ? delegate->displayString(token.representedObject) : QString();
    if (text.isNull())
        text = token.representedObject.toString();
    token.displayString = TokenContent(text).text();
    token.hasMenu = delegate && delegate->hasMenu(token.representedObject);
}

QString TokenEditor::editingString(const Token &token) const
{
    const auto delegate = m_delegate.lock();
    const QString text = delegate ? delegate->editingString(token.representedObject) : QString();
    return text.isNull() ? token.representedObject.toString() : text;
}

QList<Token> TokenEditor::makeTokens(const QStringList &editingStrings) const
{
    QStringList strings;
    for (const QString &string : editingStrings) {
        if (QString trimmed = string.trimmed(); !trimmed.isEmpty())
            strings += std::move(trimmed);
    }
    QVariantList objects;
    if (const auto delegate = m_delegate.lock())
        objects = delegate->representedObjects(strings);
    QList<Token> result;
    result.reserve(strings.size());
    for (qsizetype i = 0; i < strings.size(); ++i) {
        const QVariant object = objects.value(i);
        result += Token{object.isValid() ? object : QVariant(strings[i]), {}, false};
    }
    return result;
}

QList<TextRange> TokenEditor::textRuns() const
{
    QList<TextRange> result;
    if (m_content.tokens().size() == m_content.size())
        return result;
    for (qsizetype at = 0; at <= m_content.size();) {
        const TextRange run = m_content.run(at);
        if (run.length > 0)
            result += run;
        at = run.end() + 1;
    }
    return result;
}

TokenContent TokenEditor::tokenized(const QList<TextRange> &runs) const
{
    QStringList strings;
    for (const TextRange &run : runs)
        strings += m_content.textOf(run);
    const QList<Token> made = makeTokens(strings);
    TokenContent result;
    qsizetype end = 0;
    qsizetype next = 0;
    for (qsizetype i = 0; i < runs.size(); ++i) {
        result.append(m_content.part({end, runs[i].location - end}));
        // Blanks alone make none.
        if (!strings[i].trimmed().isEmpty())
            result.append(TokenContent({made[next++]}));
        end = runs[i].end();
    }
    result.append(m_content.part({end, m_content.size() - end}));
    return result;
}

QVariantList TokenEditor::representedObjects() const
{
    const TokenContent all = tokenized(textRuns());
    QVariantList result;
    result.reserve(all.tokens().size());
    for (const Token &token : all.tokens())
        result += token.representedObject;
    return result;
}

void TokenEditor::setRepresentedObjects(const QVariantList &objects)
{
    replaceRepresentedObjects(objects);
    m_undoStack.clear();
}

void TokenEditor::replaceRepresentedObjects(const QVariantList &objects)
{
    QList<Token> tokens;
    tokens.reserve(objects.size());
    for (const QVariant &object : objects)
        tokens += Token{object, {}, false};
    edit({0, m_content.size()}, TokenContent(tokens));
}

void TokenEditor::reloadTokens()
{
    for (qsizetype i = 0; i < m_content.tokens().size(); ++i) {
        Token token = m_content.tokens()[i];
        describe(token);
        m_content.setToken(i, token);
    }
    Q_EMIT displayChanged();
}

// Selection

TextRange TokenEditor::selection() const
{
    return {std::min(m_anchor, m_cursor), std::abs(m_cursor - m_anchor)};
}

std::optional<qsizetype> TokenEditor::selectedToken() const
{
    const TextRange selected = selection();
    const bool isToken = selected.length == 1 && m_content.isToken(selected.location);
    return isToken ? std::optional(selected.location) : std::nullopt;
}

void TokenEditor::select(qsizetype anchor, qsizetype cursor)
{
    anchor = std::clamp<qsizetype>(anchor, 0, m_content.size());
    cursor = std::clamp<qsizetype>(cursor, 0, m_content.size());
    if (anchor == m_anchor && cursor == m_cursor)
        return;
    m_anchor = anchor;
    m_cursor = cursor;
    Q_EMIT selectionChanged();
}

// Edits

void TokenEditor::apply(const TextRange &range, const TokenContent &replacement, qsizetype anchor,
                        qsizetype cursor)
{
    // What tokens show may have changed since they were last here.
    TokenContent described = replacement;
    for (qsizetype i = 0; i < described.tokens().size(); ++i) {
        Token token = described.tokens()[i];
        describe(token);
        described.setToken(i, token);
    }
    m_content.replace(range, described);
    m_anchor = anchor;
    m_cursor = cursor;
    Q_EMIT displayChanged();
    Q_EMIT edited();
    Q_EMIT selectionChanged();
}

void TokenEditor::edit(const TextRange &range, const TokenContent &replacement)
{
    if (range.length > 0 || !replacement.isEmpty())
        m_undoStack.push(new TokenEditCommand(*this, range, replacement));
}

QStringList TokenEditor::split(const QString &text) const
{
    QStringList pieces(1);
    for (const QChar c : text) {
        if (isLineEnd(c) || m_tokenizingCharacters.contains(c))
            pieces += QString();
        else
            pieces.last() += c;
    }
    return pieces;
}

void TokenEditor::insertTypedText(const QString &text)
{
    insertText(text, LastPiece::StaysText);
}

void TokenEditor::insertPastedText(const QString &text)
{
    insertText(text, LastPiece::BecomesToken);
}

void TokenEditor::insertText(const QString &text, LastPiece lastPiece)
{
    QStringList pieces = split(text);
    TextRange range = selection();
    if (pieces.size() == 1) {
        edit(range, fitting(TokenContent(text)));
        return;
    }
    const qsizetype begin = m_content.run(range.location).location;
    pieces.first().prepend(m_content.textOf({begin, range.location - begin}));
    range = {begin, range.end() - begin};
    const QString rest = lastPiece == LastPiece::StaysText ? pieces.takeLast() : QString();
    TokenContent replacement(makeTokens(pieces));
    replacement.append(fitting(TokenContent(rest)));
    edit(range, replacement);
}

TokenContent TokenEditor::fitting(const TokenContent &content) const
{
    const qsizetype others = m_content.size() - m_content.tokens().size() - selection().length;
    const qsizetype room = std::max<qsizetype>(longestText - others, 0);
    const qsizetype texts = content.size() - content.tokens().size();
    if (texts <= room)
        return content;
    // Cut between characters. Tokens beyond that go too: only forged data has so much text.
    const qsizetype end = content.previousPosition(std::min(content.size(), room + 1));
    return content.part({0, end});
}

void TokenEditor::insert(const TokenContent &content)
{
    edit(selection(), fitting(content));
}

void TokenEditor::remove(const TextRange &range)
{
    edit(range, {});
}

void TokenEditor::moveSelection(qsizetype to)
{
    const TextRange from = selection();
    if (from.length == 0 || (to >= from.location && to <= from.end()))
        return;
    const TokenContent moved = m_content.part(from);
    if (to > from.end())
        to -= from.length;
    m_undoStack.beginMacro({});
    edit(from, {});
    edit({to, 0}, moved);
    m_undoStack.endMacro();
    select(to, to + moved.size());
}

bool TokenEditor::tokenizeText()
{
    const QList<TextRange> runs = textRuns();
    // One run is replaced alone, which is the usual case.
    if (runs.size() == 1)
        edit(runs.front(), TokenContent(makeTokens({m_content.textOf(runs.front())})));
    else if (runs.size() > 1)
        edit({0, m_content.size()}, tokenized(runs));
    return !runs.isEmpty();
}

void TokenEditor::editToken(qsizetype position)
{
    const TokenContent text(editingString(m_content.tokenAt(position)));
    edit({position, 1}, text);
    select(position, position + text.size());
}

QString TokenEditor::completionPrefix() const
{
    const qsizetype begin = m_content.run(m_cursor).location;
    return m_content.textOf({begin, m_cursor - begin});
}

void TokenEditor::complete(const QString &editingString)
{
    const qsizetype begin = m_content.run(m_cursor).location;
    edit({begin, m_cursor - begin}, TokenContent(makeTokens({editingString})));
}

QString TokenEditor::editingText(const TextRange &range) const
{
    QStringList lines;
    const TokenContent part = m_content.part(range);
    for (qsizetype at = 0; at <= part.size();) {
        const TextRange run = part.run(at);
        if (run.length > 0)
            lines += part.textOf(run);
        if (run.end() < part.size())
            lines += editingString(part.tokenAt(run.end()));
        at = run.end() + 1;
    }
    return lines.join(QChar::LineFeed);
}

} // namespace Tavrin
