// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointF>
#include <QTimer>
#include <QWidget>

namespace Tavrin
{

class ClickGestureRecognizer;

/// Has a say in which clicks count.
class ClickGestureRecognizerDelegate
{
public:
    virtual ~ClickGestureRecognizerDelegate() = default;

    /// Asked at the first press, before the widget hears of it.
    virtual bool gestureRecognizerShouldBegin(const ClickGestureRecognizer &recognizer) = 0;
    /// Whether the first waits until the other has failed.
    virtual bool shouldRequireFailure(const ClickGestureRecognizer &recognizer,
                                      const ClickGestureRecognizer &other) = 0;
};

/// Tells of clicks on a widget, single or double, without taking them away from it.
///
/// A press that moves on is no click. Recognisers of one widget know of each other. Main thread.
class ClickGestureRecognizer : public QObject
{
    Q_OBJECT

public:
    /// For a widget, which owns it. One click or two.
    ClickGestureRecognizer(QWidget *widget, int numberOfClicksRequired);

    int numberOfClicksRequired() const { return m_clicksRequired; }
    bool isEnabled() const { return m_isEnabled; }
    /// Switching it off fails a click under way.
    void setEnabled(bool enabled);
    /// Not owned; outlives the recogniser or is set to null.
    void setDelegate(ClickGestureRecognizerDelegate *delegate) { m_delegate = delegate; }
    /// Where the mouse was pressed, in the widget's coordinates.
    QPointF location() const { return m_location; }

Q_SIGNALS:
    void recognized(ClickGestureRecognizer *recognizer);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void press(QPointF location);
    void release(QPointF location);
    bool mustWait() const;

    QWidget *m_widget;
    int m_clicksRequired;
    bool m_isEnabled = true;
    ClickGestureRecognizerDelegate *m_delegate = nullptr;
    QPointF m_location;
    int m_clicks = 0;
    /// Neither vetoed nor failed so far.
    bool m_isPossible = false;
    QTimer m_wait;
};

} // namespace Tavrin
