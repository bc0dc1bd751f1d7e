// SPDX-License-Identifier: Apache-2.0
#include <reader/panes/ControllerWindow.h>

#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

#include <reader/panes/ControllerPane.h>

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
    : QWidget(&owner, Qt::Window), m_pane(new ControllerPane({}))
{
    setObjectName(name);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_pane);
    auto *close = new QShortcut(QKeySequence::Close, this);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    if (!restoreGeometry(QSettings().value(geometryKey()).toByteArray()))
        resize(firstSize);
}

const ViewControllerPtr &ControllerWindow::controller() const
{
    return m_pane->controller();
}

void ControllerWindow::setController(const ViewControllerPtr &controller)
{
    if (m_pane->controller())
        m_pane->controller()->disconnect(this);
    m_pane->setController(controller);
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
