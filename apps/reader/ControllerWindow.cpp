// SPDX-License-Identifier: Apache-2.0
#include "ControllerWindow.h"

#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QSize firstSize(720, 480);

} // namespace

ControllerWindow *ControllerWindow::show(const ViewControllerPtr &controller, const QString &name,
                                         QWidget &owner)
{
    auto *window = owner.findChild<ControllerWindow *>(name, Qt::FindDirectChildrenOnly);
    if (!window)
        window = new ControllerWindow(name, owner);
    window->setController(controller);
    window->QWidget::show();
    window->raise();
    window->activateWindow();
    return window;
}

ControllerWindow::ControllerWindow(const QString &name, QWidget &owner)
    : QWidget(&owner, Qt::Window)
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    auto *close = new QShortcut(QKeySequence::Close, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    if (!restoreGeometry(QSettings().value(geometryKey()).toByteArray()))
        resize(firstSize);
}

void ControllerWindow::setController(const ViewControllerPtr &controller)
{
    if (m_controller) {
        m_controller->disconnect(this);
        if (QWidget *view = m_controller->view())
            view->setParent(nullptr);
        // Its button may have led here.
        QMetaObject::invokeMethod(
            this, [former = m_controller] {}, Qt::QueuedConnection);
    }
    m_controller = controller;
    layout()->addWidget(controller->view());
    setWindowTitle(controller->title());
    connect(controller.get(), &ViewController::titleChanged, this, &QWidget::setWindowTitle);
}

void ControllerWindow::closeEvent(QCloseEvent *event)
{
    QSettings().setValue(geometryKey(), saveGeometry());
    QWidget::closeEvent(event);
}

QString ControllerWindow::geometryKey() const
{
    return u"Reader.%1"_s.arg(objectName());
}

} // namespace Tavrin::Reader
