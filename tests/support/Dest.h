// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace Tavrin::Testing
{

/// A destination as a PDF writes it: an explicit array with a fit mode, a name, or any source.
/// Pages count from 0 and may be added later; one that never is stays a bare number in the file,
/// as careless producers write it. Coordinates are points; an absent one is written as null.
class Dest
{
public:
    using Coordinate = std::optional<double>;

    static Dest xyz(int page, Coordinate x, Coordinate y, Coordinate zoom = {});
    static Dest fit(int page);
    static Dest fitH(int page, Coordinate top);
    static Dest fitV(int page, Coordinate left);
    static Dest fitR(int page, Coordinate left, Coordinate bottom, Coordinate right,
                     Coordinate top);
    static Dest fitB(int page);
    static Dest fitBH(int page, Coordinate top);
    static Dest fitBV(int page, Coordinate left);

    /// Refers to a named destination by a string, which the name tree resolves.
    static Dest named(const QByteArray &name);
    /// Refers by a name object, which the catalog's dictionary resolves.
    static Dest namedByNameObject(const QByteArray &name);
    /// Any object at all.
    static Dest raw(const QByteArray &source);

    /// The object's source, where `pageObjects` are the object numbers of the pages.
    QByteArray source(const std::vector<int> &pageObjects) const;

private:
    static Dest explicitArray(int page, const char *mode, const std::vector<Coordinate> &numbers);

    std::optional<int> m_page;
    QByteArray m_source;
};

} // namespace Tavrin::Testing
