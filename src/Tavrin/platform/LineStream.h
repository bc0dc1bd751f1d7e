// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdio>
#include <functional>
#include <mutex>
#include <vector>

namespace Tavrin
{

/// A stream of the process to which whole lines are written, and those who receive them instead.
/// Any thread.
class LineStream
{
public:
    using Receiver = std::function<void(const QString &line)>;

    explicit LineStream(std::FILE *stream) : m_stream(stream) {}

    /// Hands the line to the newest receiver; without one, writes it as UTF-8 and in one piece and
    /// lets it be seen at once.
    void write(const QString &line);

    void push(Receiver receiver);
    void pop();

private:
    std::FILE *m_stream;
    std::mutex m_mutex;
    std::vector<Receiver> m_receivers;
};

} // namespace Tavrin
