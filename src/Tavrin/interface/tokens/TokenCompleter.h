// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCompleter>
#include <QStringListModel>

#include <Tavrin/interface/tokens/TokenFieldDelegate.h>

namespace Tavrin
{

/// The list of completions below what is being typed in a token field.
///
/// Typing goes on while it is shown. The arrow keys choose, Return and Tab take what is chosen,
/// and Escape closes it.
class TokenCompleter : public QObject
{
    Q_OBJECT

public:
    explicit TokenCompleter(QWidget &field);

    /// Closes it if there are none.
    void show(const TokenFieldDelegate::Completions &completions, const QRect &below);
    void hide();
    bool isShown() const;
    /// Whether one of the list is chosen, so that Return and Tab take it.
    bool hasChoice() const;
    QAbstractItemView *list() const { return m_completer.popup(); }

Q_SIGNALS:
    void chosen(const QString &text);

private:
    QCompleter m_completer;
    QStringListModel m_texts;
};

} // namespace Tavrin
