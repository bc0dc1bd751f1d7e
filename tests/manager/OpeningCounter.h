// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

namespace Tavrin::Testing
{

/// Counts how often files of a directory are opened, by anybody, while it lives.
class OpeningCounter
{
public:
    explicit OpeningCounter(const QString &directory);
    ~OpeningCounter();
    OpeningCounter(const OpeningCounter &) = delete;
    OpeningCounter &operator=(const OpeningCounter &) = delete;

    /// By file name, since the last call.
    QHash<QString, int> takeCounts();

private:
    int m_queue;
};

} // namespace Tavrin::Testing
