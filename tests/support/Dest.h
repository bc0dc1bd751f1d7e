// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

#include <support/PDFSource.h>

namespace Tavrin::Testing
{

/// A destination as a PDF writes it: an explicit array with a fit mode, a name, or any source.
/// Pages count from 0 and may be added later; one that never is stays a bare number in the file,
/// as careless producers write it. Coordinates are points; an absent one is written as null.
class Dest
{
public:
    using Coordinate = std::optional<double>;

    static Dest xyz(int page, Coordinate x, Coordinate y, Coordinate zoom = {})
    {
        return explicitArray(page, "XYZ", {x, y, zoom});
    }
    /// By any of the other modes: "Fit", "FitH".
    static Dest fitting(int page, const char *mode, const std::vector<Coordinate> &numbers = {})
    {
        return explicitArray(page, mode, numbers);
    }

    /// Refers to a named destination by a string, which the name tree resolves.
    static Dest named(const QByteArray &name) { return raw(PDFSource::string(name)); }
    /// Refers by a name object, which the catalog's dictionary resolves.
    static Dest namedByNameObject(const QByteArray &name) { return raw(PDFSource::name(name)); }
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
