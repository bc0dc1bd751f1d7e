// SPDX-License-Identifier: Apache-2.0
#include <reader/panes/ControllerPane.h>

#include <QLabel>
#include <QStackedLayout>

namespace Tavrin::Reader
{

ControllerPane::ControllerPane(const QString &placeholder, QWidget *parent)
    : QWidget(parent), m_layout(new QStackedLayout(this)), m_placeholder(new QLabel(placeholder))
{
    m_placeholder->setAlignment(Qt::AlignCenter);
    m_placeholder->setWordWrap(true);
    m_placeholder->setMargin(24);
    m_placeholder->setForegroundRole(QPalette::PlaceholderText);
    m_placeholder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_layout->addWidget(m_placeholder);
}

ControllerPane::~ControllerPane() = default;

void ControllerPane::setController(const ViewControllerPtr &controller)
{
    if (controller == m_controller)
        return;
    // The former one may be the one whose button or link led here, so it goes when that is over.
    if (m_controller) {
        if (QWidget *view = m_controller->view())
            view->setParent(nullptr);
        QMetaObject::invokeMethod(
            this, [former = m_controller] {}, Qt::QueuedConnection);
    }
    m_controller = controller;
    if (!controller) {
        m_layout->setCurrentWidget(m_placeholder);
        Q_EMIT shown(nullptr);
        return;
    }
    m_layout->addWidget(controller->view());
    m_layout->setCurrentWidget(controller->view());
    Q_EMIT shown(controller->view());
}

void ControllerPane::setPlaceholder(const QString &text)
{
    m_placeholder->setText(text);
}

} // namespace Tavrin::Reader
