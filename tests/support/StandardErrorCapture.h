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
    StandardErrorCapture();

    QStringList messages() const;
    /// All messages, a line each.
    QString text() const;

private:
    mutable std::mutex m_mutex;
    QStringList m_messages;
    StandardErrorRedirection m_redirection;
};

} // namespace Tavrin::Testing
