// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/interface/toolkit/ViewController.h>

namespace Tavrin
{

class SpecErrorViewController;

/// Hears of the button of an error view. Held weakly; main thread.
class TAVRIN_WIDGETS_EXPORT SpecErrorViewControllerDelegate
{
public:
    virtual ~SpecErrorViewControllerDelegate();
    /// The view may be put away now.
    virtual void specErrorViewControllerButtonPressed(SpecErrorViewController &controller) = 0;
};

/// Says why there is nothing to show, with a button that does something about it. Main thread.
///
/// SpecificationManager::makeNoSpecsController gives one that leads to the import.
class TAVRIN_WIDGETS_EXPORT SpecErrorViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString messageString READ messageString NOTIFY changed)
    Q_PROPERTY(QString buttonString READ buttonString NOTIFY changed)
    Q_PROPERTY(bool buttonIsHidden READ buttonIsHidden NOTIFY changed)

public:
    explicit SpecErrorViewController(QObject *parent = nullptr);
    ~SpecErrorViewController() override;

    /// In the user's language; empty at first.
    const QString &messageText() const { return m_messageText; }
    void setMessageText(const QString &text);
    /// Without one there is no button.
    const QString &buttonTitle() const { return m_buttonTitle; }
    void setButtonTitle(const QString &title);

    /// Not kept alive.
    std::shared_ptr<SpecErrorViewControllerDelegate> delegate() const { return m_delegate.lock(); }
    void setDelegate(const std::weak_ptr<SpecErrorViewControllerDelegate> &delegate)
    {
        m_delegate = delegate;
    }

    // What the view shows.
    const QString &messageString() const { return m_messageText; }
    const QString &buttonString() const { return m_buttonTitle; }
    bool buttonIsHidden() const { return m_buttonTitle.isEmpty(); }

    /// Tells the delegate, if there is one.
    void buttonPressed();

Q_SIGNALS:
    /// Message or button have changed; the view has followed.
    void changed();

protected:
    std::unique_ptr<QWidget> loadView() override;

private:
    QString m_messageText;
    QString m_buttonTitle;
    std::weak_ptr<SpecErrorViewControllerDelegate> m_delegate;
};

} // namespace Tavrin
