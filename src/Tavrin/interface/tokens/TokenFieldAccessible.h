// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

namespace Tavrin
{

class TokenEditor;
class TokenField;

/// What a screen reader learns of a token field: an editable text, in which a token is its display
/// string, and a comma and a blank part it from what follows.
class TokenFieldAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    /// Makes Qt ask this class about token fields. Costs nothing when repeated.
    static void install();
    /// Tell listeners, if there are any.
    static void tellOfContent(TokenField &field);
    static void tellOfSelection(TokenField &field);

    explicit TokenFieldAccessible(TokenField *field);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

private:
    TokenField &field() const;
    QString spoken() const;
    int toSpoken(qsizetype position) const;
    qsizetype fromSpoken(int offset) const;
};

} // namespace Tavrin
