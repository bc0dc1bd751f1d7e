// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

#include <Tavrin/WidgetsExport.h>
#include <Tavrin/model/ViewControllerPtr.h>

namespace Tavrin
{

/// Makes one view, and hears when it comes and goes.
///
/// The view is made when it is first asked for. It may be put anywhere in a window; it goes with
/// the window or with its controller, whichever ends first. Main thread.
///
/// Controllers that others hold, hand on or are told of as delegates live in a std::shared_ptr.
///
/// A host that displays one keeps the controller as long as the view is to be seen, and the former
/// one until the call that replaces it has returned, since a click in it may have led there:
///
/// \snippet minimal/main.cpp display
class TAVRIN_WIDGETS_EXPORT ViewController : public QObject,
                                             public std::enable_shared_from_this<ViewController>
{
    Q_OBJECT

public:
    explicit ViewController(QObject *parent = nullptr);
    ~ViewController() override;

    /// The view, made now if need be; null only after a window took it along when it closed.
    ///
    /// It has no parent at first: whoever puts it into a window gives it one. Deleting the
    /// controller deletes it there.
    QWidget *view();
    bool isViewLoaded() const { return !m_view.isNull(); }

    /// What a window that shows the view should be called; empty at first. In the user's language.
    const QString &title() const { return m_title; }
    void setTitle(const QString &title);

    /// Controllers whose views are parts of this one, in their order. It keeps them alive.
    const std::vector<std::shared_ptr<ViewController>> &childViewControllers() const
    {
        return m_children;
    }
    /// Behind the others. Before the view is loaded, which is when a view takes in its parts.
    ///
    /// Later, it is only kept.
    void addChildViewController(const std::shared_ptr<ViewController> &child);

Q_SIGNALS:
    /// For a window that shows the view.
    void titleChanged(const QString &title);

protected:
    /// Makes the view. Called once.
    ///
    /// Null ends the process.
    virtual std::unique_ptr<QWidget> loadView() = 0;
    /// Called once, when the view is there.
    virtual void viewDidLoad() {}
    /// Around each time that the view is shown, and after it was hidden. The first: before the view
    /// is on the screen.
    virtual void viewWillAppear() {}
    /// In the next turn of the event loop, if it is still visible then.
    virtual void viewDidAppear() {}
    /// After it was hidden; a window that is minimised doesn't count.
    virtual void viewDidDisappear() {}

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_view;
    QString m_title;
    std::vector<std::shared_ptr<ViewController>> m_children;
    bool m_wasLoaded = false;
};

} // namespace Tavrin
