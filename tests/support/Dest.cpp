// SPDX-License-Identifier: Apache-2.0
#include <support/Dest.h>

#include <support/PDFSource.h>

namespace Tavrin::Testing
{

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
