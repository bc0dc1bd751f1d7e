// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/textlayout/LayoutGlyph.h>

namespace Tavrin
{

/// Whether this is an accent that stands for itself, such as "´".
bool isAccent(char32_t character);

/// The one character that two glyphs make if either is an accent printed over the other, a
/// letter, as older TeX fonts do it; 0 if they are two characters.
char32_t composedCharacter(const LayoutGlyph &a, const LayoutGlyph &b);

} // namespace Tavrin
