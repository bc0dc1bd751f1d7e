// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

namespace Tavrin
{

/// A stretch of a text, counted in UTF-16 units.
struct TextRange {
    qsizetype location = 0;
    qsizetype length = 0;

    /// What a search gives that found nothing.
    static constexpr TextRange notFound() { return {-1, 0}; }

    constexpr bool isFound() const { return location >= 0; }
    constexpr qsizetype end() const { return location + length; }
    constexpr bool contains(qsizetype index) const { return index >= location && index < end(); }

    friend bool operator==(const TextRange &, const TextRange &) = default;
};

} // namespace Tavrin
