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
///
/// Handles to one node are alike: what is changed through one is seen through all.
class TAVRIN_CORE_EXPORT HostXMLNode
{
public:
    /// A new element in a document of its own; text, if not empty, becomes its content.
    ///
    /// It lives on its own until HostXMLNode::append() or HostXMLDocument takes it over. Text is
    /// escaped when it is written, so any text will do; characters that XML has no place for are
    /// left out.
    static HostXMLNode element(const QString &name, const QString &text = {});

    /// Whether it is an element: children() gives comments and texts as well.
    bool isElement() const;
    /// With its prefix, where it has one: "a:b". Elements have one, and processing instructions;
    /// text and comments don't.
    std::optional<QString> name() const;
    /// The text of the node and all below it, empty for an element without content; nothing for
    /// a node that can't hold text, such as an instruction of the DTD.
    std::optional<QString> stringValue() const;
    /// Replaces all content of the node, child elements included.
    void setStringValue(const QString &text);

    /// In document order. Text that is white space alone is layout, and no child.
    std::vector<HostXMLNode> children() const;

    /// Its value; absent if there is none of the name, and for what is no element.
    std::optional<QString> attribute(const char *name) const;
    /// Name and value in document order.
    ///
    /// Declarations of namespaces come first. Empty for what is no element.
    std::vector<std::pair<QString, QString>> attributes() const;
    /// Behind those the element has; an existing one of the name is replaced.
    void setAttribute(const QString &name, const QString &value);

    /// Moves an element made by element() behind the children. Handles to it stay valid.
    ///
    /// An element that stands elsewhere is taken out from there.
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
