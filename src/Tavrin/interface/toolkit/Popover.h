// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <memory>

#include <Tavrin/WidgetsExport.h>
#include <Tavrin/interface/toolkit/ViewController.h>

class QPainterPath;

namespace Tavrin
{

/// Shows a controller's view in a frame over a window, with an arrow to what it is about.
///
/// The frame is a child of the window: it stays inside, follows it when its size changes, and
/// takes the size that its view wants as long as there is room. Tab stays within it. It closes on
/// Escape, on a click outside, which has its usual effect too, and when what it points to goes; the
/// focus then returns to where it was. Main thread.
///
/// Usually with what SpecificationManager::summaryLookup gave:
///
/// \snippet minimal/main.cpp show
class TAVRIN_WIDGETS_EXPORT Popover : public QWidget
{
    Q_OBJECT

public:
    /// Shows one that points to a rectangle of a widget. It belongs to the widget's window, and is
    /// deleted when it closes.
    ///
    /// `rect` is in the coordinates of `of`, whose window has to be on the screen for anything to
    /// be seen. `controller` must not be null, which it is where a process has no windows, and is
    /// kept until the popover goes; its view is made now and becomes the popover's, so a view that
    /// was elsewhere leaves there. The focus goes to the first part of the view that takes it.
    ///
    /// Several may be open at once; the pointer that is returned is not yours, and ends with the
    /// popover: hold it in a QPointer.
    static Popover *show(ViewControllerPtr controller, const QRect &rect, QWidget &of);
    ~Popover() override;

    /// The controller of the view; never null.
    ViewController *viewController() const { return m_controller.get(); }

Q_SIGNALS:
    /// Once; the object is deleted when the event loop runs next.
    void closed();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Popover(ViewControllerPtr controller, const QRect &rect, QWidget &of);

    void place();
    QRect anchorInWindow() const;
    QSize contentSize(const QSize &room) const;
    /// What one of them holds, a menu that it opened for example, is inside too.
    bool isInside(const QWidget *widget) const;
    bool takesEscape(const QObject *watched, const QEvent &event) const;
    QPainterPath outline() const;

    ViewControllerPtr m_controller;
    QPointer<QWidget> m_of;
    QPointer<QWidget> m_focusBefore;
    QRect m_rect;
    /// Where the arrow's tip is, in this widget.
    QPoint m_tip;
    bool m_isBelow = true;
};

} // namespace Tavrin
