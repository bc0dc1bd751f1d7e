// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/ViewController.h>

#include <QEvent>

namespace Tavrin
{

ViewController::ViewController(QObject *parent) : QObject(parent) {}

ViewController::~ViewController()
{
    delete m_view.data();
}

QWidget *ViewController::view()
{
    if (!m_wasLoaded) {
        m_wasLoaded = true;
        m_view = loadView().release();
        if (!m_view)
            qFatal("%s made no view", metaObject()->className());
        m_view->installEventFilter(this);
        viewDidLoad();
    }
    return m_view;
}

void ViewController::setTitle(const QString &title)
{
    if (title == m_title)
        return;
    m_title = title;
    Q_EMIT titleChanged(title);
}

void ViewController::addChildViewController(const std::shared_ptr<ViewController> &child)
{
    m_children.push_back(child);
}

bool ViewController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && !event->spontaneous()) {
        if (event->type() == QEvent::Show) {
            viewWillAppear();
            // The event comes before the view is on the screen.
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (m_view && m_view->isVisible())
                        viewDidAppear();
                },
                Qt::QueuedConnection);
        } else if (event->type() == QEvent::Hide) {
            viewDidDisappear();
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Tavrin
