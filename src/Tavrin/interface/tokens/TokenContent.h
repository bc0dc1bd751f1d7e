// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// One token: what it stands for, and how it shows.
struct Token {
    QVariant representedObject;
    /// One line, without control characters.
    QString displayString;
    bool hasMenu = false;
};

/// Text in which tokens stand, as a value.
///
/// A token takes one place of the text, where U+FFFC stands for it, so that all positions are
/// counted in UTF-16 units. Stretches of text between tokens, of which any may be empty, are runs.
class TokenContent
{
public:
    TokenContent() = default;
    /// A run alone. Line ends and tabs become blanks, and other control characters go.
    explicit TokenContent(const QString &text);
    explicit TokenContent(const QList<Token> &tokens);

    const QString &text() const { return m_text; }
    const QList<Token> &tokens() const { return m_tokens; }
    qsizetype size() const { return m_text.size(); }
    bool isEmpty() const { return m_text.isEmpty(); }

    bool isToken(qsizetype position) const;
    /// How many tokens stand before a position: the index of the one at it, if there is one.
    qsizetype tokenIndex(qsizetype position) const;
    qsizetype tokenPosition(qsizetype index) const { return m_positions[index]; }
    const Token &tokenAt(qsizetype position) const { return m_tokens[tokenIndex(position)]; }
    /// The run around a position; at a token, the one before it.
    TextRange run(qsizetype position) const;
    QString textOf(const TextRange &range) const
    {
        return m_text.mid(range.location, range.length);
    }

    TokenContent part(const TextRange &range) const;
    void replace(const TextRange &range, const TokenContent &content);
    void append(const TokenContent &content);
    /// The same token, shown in another way.
    void setToken(qsizetype index, const Token &token) { m_tokens[index] = token; }

    // Where the cursor goes from a position. Tokens are steps of their own, and so are characters
    // as the reader sees them, whatever they are made of.
    qsizetype nextPosition(qsizetype position) const;
    qsizetype previousPosition(qsizetype position) const;
    qsizetype nextWord(qsizetype position) const;
    qsizetype previousWord(qsizetype position) const;

private:
    void findTokens();

    QString m_text;
    QList<Token> m_tokens;
    QList<qsizetype> m_positions;
};

} // namespace Tavrin
