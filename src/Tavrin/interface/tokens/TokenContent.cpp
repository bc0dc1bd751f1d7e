// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenContent.h>

#include <QTextBoundaryFinder>

#include <algorithm>

namespace Tavrin
{

namespace
{

constexpr QChar tokenCharacter(QChar::ObjectReplacementCharacter);

QString singleLine(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c.isSpace())
            result += c == QChar(QChar::Nbsp) ? c : QChar(QChar::Space);
        else if (c.category() != QChar::Other_Control && c != tokenCharacter)
            result += c;
    }
    return result;
}

/// The boundary next to a position, of which `accept` may refuse some.
template <class Accept>
qsizetype boundary(QTextBoundaryFinder &finder, qsizetype from, bool forward, const Accept &accept)
{
    finder.setPosition(from);
    qsizetype at = from;
    do
        at = forward ? finder.toNextBoundary() : finder.toPreviousBoundary();
    while (at >= 0 && !accept(finder));
    return at;
}

bool isWordStart(const QTextBoundaryFinder &finder)
{
    return finder.boundaryReasons().testFlag(QTextBoundaryFinder::StartOfItem);
}

} // namespace

TokenContent::TokenContent(const QString &text) : m_text(singleLine(text)) {}

TokenContent::TokenContent(const QList<Token> &tokens)
    : m_text(tokens.size(), tokenCharacter), m_tokens(tokens)
{
    findTokens();
}

bool TokenContent::isToken(qsizetype position) const
{
    return position >= 0 && position < size() && m_text[position] == tokenCharacter;
}

qsizetype TokenContent::tokenIndex(qsizetype position) const
{
    return std::lower_bound(m_positions.begin(), m_positions.end(), position) - m_positions.begin();
}

TextRange TokenContent::run(qsizetype position) const
{
    const qsizetype next = tokenIndex(position);
    const qsizetype begin = next == 0 ? 0 : m_positions[next - 1] + 1;
    const qsizetype end = next == m_positions.size() ? size() : m_positions[next];
    return {begin, end - begin};
}

TokenContent TokenContent::part(const TextRange &range) const
{
    TokenContent result;
    result.m_text = m_text.mid(range.location, range.length);
    const qsizetype first = tokenIndex(range.location);
    result.m_tokens = m_tokens.mid(first, tokenIndex(range.end()) - first);
    result.findTokens();
    return result;
}

void TokenContent::replace(const TextRange &range, const TokenContent &content)
{
    const qsizetype first = tokenIndex(range.location);
    const qsizetype last = tokenIndex(range.end());
    m_text.replace(range.location, range.length, content.m_text);
    m_tokens = m_tokens.first(first) + content.m_tokens + m_tokens.mid(last);
    findTokens();
}

void TokenContent::append(const TokenContent &content)
{
    const qsizetype end = size();
    m_text += content.m_text;
    m_tokens += content.m_tokens;
    for (const qsizetype position : content.m_positions)
        m_positions += end + position;
}

void TokenContent::findTokens()
{
    m_positions.clear();
    m_positions.reserve(m_tokens.size());
    for (qsizetype at = m_text.indexOf(tokenCharacter); at >= 0;
         at = m_text.indexOf(tokenCharacter, at + 1))
        m_positions += at;
}

// Steps

qsizetype TokenContent::nextPosition(qsizetype position) const
{
    if (position >= size() || isToken(position))
        return std::min(position + 1, size());
    // A mark that follows a token is no part of it, so runs are looked at alone.
    const TextRange around = run(position);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, textOf(around));
    return around.location +
           boundary(finder, position - around.location, true, [](const auto &) { return true; });
}

qsizetype TokenContent::previousPosition(qsizetype position) const
{
    if (position <= 0 || isToken(position - 1))
        return std::max<qsizetype>(position - 1, 0);
    const TextRange around = run(position);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, textOf(around));
    return around.location +
           boundary(finder, position - around.location, false, [](const auto &) { return true; });
}

qsizetype TokenContent::nextWord(qsizetype position) const
{
    if (position >= size() || isToken(position))
        return std::min(position + 1, size());
    const TextRange around = run(position);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, textOf(around));
    const qsizetype found = boundary(finder, position - around.location, true, isWordStart);
    return found < 0 ? around.end() : around.location + found;
}

qsizetype TokenContent::previousWord(qsizetype position) const
{
    if (position <= 0 || isToken(position - 1))
        return std::max<qsizetype>(position - 1, 0);
    const TextRange around = run(position);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, textOf(around));
    const qsizetype found = boundary(finder, position - around.location, false, isWordStart);
    return found < 0 ? around.location : around.location + found;
}

} // namespace Tavrin
