// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/libxml/XMLTree.h>

#include <algorithm>

namespace Tavrin
{

namespace
{

/// XML 1.0, production 2; surrogates are left to the conversion to UTF-8.
bool isForbidden(QChar character)
{
    const char16_t unit = character.unicode();
    const bool isControl = unit < 0x20 && unit != 0x09 && unit != 0x0A && unit != 0x0D;
    return isControl || unit == 0xFFFE || unit == 0xFFFF;
}

} // namespace

XMLTree::~XMLTree()
{
    for (xmlNode *node : removed)
        xmlFreeNode(node);
    if (document)
        xmlFreeDoc(document);
    if (element)
        xmlFreeNode(element);
}

QByteArray xmlBytes(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), isForbidden))
        return text.toUtf8();
    QString clean = text;
    clean.removeIf(isForbidden);
    return clean.toUtf8();
}

QString takeXML(xmlChar *text)
{
    QString result = fromXML(text);
    xmlFree(text);
    return result;
}

} // namespace Tavrin
