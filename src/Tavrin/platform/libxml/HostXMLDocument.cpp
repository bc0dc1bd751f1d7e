// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/HostXMLDocument.h>

#include <Tavrin/platform/libxml/XMLSession.h>
#include <Tavrin/platform/libxml/XMLTree.h>

#include <libxml/parser.h>
#include <libxml/valid.h>

#include <QFile>
#include <QFileInfo>

#include <mutex>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// More than any map needs, and less than the parser can count.
constexpr qint64 largestFile = qint64(1) << 30;

void initializeParser()
{
    static std::once_flag once;
    std::call_once(once, xmlInitParser);
}

/// The path of a local file; other URLs are refused.
QString localPath(const QUrl &url, HostXMLError::Kind kind)
{
    if (!url.isLocalFile())
        throw HostXMLError(kind, url.toString(), 0, u"only local files are read"_s);
    return url.toLocalFile();
}

QByteArray readFile(const QString &path, HostXMLError::Kind kind)
{
    // A device or a pipe would never end.
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        throw HostXMLError(kind, path, 0, u"this is no regular file"_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw HostXMLError(kind, path, 0, file.errorString());
    if (file.size() > largestFile)
        throw HostXMLError(kind, path, 0, u"the file is larger than 1 GiB"_s);
    return file.readAll();
}

struct FreeParser {
    void operator()(xmlParserCtxt *context) const { xmlFreeParserCtxt(context); }
};
struct FreeDTD {
    void operator()(xmlDtd *dtd) const { xmlFreeDtd(dtd); }
};
struct FreeValidator {
    void operator()(xmlValidCtxt *context) const { xmlFreeValidCtxt(context); }
};

/// Takes out the declarations of parameter entities. The parser has put their text in where they
/// are used, and inside a document they could not be used at all (XML 1.0, 2.8).
void dropParameterEntities(xmlDtd &dtd)
{
    for (xmlNode *node = dtd.children; node;) {
        xmlNode *next = node->next;
        if (node->type == XML_ENTITY_DECL) {
            const int kind = reinterpret_cast<xmlEntity *>(node)->etype;
            // The table of entities still owns what is unlinked from the list.
            if (kind == XML_INTERNAL_PARAMETER_ENTITY || kind == XML_EXTERNAL_PARAMETER_ENTITY)
                xmlUnlinkNode(node);
        }
        node = next;
    }
}

/// Whether the document names an external subset that was not read.
bool lacksExternalSubset(const xmlDoc &document)
{
    return document.intSubset && document.intSubset->SystemID && !document.extSubset;
}

} // namespace

HostXMLDocument::HostXMLDocument(std::shared_ptr<XMLTree> tree, const QString &file)
    : m_tree(std::move(tree)), m_file(file)
{
}

HostXMLDocument::HostXMLDocument(const HostXMLNode &root) : m_tree(std::make_shared<XMLTree>())
{
    m_tree->document = xmlNewDoc(reinterpret_cast<const xmlChar *>("1.0"));
    if (!m_tree->document)
        throw std::bad_alloc();
    root.m_tree->element = nullptr;
    root.m_tree->adoptedBy = m_tree;
    xmlDocSetRootElement(m_tree->document, static_cast<xmlNode *>(root.m_node));
}

HostXMLDocument HostXMLDocument::open(const QUrl &url)
{
    initializeParser();
    const QString path = localPath(url, HostXMLError::Kind::Unreadable);
    const QByteArray bytes = readFile(path, HostXMLError::Kind::Unreadable);
    const XMLSession session(path);
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(xmlNewParserCtxt());
    if (!parser)
        throw std::bad_alloc();
    XMLSession::protect(*parser->sax);
    auto tree = std::make_shared<XMLTree>();
    tree->document =
        xmlCtxtReadMemory(parser.get(), bytes.constData(), static_cast<int>(bytes.size()),
                          path.toUtf8().constData(), nullptr,
                          XML_PARSE_NONET | XML_PARSE_DTDLOAD | XML_PARSE_NOENT |
                              XML_PARSE_NOCDATA | XML_PARSE_COMPACT);
    if (!tree->document || session.hasRefused())
        throw session.error(HostXMLError::Kind::NotWellFormed, u"this is no XML document"_s);
    if (lacksExternalSubset(*tree->document)) {
        throw session.error(
            HostXMLError::Kind::BadDTD,
            u"the DTD \"%1\" can't be read"_s.arg(fromXML(tree->document->intSubset->SystemID)));
    }
    return HostXMLDocument(std::move(tree), path);
}

std::optional<HostXMLNode> HostXMLDocument::rootElement() const
{
    xmlNode *root = xmlDocGetRootElement(m_tree->document);
    return root ? std::optional(HostXMLNode(m_tree, root)) : std::nullopt;
}

bool HostXMLDocument::hasDTD() const
{
    return m_tree->document->intSubset || m_tree->document->extSubset;
}

void HostXMLDocument::attachDTD(const QUrl &url, const QString &name)
{
    initializeParser();
    const QString path = localPath(url, HostXMLError::Kind::BadDTD);
    readFile(path, HostXMLError::Kind::BadDTD);
    const XMLSession session(path);
    xmlSAXHandler handler{};
    xmlSAXVersion(&handler, 2);
    XMLSession::protect(handler);
    std::unique_ptr<xmlDtd, FreeDTD> dtd(
        xmlSAXParseDTD(&handler, nullptr, xmlChars(path.toUtf8())));
    if (!dtd || session.hasFault())
        throw session.error(HostXMLError::Kind::BadDTD, u"this is no DTD"_s);

    // Made the internal subset, so that the document carries its declarations wherever it goes.
    xmlDoc *document = m_tree->document;
    if (xmlDtd *old = document->intSubset) {
        xmlUnlinkNode(reinterpret_cast<xmlNode *>(old));
        xmlFreeDtd(old);
    }
    dropParameterEntities(*dtd);
    xmlFree(const_cast<xmlChar *>(dtd->name));
    xmlFree(const_cast<xmlChar *>(dtd->SystemID));
    dtd->name = xmlStrdup(xmlChars(xmlBytes(name)));
    dtd->SystemID = nullptr;
    auto *node = reinterpret_cast<xmlNode *>(dtd.release());
    xmlSetTreeDoc(node, document);
    if (document->children) {
        xmlAddPrevSibling(document->children, node);
    } else {
        xmlAddChild(reinterpret_cast<xmlNode *>(document), node);
    }
    // After the node is linked in: linking first unlinks it, which would clear the subset.
    document->intSubset = reinterpret_cast<xmlDtd *>(node);
}

void HostXMLDocument::validate() const
{
    const XMLSession session(m_file);
    const std::unique_ptr<xmlValidCtxt, FreeValidator> validator(xmlNewValidCtxt());
    if (!validator)
        throw std::bad_alloc();
    if (!xmlValidateDocument(validator.get(), m_tree->document)) {
        throw session.error(HostXMLError::Kind::Invalid, u"the document does not match its DTD"_s);
    }
}

QString HostXMLDocument::xmlString() const
{
    xmlChar *text = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(m_tree->document, &text, &size, "UTF-8");
    return takeXML(text).trimmed();
}

} // namespace Tavrin
