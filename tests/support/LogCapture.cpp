// SPDX-License-Identifier: Apache-2.0
#include <support/LogCapture.h>

#include <utility>

namespace Tavrin::Testing
{

LogCapture *LogCapture::s_current = nullptr;
std::mutex LogCapture::s_mutex;

LogCapture::LogCapture(QByteArray categories) : m_categories(std::move(categories))
{
    {
        const std::lock_guard lock(s_mutex);
        s_current = this;
    }
    m_previous = qInstallMessageHandler(&LogCapture::receive);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
    // A thread may be at it still.
    const std::lock_guard lock(s_mutex);
    s_current = nullptr;
}

QStringList LogCapture::messages() const
{
    const std::lock_guard lock(s_mutex);
    return m_messages;
}

QStringList LogCapture::takeMessages()
{
    const std::lock_guard lock(s_mutex);
    return std::exchange(m_messages, {});
}

void LogCapture::receive(QtMsgType /*type*/, const QMessageLogContext &context, const QString &text)
{
    const std::lock_guard lock(s_mutex);
    if (s_current && QByteArrayView(context.category).startsWith(s_current->m_categories))
        s_current->m_messages.append(text);
}

} // namespace Tavrin::Testing
