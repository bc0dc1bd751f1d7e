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
    ///
    /// Entities are replaced by what they stand for. A DTD that the document names is read now, but
    /// nothing is held against it: that is what validate() does. A file of more than 1 GiB, a
    /// device and a pipe are refused.
    static HostXMLDocument open(const QUrl &url);

    /// A new document around an element made by HostXMLNode::element.
    ///
    /// Takes the element over, with all below it; handles to them stay valid.
    explicit HostXMLDocument(const HostXMLNode &root);

    /// Nothing in a document without an element.
    std::optional<HostXMLNode> rootElement() const;

    /// Whether the document names a DTD or holds one.
    bool hasDTD() const;
    /// Reads a DTD and makes it the document's own, under the given name. Throws HostXMLError.
    ///
    /// It becomes the internal subset, in place of one that was there, so that the document carries
    /// its declarations wherever it goes. `name` is that of the root element: "spec".
    void attachDTD(const QUrl &url, const QString &name);
    /// Throws HostXMLError with the first fault.
    ///
    /// Against the DTD that the document has. A document without one does not validate.
    void validate() const;

    /// The whole document as text: XML declaration with encoding UTF-8, document type if there is
    /// one, and the elements without any white space between them.
    ///
    /// Specification::writeSpecToXMLString puts line ends between the elements.
    QString xmlString() const;

private:
    HostXMLDocument(std::shared_ptr<XMLTree> tree, const QString &file);

    /// Nodes of the document share it, so they may outlive this object.
    std::shared_ptr<XMLTree> m_tree;
    QString m_file;
};

} // namespace Tavrin
