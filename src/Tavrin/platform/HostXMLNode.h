// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

struct XMLTree;

/// A node of an XML document: a light handle that keeps its document alive. One thread at a time.
class TAVRIN_CORE_EXPORT HostXMLNode
{
public:
    /// A new element in a document of its own; text, if not empty, becomes its content.
    static HostXMLNode element(const QString &name, const QString &text = {});

    bool isElement() const;
    /// Only elements have one: text, comments and instructions do not.
    std::optional<QString> name() const;
    /// The text of the node and all below it, empty for an element without content; nothing for
    /// a node that can't hold text, such as an instruction of the DTD.
    std::optional<QString> stringValue() const;
    void setStringValue(const QString &text);

    /// In document order. Text that is white space alone is layout, and no child.
    std::vector<HostXMLNode> children() const;

    std::optional<QString> attribute(const char *name) const;
    /// Name and value in document order.
    std::vector<std::pair<QString, QString>> attributes() const;
    /// Behind those the element has; an existing one of the name is replaced.
    void setAttribute(const QString &name, const QString &value);

    /// Moves an element made by element() behind the children. Handles to it stay valid.
    void append(const HostXMLNode &child);

    /// Takes a child out. Handles to it stay valid.
    void remove(const HostXMLNode &child);

    /// The node's own XML text.
    QString xmlString() const;

private:
    friend class HostXMLDocument;
    HostXMLNode(std::shared_ptr<XMLTree> tree, void *node);

    std::shared_ptr<XMLTree> m_tree;
    void *m_node;
};

/// The nodes that maps are written with.
using HostXMLElement = HostXMLNode;

} // namespace Tavrin
