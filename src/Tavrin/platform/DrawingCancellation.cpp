// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/DrawingCancellation.h>

#include <atomic>

namespace Tavrin
{

void DrawingCancellation::cancel()
{
    const std::scoped_lock lock(m_mutex);
    m_isCancelled = true;
    if (m_flag)
        std::atomic_ref<int>(*m_flag).store(1, std::memory_order_relaxed);
}

bool DrawingCancellation::isCancelled() const
{
    const std::scoped_lock lock(m_mutex);
    return m_isCancelled;
}

DrawingCancellation::Watch::Watch(DrawingCancellation *cancellation, int &flag)
    : m_cancellation(cancellation)
{
    if (!m_cancellation)
        return;
    const std::scoped_lock lock(m_cancellation->m_mutex);
    m_cancellation->m_flag = &flag;
    if (m_cancellation->m_isCancelled)
        flag = 1;
}

DrawingCancellation::Watch::~Watch()
{
    if (!m_cancellation)
        return;
    const std::scoped_lock lock(m_cancellation->m_mutex);
    m_cancellation->m_flag = nullptr;
}

} // namespace Tavrin
