// SPDX-License-Identifier: Apache-2.0
#include <support/Dest.h>

#include <support/PDFSource.h>

namespace Tavrin::Testing
{

Dest Dest::xyz(int page, Coordinate x, Coordinate y, Coordinate zoom)
{
    return explicitArray(page, "XYZ", {x, y, zoom});
}

Dest Dest::fit(int page)
{
    return explicitArray(page, "Fit", {});
}

Dest Dest::fitH(int page, Coordinate top)
{
    return explicitArray(page, "FitH", {top});
}

Dest Dest::fitV(int page, Coordinate left)
{
    return explicitArray(page, "FitV", {left});
}

Dest Dest::fitR(int page, Coordinate left, Coordinate bottom, Coordinate right, Coordinate top)
{
    return explicitArray(page, "FitR", {left, bottom, right, top});
}

Dest Dest::fitB(int page)
{
    return explicitArray(page, "FitB", {});
}

Dest Dest::fitBH(int page, Coordinate top)
{
    return explicitArray(page, "FitBH", {top});
}

Dest Dest::fitBV(int page, Coordinate left)
{
    return explicitArray(page, "FitBV", {left});
}

Dest Dest::named(const QByteArray &name)
{
    return raw(PDFSource::string(name));
}

Dest Dest::namedByNameObject(const QByteArray &name)
{
    return raw(PDFSource::name(name));
}

Dest Dest::raw(const QByteArray &source)
{
    Dest dest;
    dest.m_source = source;
    return dest;
}

Dest Dest::explicitArray(int page, const char *mode, const std::vector<Coordinate> &numbers)
{
    Dest dest;
    dest.m_page = page;
    dest.m_source = PDFSource::name(mode);
    for (const Coordinate &number : numbers)
        dest.m_source += ' ' + (number ? PDFSource::number(*number) : QByteArray("null"));
    return dest;
}

QByteArray Dest::source(const std::vector<int> &pageObjects) const
{
    if (!m_page)
        return m_source;
    const bool isKnown = *m_page >= 0 && std::size_t(*m_page) < pageObjects.size();
    const QByteArray page = isKnown ? PDFSource::reference(pageObjects[std::size_t(*m_page)])
                                    : QByteArray::number(*m_page);
    return '[' + page + ' ' + m_source + ']';
}

} // namespace Tavrin::Testing
