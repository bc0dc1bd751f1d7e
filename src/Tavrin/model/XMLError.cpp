// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/XMLError.h>

namespace Tavrin
{

namespace
{

std::string words(XMLError::Kind kind, const QString &message, const QString &file)
{
    if (!file.isEmpty())
        return file.toStdString() + ": " + words(kind, message, {});
    if (kind == XMLError::Kind::NoRootElement)
        return "The map has no root element.";
    if (kind == XMLError::Kind::NoDTDFound)
        return "The map names no DTD, and none was given.";
    return message.toStdString();
}

} // namespace

XMLError::XMLError(Kind errorKind, const QString &text, const QString &path)
    : std::runtime_error(words(errorKind, text, path)), kind(errorKind), message(text), file(path)
{
}

} // namespace Tavrin
