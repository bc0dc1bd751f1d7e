// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

namespace Tavrin
{

/// A stretch of a text, counted in UTF-16 units. As in QString, so that a character beyond the
/// Basic Multilingual Plane counts two.
struct TextRange {
    /// Of the first unit, from 0; negative for what was not found.
    qsizetype location = 0;
    /// In UTF-16 units; 0 for a place between two.
    qsizetype length = 0;

    /// What a search gives that found nothing.
    static constexpr TextRange notFound() { return {-1, 0}; }

    /// Whether it is a range at all.
    constexpr bool isFound() const { return location >= 0; }
    /// Behind the last unit.
    constexpr qsizetype end() const { return location + length; }
    /// Whether the unit at the index is one of the range's.
    constexpr bool contains(qsizetype index) const { return index >= location && index < end(); }

    friend bool operator==(const TextRange &, const TextRange &) = default;
};

} // namespace Tavrin
