// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mupdf/fitz.h>

#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// Family and traits of a font, from what its descriptor says and from its name.
///
/// Many fonts say nothing in their descriptor; the name then tells: "ABCDEF+Times-BoldItalic",
/// "CMBX10", "NimbusRomNo9L-Medi". The family is the name without the tag of a subset and without
/// the part that tells the style, so that the faces of one family share it.
TextFont fontStyle(fz_context *context, fz_font *font);

/// The same from a name alone.
TextFont fontStyleFromName(const QString &name);

} // namespace Tavrin
