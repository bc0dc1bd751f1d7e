// SPDX-License-Identifier: Apache-2.0
#include "OpeningCounter.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <QFile>

#include <stdexcept>

namespace Tavrin::Testing
{

OpeningCounter::OpeningCounter(const QString &directory)
    : m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    // Equal events in a row count as one; so what comes between two openings is wanted too.
    if (::inotify_add_watch(m_queue, QFile::encodeName(directory).constData(),
                            IN_OPEN | IN_ACCESS | IN_CLOSE) < 0)
        throw std::runtime_error("the directory can't be watched");
}

OpeningCounter::~OpeningCounter()
{
    ::close(m_queue);
}

QHash<QString, int> OpeningCounter::takeCounts()
{
    QHash<QString, int> counts;
    alignas(inotify_event) char events[1 << 16];
    ssize_t size = 0;
    while ((size = ::read(m_queue, events, sizeof events)) > 0) {
        for (const char *at = events; at < events + size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(at);
            if ((event->mask & IN_OPEN) != 0 && event->len > 0)
                ++counts[QFile::decodeName(event->name)];
            at += sizeof(inotify_event) + event->len;
        }
    }
    return counts;
}

} // namespace Tavrin::Testing
