// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/PDFObjectFactory.h>

#include <Tavrin/pdf/PDFArray.h>
#include <Tavrin/pdf/PDFBool.h>
#include <Tavrin/pdf/PDFDictionary.h>
#include <Tavrin/pdf/PDFNumber.h>
#include <Tavrin/pdf/PDFString.h>

namespace Tavrin
{

namespace
{

template <class Object, class Value>
PDFObjectPtr made(const std::optional<Value> &value)
{
    return value ? std::make_shared<Object>(*value) : nullptr;
}

std::optional<QString> nameText(const PDFLowLevelObject &source)
{
    const auto bytes = source.parser->name(source.handle);
    return bytes ? std::optional(QString::fromUtf8(*bytes)) : std::nullopt;
}

} // namespace

PDFObjectPtr PDFObjectFactory::object(const PDFLowLevelObject &source)
{
    const PDFObjectParser &parser = *source.parser;
    switch (parser.type(source.handle)) {
    case PDFObjectType::Boolean:
        return made<PDFBool>(parser.boolean(source.handle));
    case PDFObjectType::Integer:
    case PDFObjectType::Real:
        return made<PDFNumber>(parser.number(source.handle));
    case PDFObjectType::Name:
        return made<PDFString>(nameText(source));
    case PDFObjectType::String:
        return made<PDFString>(parser.text(source.handle));
    case PDFObjectType::Array:
        return std::make_shared<PDFArray>(source);
    case PDFObjectType::Dictionary:
        return std::make_shared<PDFDictionary>(source);
    case PDFObjectType::Other:
        break;
    }
    return nullptr;
}

} // namespace Tavrin
