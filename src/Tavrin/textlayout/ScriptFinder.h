// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <optional>

#include <Tavrin/textlayout/SegmentRows.h>

namespace Tavrin
{

/// Finds the text that a raised, lowered or smaller piece of text is attached to: exponents,
/// indexes, footnote marks, shifted letters.
class ScriptFinder
{
public:
    explicit ScriptFinder(const SegmentRows &rows) : m_rows(rows) {}

    /// The segments of one other row, at most one on each side, that a segment is attached to.
    struct Bases {
        std::array<std::optional<quint32>, 2> segments;
    };
    /// Looks at the neighbours in content, then at a fixed number of rows.
    Bases basesOf(quint32 segment) const;

private:
    struct Best {
        Bases bases;
        quint32 row = 0;
        float distance = 0;
        bool found = false;
    };
    void consider(Best &best, quint32 segment, quint32 base) const;
    void considerRow(Best &best, quint32 segment, const Row &row) const;
    void searchRows(Best &best, quint32 segment, int step) const;

    const SegmentRows &m_rows;
};

} // namespace Tavrin
