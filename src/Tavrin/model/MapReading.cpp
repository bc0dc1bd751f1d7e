// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/MapReading.h>

#include <Tavrin/model/Specification.h>

namespace Tavrin
{

thread_local MapReading *MapReading::s_outermost = nullptr;

MapReading::MapReading()
{
    if (!s_outermost)
        s_outermost = this;
}

MapReading::~MapReading()
{
    if (s_outermost == this)
        s_outermost = nullptr;
}

HostXMLDocument MapReading::document(const QUrl &map, const std::optional<QUrl> &dtd)
{
    if (!s_outermost)
        return Specification::loadValidatedXMLDocument(map, dtd);
    auto &last = s_outermost->m_last;
    if (!last || last->map != map || last->dtd != dtd)
        last = Last{map, dtd, Specification::loadValidatedXMLDocument(map, dtd)};
    return last->document;
}

} // namespace Tavrin
