// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

class QPlainTextEdit;

namespace Tavrin
{

/// A cell for a long value: a text that scrolls within its row. The mouse goes through it to the
/// table below, but for the scroll bar; the wheel scrolls the text only in the table's current
/// cell, so that a table that is scrolled never stops at a text.
class BrowserTextViewCell : public QWidget
{
    Q_OBJECT

public:
    explicit BrowserTextViewCell(QWidget *parent);

    QPlainTextEdit *textView() const { return m_textView; }

    const QString &text() const { return m_text; }
    /// From its beginning. What is far longer than anyone scrolls through in a cell is not shown.
    void setText(const QString &text);
    /// How the row is painted below.
    void setAppearance(const QColor &color, bool isCurrent);
    /// By so many steps of the scroll bar.
    void scrollBy(int steps);

private:
    QPlainTextEdit *m_textView;
    QString m_text;
};

} // namespace Tavrin
