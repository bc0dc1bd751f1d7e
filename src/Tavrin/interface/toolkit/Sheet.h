// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

#include <Tavrin/WidgetsExport.h>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace Tavrin
{

/// A dialog that belongs to one window and blocks that window alone: a message, what explains it, a
/// view of the caller's, and buttons.
///
/// It is shown by begin(), which returns at once, and deletes itself when it has ended. Main
/// thread.
///
/// With a view of its own and buttons within that view:
///
/// \snippet citing/main.cpp choose
class TAVRIN_WIDGETS_EXPORT Sheet : public QDialog
{
    Q_OBJECT

public:
    /// What a button or the caller ended it with. An int of addButton() or end(), or
    /// QDialog::Rejected.
    using Completion = std::function<void(int result)>;

    /// `window` may be any widget of the window. Nothing is shown before begin().
    explicit Sheet(QWidget &window);
    ~Sheet() override;

    /// Becomes the title of the dialog, too; an empty one takes no room.
    void setMessageText(const QString &text);
    QString messageText() const;
    /// Smaller, below the message; texts can be selected, and long ones scroll.
    void setInformativeText(const QString &text);
    QString informativeText() const;
    /// Between the texts and the buttons; takes the room that is left.
    ///
    /// Set once; it goes with the sheet.
    void setAccessoryView(std::unique_ptr<QWidget> view);
    /// From the right to the left, as the platform orders them. The first one is the default.
    ///
    /// The button is the sheet's.
    QPushButton *addButton(const QString &title, int result);

    /// Whether Escape and the window's frame end it, as rejected. They do, unless it is set.
    void setEndsOnEscape(bool ends) { m_endsOnEscape = ends; }

    /// Shows it over its window.
    ///
    /// Not called if the window goes before the sheet has ended.
    void begin(Completion completion = {});
    /// Takes it off the screen, then calls the completion. Once.
    ///
    /// Later calls do nothing. The completion may begin another sheet.
    void end(int result);

    /// The usual case: a message and one button that dismisses it.
    static Sheet *showMessage(QWidget &window, const QString &message,
                              const QString &informativeText = {});

    void reject() override;

private:
    QLabel *m_message;
    QLabel *m_informative;
    QBoxLayout *m_contents;
    QBoxLayout *m_buttons;
    Completion m_completion;
    bool m_endsOnEscape = true;
    bool m_isEnding = false;
};

} // namespace Tavrin
