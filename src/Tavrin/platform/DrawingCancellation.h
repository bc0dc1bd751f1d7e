// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mutex>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Lets one thread call off what another one draws.
///
/// Given to a drawing in PageDrawing; serves one drawing at a time. Any thread. A drawing that was
/// called off gives a null image, as one that failed does; ask isCancelled() to tell the two apart.
///
///     DrawingCancellation cancellation; // outlives the drawing
///     PageDrawing drawing;
///     drawing.cancellation = &cancellation;
///     const QImage image = page.draw(area, drawing); // elsewhere: cancellation.cancel()
class TAVRIN_CORE_EXPORT DrawingCancellation
{
public:
    /// Nothing is called off yet. What was called off once stays so: the next drawing takes a new
    /// one.
    DrawingCancellation() = default;
    DrawingCancellation(const DrawingCancellation &) = delete;
    DrawingCancellation &operator=(const DrawingCancellation &) = delete;

    /// The drawing under way stops soon, and one that begins later stops at once.
    void cancel();
    /// Whether cancel() was called.
    bool isCancelled() const;

    /// For engines: while it lives, cancel() sets a flag that the engine looks at.
    ///
    /// Hosts have no use for it.
    class TAVRIN_CORE_EXPORT Watch
    {
    public:
        /// `cancellation` may be null.
        ///
        /// `flag` becomes 1, at once if the drawing was called off already, and has to live as long
        /// as this.
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
