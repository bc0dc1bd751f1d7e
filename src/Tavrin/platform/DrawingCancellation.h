// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mutex>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Lets one thread call off what another one draws.
///
/// Given to a drawing in PageDrawing; serves one drawing at a time. Any thread.
class TAVRIN_CORE_EXPORT DrawingCancellation
{
public:
    DrawingCancellation() = default;
    DrawingCancellation(const DrawingCancellation &) = delete;
    DrawingCancellation &operator=(const DrawingCancellation &) = delete;

    /// The drawing under way stops soon, and one that begins later stops at once.
    void cancel();
    bool isCancelled() const;

    /// For engines: while it lives, cancel() sets a flag that the engine looks at.
    class TAVRIN_CORE_EXPORT Watch
    {
    public:
        /// `cancellation` may be null.
        Watch(DrawingCancellation *cancellation, int &flag);
        ~Watch();
        Watch(const Watch &) = delete;
        Watch &operator=(const Watch &) = delete;

    private:
        DrawingCancellation *m_cancellation;
    };

private:
    mutable std::mutex m_mutex;
    bool m_isCancelled = false;
    int *m_flag = nullptr;
};

} // namespace Tavrin
