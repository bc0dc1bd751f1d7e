// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <vector>

#include <Tavrin/textlayout/LayoutGlyph.h>

namespace Tavrin
{

/// What the beginning of a line is, as far as it decides whether what follows a gap belongs
/// to it.
enum class LineLabel {
    None,
    /// Digits alone: a heading's number, or a line number.
    Integer,
    /// "4.2", "A.1", "(a)", "iv.", "•", "Chapter 3" and the like.
    Label
};

/// Reads printed characters from the start of a line, blanks left out.
LineLabel lineLabel(const std::vector<char32_t> &characters);

} // namespace Tavrin
