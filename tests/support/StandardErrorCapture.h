// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <mutex>

#include <Tavrin/platform/StandardError.h>

namespace Tavrin::Testing
{

/// Gathers what is written to standard error while it lives, from any thread.
class StandardErrorCapture
{
public:
    QStringList messages() const
    {
        const std::lock_guard lock(m_mutex);
        return m_messages;
    }
    /// All messages, a line each.
    QString text() const { return messages().join(u'\n'); }

private:
    mutable std::mutex m_mutex;
    QStringList m_messages;
    StandardErrorRedirection m_redirection{[this](const QString &message) {
        const std::lock_guard lock(m_mutex);
        m_messages.append(message);
    }};
};

} // namespace Tavrin::Testing
