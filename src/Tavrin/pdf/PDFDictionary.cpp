// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFDictionary.h>

#include <Tavrin/pdf/PDFObjectFactory.h>

#include <QStringList>

#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// What the enumeration callback needs of the dictionary that is being filled.
struct Filling {
    const PDFLowLevelObject &source;
    QMap<QString, PDFObjectPtr> &target;
};

void fill(const QByteArray &key, PDFObjectHandle value, void *context)
{
    const Filling &filling = *static_cast<const Filling *>(context);
    if (PDFObjectPtr object = PDFObjectFactory::object({value, filling.source.parser}))
        filling.target.insert(QString::fromUtf8(key), object);
}

} // namespace

PDFDictionary::PDFDictionary(PDFLowLevelObject dictionary) : PDFObject(std::move(dictionary)) {}

const QMap<QString, PDFObjectPtr> &PDFDictionary::dict() const
{
    const PDFLowLevelObject &source = *lowLevelObject();
    if (m_dict.isEmpty()) {
        Filling filling{source, m_dict};
        source.parser->enumerateDictionary(source.handle, &fill, &filling);
    }
    return m_dict;
}

qsizetype PDFDictionary::count() const
{
    const PDFLowLevelObject &source = *lowLevelObject();
    return m_dict.isEmpty() ? source.parser->dictionaryCount(source.handle) : m_dict.size();
}

PDFObjectPtr PDFDictionary::object(const char *key) const
{
    if (!m_dict.isEmpty()) {
        if (const auto it = m_dict.constFind(QString::fromUtf8(key)); it != m_dict.constEnd())
            return *it;
    }
    const PDFLowLevelObject &source = *lowLevelObject();
    const auto value = source.parser->dictionaryValue(source.handle, key);
    return value ? PDFObjectFactory::object({*value, source.parser}) : nullptr;
}

bool PDFDictionary::isSameObject(const PDFDictionary &other) const
{
    return *lowLevelObject() == *other.lowLevelObject();
}

QString PDFDictionary::description() const
{
    return u"PDFDictionary(%1 objects)"_s.arg(count());
}

QString PDFDictionary::debugDescription() const
{
    QStringList lines;
    for (auto it = dict().constBegin(); it != dict().constEnd(); ++it)
        lines += it.key() + u": "_s + it.value()->nestedDescription();
    return u"{\n\t"_s + lines.join(u"\n\t"_s) + u"\n}"_s;
}

} // namespace Tavrin
