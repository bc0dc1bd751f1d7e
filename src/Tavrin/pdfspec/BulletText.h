// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/StyledText.h>

/// The bullets of lists. Producers print them in symbol fonts, which would come out wrong in any
/// other.
namespace Tavrin::BulletText
{

/// Makes each bullet that follows a blank begin a line; the text keeps its length.
void beginLines(StyledText &text);

/// Replaces each black circle by a bullet operator, which text fonts have, in the primary font of
/// the text and with no other attribute.
void replaceBullets(StyledText &text);

} // namespace Tavrin::BulletText
