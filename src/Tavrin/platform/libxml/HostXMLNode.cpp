// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/HostXMLNode.h>

#include <Tavrin/platform/libxml/XMLTree.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

xmlNode *native(void *node)
{
    return static_cast<xmlNode *>(node);
}

QString qualifiedName(const xmlNs *space, const xmlChar *local)
{
    const bool prefixed = space && space->prefix;
    return prefixed ? fromXML(space->prefix) + u':' + fromXML(local) : fromXML(local);
}

} // namespace

HostXMLNode::HostXMLNode(std::shared_ptr<XMLTree> tree, void *node)
    : m_tree(std::move(tree)), m_node(node)
{
}

HostXMLNode HostXMLNode::element(const QString &name, const QString &text)
{
    auto tree = std::make_shared<XMLTree>();
    tree->element = xmlNewNode(nullptr, xmlChars(xmlBytes(name)));
    if (!tree->element)
        throw std::bad_alloc();
    HostXMLNode node(tree, tree->element);
    if (!text.isEmpty())
        node.setStringValue(text);
    return node;
}

bool HostXMLNode::isElement() const
{
    return native(m_node)->type == XML_ELEMENT_NODE;
}

std::optional<QString> HostXMLNode::name() const
{
    const xmlNode *node = native(m_node);
    if (node->type == XML_ELEMENT_NODE)
        return qualifiedName(node->ns, node->name);
    if (node->type == XML_PI_NODE)
        return fromXML(node->name);
    return std::nullopt;
}

std::optional<QString> HostXMLNode::stringValue() const
{
    xmlChar *text = xmlNodeGetContent(native(m_node));
    return text ? std::optional(takeXML(text)) : std::nullopt;
}

void HostXMLNode::setStringValue(const QString &text)
{
    xmlNode *node = native(m_node);
    xmlNodeSetContent(node, nullptr);
    const QByteArray bytes = xmlBytes(text);
    if (!bytes.isEmpty())
        xmlNodeAddContentLen(node, xmlChars(bytes), static_cast<int>(bytes.size()));
}

std::vector<HostXMLNode> HostXMLNode::children() const
{
    std::vector<HostXMLNode> result;
    const bool hasChildren = isElement();
    for (xmlNode *child = hasChildren ? native(m_node)->children : nullptr; child;
         child = child->next) {
        if (!xmlIsBlankNode(child))
            result.push_back(HostXMLNode(m_tree, child));
    }
    return result;
}

std::optional<QString> HostXMLNode::attribute(const char *name) const
{
    if (!isElement())
        return std::nullopt;
    xmlChar *value = xmlGetNoNsProp(native(m_node), reinterpret_cast<const xmlChar *>(name));
    return value ? std::optional(takeXML(value)) : std::nullopt;
}

std::vector<std::pair<QString, QString>> HostXMLNode::attributes() const
{
    std::vector<std::pair<QString, QString>> result;
    if (!isElement())
        return result;
    const xmlNode *node = native(m_node);
    // libxml2 keeps namespace declarations apart; in the text they are attributes like others.
    for (const xmlNs *space = node->nsDef; space; space = space->next) {
        const QString name = space->prefix ? u"xmlns:"_s + fromXML(space->prefix) : u"xmlns"_s;
        result.emplace_back(name, fromXML(space->href));
    }
    for (xmlAttr *attribute = node->properties; attribute; attribute = attribute->next) {
        result.emplace_back(qualifiedName(attribute->ns, attribute->name),
                            takeXML(xmlNodeGetContent(reinterpret_cast<xmlNode *>(attribute))));
    }
    return result;
}

void HostXMLNode::setAttribute(const QString &name, const QString &value)
{
    xmlSetProp(native(m_node), xmlChars(xmlBytes(name)), xmlChars(xmlBytes(value)));
}

void HostXMLNode::append(const HostXMLNode &child)
{
    xmlNode *node = native(child.m_node);
    xmlUnlinkNode(node);
    child.m_tree->element = nullptr;
    child.m_tree->adoptedBy = m_tree;
    xmlAddChild(native(m_node), node);
}

void HostXMLNode::remove(const HostXMLNode &child)
{
    xmlNode *node = native(child.m_node);
    xmlUnlinkNode(node);
    child.m_tree->removed.push_back(node);
}

QString HostXMLNode::xmlString() const
{
    xmlBuffer *buffer = xmlBufferCreate();
    if (!buffer)
        throw std::bad_alloc();
    xmlNode *node = native(m_node);
    xmlNodeDump(buffer, node->doc, node, 0, 0);
    QString text = fromXML(xmlBufferContent(buffer));
    xmlBufferFree(buffer);
    return text;
}

} // namespace Tavrin
