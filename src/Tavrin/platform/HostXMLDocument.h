// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/HostXMLError.h>
#include <Tavrin/platform/HostXMLNode.h>

namespace Tavrin
{

/// An XML document in memory.
///
/// Parsing never touches the network, expands entities within the parser's own limits only, and
/// reads an external subset or entity only from the directory of the document that names it.
/// A value that shares its tree: copies are the same document. One thread at a time.
class TAVRIN_CORE_EXPORT HostXMLDocument
{
public:
    /// Parses a local file. White space between elements is dropped. Throws HostXMLError.
    static HostXMLDocument open(const QUrl &url);

    /// A new document around an element made by HostXMLNode::element.
    explicit HostXMLDocument(const HostXMLNode &root);

    /// Nothing in a document without an element.
    std::optional<HostXMLNode> rootElement() const;

    /// Whether the document names a DTD or holds one.
    bool hasDTD() const;
    /// Reads a DTD and makes it the document's own, under the given name. Throws HostXMLError.
    void attachDTD(const QUrl &url, const QString &name);
    /// Throws HostXMLError with the first fault.
    void validate() const;

    /// The whole document as text: XML declaration with encoding UTF-8, document type if there is
    /// one, and the elements without any white space between them.
    QString xmlString() const;

private:
    HostXMLDocument(std::shared_ptr<XMLTree> tree, const QString &file);

    /// Nodes of the document share it, so they may outlive this object.
    std::shared_ptr<XMLTree> m_tree;
    QString m_file;
};

} // namespace Tavrin
