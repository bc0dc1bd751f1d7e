// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

#include <Tavrin/platform/StyledText.h>

/// Text as HTML.
namespace Tavrin::HTMLText
{

/// For text and for attributes in double quotes. Controls that HTML does not know become U+FFFD.
QString escaped(const QString &text);

/// Says where a link leads to, as the value of href; empty for one that leads nowhere.
using LinkTarget = std::function<QString(const QString &link)>;

/// Styled text as phrasing content. Traits, relative sizes, typewriter faces, links and colours
/// that are more than shades are kept; the page's style sheet shows `.c` in the colour of the
/// property --c.
QString phrasing(const StyledText &text, const LinkTarget &target);

} // namespace Tavrin::HTMLText
