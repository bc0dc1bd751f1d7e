// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace Tavrin
{

/// First in, first out, between threads. Nobody waits for longer than another takes to put in or
/// take out one element; what goes is destroyed by the thread that takes it out.
template <class T>
class ThreadSafeQueue
{
public:
    void enqueue(T element)
    {
        const std::lock_guard lock(m_mutex);
        m_elements.push_back(std::move(element));
    }
    /// The first element; nothing if there is none.
    std::optional<T> dequeue()
    {
        const std::lock_guard lock(m_mutex);
        if (m_elements.empty())
            return std::nullopt;
        std::optional<T> first(std::move(m_elements.front()));
        m_elements.pop_front();
        return first;
    }
    void removeAll()
    {
        std::deque<T> removed;
        const std::lock_guard lock(m_mutex);
        // Destroyed after the lock is given back.
        removed.swap(m_elements);
    }

private:
    std::mutex m_mutex;
    std::deque<T> m_elements;
};

} // namespace Tavrin
