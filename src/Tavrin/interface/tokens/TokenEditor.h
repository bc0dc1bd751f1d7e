// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QUndoStack>

#include <memory>
#include <optional>

#include <Tavrin/interface/tokens/TokenContent.h>
#include <Tavrin/interface/tokens/TokenFieldDelegate.h>

namespace Tavrin
{

/// What a TokenField does to its content: cursor and selection, typing, making tokens of text, and
/// undoing it all.
///
/// The selection goes from the anchor to the cursor, in either direction. Main thread.
class TokenEditor : public QObject
{
    Q_OBJECT

public:
    explicit TokenEditor(QObject *parent = nullptr);
    ~TokenEditor() override;

    std::shared_ptr<TokenFieldDelegate> delegate() const { return m_delegate.lock(); }
    /// Not kept alive.
    void setDelegate(const std::weak_ptr<TokenFieldDelegate> &delegate);
    /// Each ends a token when it is typed or pasted. Ends of lines always do.
    const QString &tokenizingCharacters() const { return m_tokenizingCharacters; }
    void setTokenizingCharacters(const QString &characters);

    const TokenContent &content() const { return m_content; }
    /// What the tokens stand for, in order, and what the text between them would.
    QVariantList representedObjects() const;
    /// Forgets what could be undone.
    void setRepresentedObjects(const QVariantList &objects);
    /// As an edit, which can be undone.
    void replaceRepresentedObjects(const QVariantList &objects);
    /// Asks the delegate again how each token shows.
    void reloadTokens();

    qsizetype cursor() const { return m_cursor; }
    qsizetype anchor() const { return m_anchor; }
    TextRange selection() const;
    bool hasSelection() const { return m_cursor != m_anchor; }
    /// The place of the token that is selected alone.
    std::optional<qsizetype> selectedToken() const;
    void select(qsizetype anchor, qsizetype cursor);
    void selectToken(qsizetype position) { select(position, position + 1); }
    void selectAll() { select(0, m_content.size()); }

    // What is inserted goes in place of the selection. Of text that doesn't become a token no more
    // is taken than a line of text would hold, 32,767 units.

    /// Text before a tokenizing character becomes a token, together with
    /// what stands before the cursor.
    void insertTypedText(const QString &text);
    /// The same, but if there is a tokenizing character the last piece becomes a token too.
    void insertPastedText(const QString &text);
    void insert(const TokenContent &content);
    void remove(const TextRange &range);
    /// Takes the selection somewhere else, outside of it.
    void moveSelection(qsizetype to);
    /// Makes tokens of all text. False if there was none.
    bool tokenizeText();
    /// Puts the text of a token into its place, selected.
    void editToken(qsizetype position);

    /// What stands between the last token and the cursor.
    QString completionPrefix() const;
    /// A token in place of that.
    void complete(const QString &editingString);

    /// Tokens by their editing strings, a line each.
    QString editingText(const TextRange &range) const;

    QUndoStack &undoStack() { return m_undoStack; }

Q_SIGNALS:
    /// The content or what it shows.
    void displayChanged();
    /// The content.
    void edited();
    void selectionChanged();

private:
    friend class TokenEditCommand;

    enum class LastPiece { StaysText, BecomesToken };

    void insertText(const QString &text, LastPiece lastPiece);
    /// What there is room for in place of the selection.
    TokenContent fitting(const TokenContent &content) const;
    QStringList split(const QString &text) const;
    QString editingString(const Token &token) const;
    QList<Token> makeTokens(const QStringList &editingStrings) const;
    /// The runs that aren't empty.
    QList<TextRange> textRuns() const;
    /// The content with tokens in place of those.
    TokenContent tokenized(const QList<TextRange> &runs) const;
    void describe(Token &token) const;
    void edit(const TextRange &range, const TokenContent &replacement);
    /// Without a trace in the history.
    void apply(const TextRange &range, const TokenContent &replacement, qsizetype anchor,
               qsizetype cursor);

    std::weak_ptr<TokenFieldDelegate> m_delegate;
    QString m_tokenizingCharacters = QStringLiteral("\n");
    TokenContent m_content;
    qsizetype m_anchor = 0;
    qsizetype m_cursor = 0;
    QUndoStack m_undoStack;
};

} // namespace Tavrin
