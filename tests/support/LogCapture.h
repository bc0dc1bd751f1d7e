// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QStringList>

#include <mutex>

namespace Tavrin::Testing
{

/// Gathers what is logged while it lives, on any thread. One at a time.
class LogCapture
{
public:
    /// Of categories whose names begin so.
    explicit LogCapture(QByteArray categories = "tavrin.manager");
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    QStringList messages() const;
    /// The messages since the last call.
    QStringList takeMessages();

private:
    static void receive(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static LogCapture *s_current;
    /// Of the current one, and of what it has gathered.
    static std::mutex s_mutex;
    QByteArray m_categories;
    QtMessageHandler m_previous = nullptr;
    QStringList m_messages;
};

} // namespace Tavrin::Testing
