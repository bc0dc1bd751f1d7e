// SPDX-License-Identifier: Apache-2.0
#include <support/StandardErrorCapture.h>

namespace Tavrin::Testing
{

StandardErrorCapture::StandardErrorCapture()
    : m_redirection([this](const QString &message) {
          const std::lock_guard lock(m_mutex);
          m_messages.append(message);
      })
{
}

QStringList StandardErrorCapture::messages() const
{
    const std::lock_guard lock(m_mutex);
    return m_messages;
}

QString StandardErrorCapture::text() const
{
    return messages().join(QLatin1Char('\n'));
}

} // namespace Tavrin::Testing
