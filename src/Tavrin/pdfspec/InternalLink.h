// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <map>
#include <optional>
#include <variant>

#include <Tavrin/platform/Geometry.h>

namespace Tavrin
{

/// The text form in which a map stores a place in the PDF, taken apart and put together.
///
///     outline:Scope                    the outline item with this exact label
///     destination:12,72,540            page index, x and y
///     rects:12,72.0,100.0,300.0,20.0   page index, x, y, width, height; several joined by ";"
///     section.4.2                      anything else: a named destination
///
/// Coordinates are in page space.
namespace InternalLink
{

using PageRects = std::map<int, Rect>;

struct Outline {
    QString label;
};
struct Place {
    int page = 0;
    Point point;
};
struct Rects {
    PageRects rects;
};
struct Named {
    QString name;
};
/// A link that begins like one of the forms and isn't one; `message` says what was expected.
struct Malformed {
    QString message;
};

using Parsed = std::variant<Outline, Place, Rects, Named, Malformed>;

Parsed parse(const QString &link);

QString printOutline(const QString &label);
/// Cuts the point toward zero. A point that isn't finite ends the process.
QString printPlace(int page, Point point);
/// Rounds each number down, so the printed rectangle can be up to one unit smaller.
QString printRects(const PageRects &rects);

} // namespace InternalLink

} // namespace Tavrin
