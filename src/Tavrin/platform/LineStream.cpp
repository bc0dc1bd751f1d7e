// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/LineStream.h>

#include <utility>

namespace Tavrin
{

void LineStream::write(const QString &line)
{
    const std::scoped_lock lock(m_mutex);
    if (!m_receivers.empty()) {
        m_receivers.back()(line);
        return;
    }
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), m_stream);
    std::fflush(m_stream);
}

void LineStream::push(Receiver receiver)
{
    const std::scoped_lock lock(m_mutex);
    m_receivers.push_back(std::move(receiver));
}

void LineStream::pop()
{
    const std::scoped_lock lock(m_mutex);
    m_receivers.pop_back();
}

} // namespace Tavrin
