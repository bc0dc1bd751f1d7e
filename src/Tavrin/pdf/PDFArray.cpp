// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFArray.h>

#include <Tavrin/pdf/PDFObjectFactory.h>

#include <QStringList>

#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

PDFArray::PDFArray(PDFLowLevelObject array) : PDFObject(std::move(array)) {}

const std::vector<PDFObjectPtr> &PDFArray::objects() const
{
    const PDFLowLevelObject &array = *lowLevelObject();
    if (!m_objects.empty())
        return m_objects;
    const qsizetype size = array.parser->arrayCount(array.handle);
    for (qsizetype index = 0; index < size; ++index) {
        const auto element = array.parser->arrayElement(array.handle, index);
        if (!element)
            continue;
        if (PDFObjectPtr object = PDFObjectFactory::object({*element, array.parser}))
            m_objects.push_back(std::move(object));
    }
    return m_objects;
}

qsizetype PDFArray::count() const
{
    const PDFLowLevelObject &array = *lowLevelObject();
    return m_objects.empty() ? array.parser->arrayCount(array.handle)
                             : static_cast<qsizetype>(m_objects.size());
}

QString PDFArray::description() const
{
    QStringList lines;
    for (const PDFObjectPtr &object : objects())
        lines += object->nestedDescription();
    return u"PDFArray(\n\t"_s + lines.join(u"\n\t"_s) + u"\n)"_s;
}

QString PDFArray::nestedDescription() const
{
    return u"PDFArray(%1 objects)"_s.arg(count());
}

} // namespace Tavrin
