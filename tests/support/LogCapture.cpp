// SPDX-License-Identifier: Apache-2.0
#include <support/LogCapture.h>

#include <utility>

namespace Tavrin::Testing
{

LogCapture *LogCapture::s_current = nullptr;

LogCapture::LogCapture(QByteArray categories)
    : m_categories(std::move(categories)), m_previous(qInstallMessageHandler(&LogCapture::receive))
{
    s_current = this;
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

QStringList LogCapture::messages() const
{
    const std::lock_guard lock(m_mutex);
    return m_messages;
}

QStringList LogCapture::takeMessages()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_messages, {});
}

void LogCapture::receive(QtMsgType /*type*/, const QMessageLogContext &context, const QString &text)
{
    if (!QByteArrayView(context.category).startsWith(s_current->m_categories))
        return;
    const std::lock_guard lock(s_current->m_mutex);
    s_current->m_messages.append(text);
}

} // namespace Tavrin::Testing
