// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/tree.h>

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

namespace Tavrin
{

/// What owns the nodes that handles point to: a document, or an element that is in none yet.
struct XMLTree {
    XMLTree() = default;
    ~XMLTree();
    XMLTree(const XMLTree &) = delete;
    XMLTree &operator=(const XMLTree &) = delete;

    xmlDoc *document = nullptr;
    /// An element that belongs to no document.
    xmlNode *element = nullptr;
    /// Nodes that were taken out; handles to them may live.
    std::vector<xmlNode *> removed;
    /// Where the element went when it was appended to another; keeps that alive.
    std::shared_ptr<XMLTree> adoptedBy;
};

/// A text as libxml2 takes it: UTF-8, without the characters that XML 1.0 can't write.
QByteArray xmlBytes(const QString &text);

inline const xmlChar *xmlChars(const QByteArray &bytes)
{
    return reinterpret_cast<const xmlChar *>(bytes.constData());
}

inline QString fromXML(const xmlChar *text)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(text));
}

/// Takes over a text that libxml2 has allocated; empty for a null pointer.
QString takeXML(xmlChar *text);

} // namespace Tavrin
