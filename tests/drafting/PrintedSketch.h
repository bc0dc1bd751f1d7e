// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/drafting/PrintedPages.h>

namespace Tavrin::Testing
{

inline constexpr Size letter{612, 792};

/// A line of plain text of size 10 with its baseline at y; each character is half a size wide.
PrintedLine line(double x, double y, const QString &text, double size = 10, bool isBold = false);

/// A bold line of size 14.
PrintedLine heading(double x, double y, const QString &text);

/// Lines of running text, all different, from one height down to another.
std::vector<PrintedLine> body(int page, double top = 690, double bottom = 90);

} // namespace Tavrin::Testing
