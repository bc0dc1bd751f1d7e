// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/libxml/XMLSession.h>

#include <Tavrin/platform/libxml/XMLTree.h>

#include <libxml/SAX2.h>

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

thread_local XMLSession *innermost = nullptr;

} // namespace

XMLSession::XMLSession(const QString &file)
    : m_file(file),
      m_outer(innermost),
      m_oldReceiver(xmlStructuredError),
      m_oldContext(xmlStructuredErrorContext)
{
    innermost = this;
    xmlSetStructuredErrorFunc(this, &XMLSession::receive);
}

XMLSession::~XMLSession()
{
    xmlSetStructuredErrorFunc(m_oldContext, m_oldReceiver);
    innermost = m_outer;
}

XMLSession *XMLSession::current()
{
    return innermost;
}

void XMLSession::receive(void *context, xmlError *error)
{
    XMLSession &session = *static_cast<XMLSession *>(context);
    if (session.m_fault || error->level < XML_ERR_ERROR)
        return;
    const QString message = QString::fromUtf8(error->message).trimmed();
    const QString file = error->file ? QString::fromUtf8(error->file) : session.m_file;
    session.m_fault = Fault{file, error->line, message};
}

void XMLSession::protect(xmlSAXHandler &handler)
{
    handler.resolveEntity = &XMLSession::resolveEntity;
    handler.entityDecl = &XMLSession::declareEntity;
}

HostXMLError XMLSession::error(HostXMLError::Kind kind, const QString &otherwise) const
{
    return m_fault ? HostXMLError(kind, m_fault->file, m_fault->line, m_fault->message)
                   : HostXMLError(kind, m_file, 0, otherwise);
}

bool XMLSession::allows(const xmlParserCtxt &context, const QString &systemId) const
{
    // The parser takes the name as it stands or, where that fails, without its percent-encoding.
    const QString decoded = QUrl::fromPercentEncoding(systemId.toUtf8());
    const char *from = context.input ? context.input->filename : nullptr;
    const QDir base(QFileInfo(from ? QString::fromUtf8(from) : m_file).path());
    return isBesideDocument(base, systemId) && isBesideDocument(base, decoded);
}

bool XMLSession::isBesideDocument(const QDir &base, const QString &name) const
{
    const QUrl url(name);
    if (url.scheme().size() > 1 && !url.isLocalFile())
        return false;
    const QString inside = QFileInfo(QFileInfo(m_file).canonicalFilePath()).path() + u'/';
    const QString path = url.isLocalFile() ? url.toLocalFile() : name;
    const QDir home(QFileInfo(base.path()).canonicalFilePath());
    const QString target = QDir::cleanPath(home.absoluteFilePath(path));
    const QString canonical = QFileInfo(target).canonicalFilePath();
    return target.startsWith(inside) && (canonical.isEmpty() || canonical.startsWith(inside));
}

void XMLSession::refuse(xmlParserCtxt &context, const QString &systemId)
{
    m_hasRefused = true;
    if (!m_fault) {
        m_fault = Fault{m_file, xmlSAX2GetLineNumber(&context),
                        u"\"%1\" is not read: only files beside the document are"_s.arg(systemId)};
    }
    xmlStopParser(&context);
}

xmlParserInput *XMLSession::resolveEntity(void *context, const xmlChar *publicId,
                                          const xmlChar *systemId)
{
    auto &parser = *static_cast<xmlParserCtxt *>(context);
    if (XMLSession *session = current(); session && !session->allows(parser, fromXML(systemId))) {
        session->refuse(parser, fromXML(systemId));
        return nullptr;
    }
    return xmlSAX2ResolveEntity(context, publicId, systemId);
}

void XMLSession::declareEntity(void *context, const xmlChar *name, int type,
                               const xmlChar *publicId, const xmlChar *systemId, xmlChar *content)
{
    auto &parser = *static_cast<xmlParserCtxt *>(context);
    XMLSession *session = current();
    if (systemId && session && !session->allows(parser, fromXML(systemId)))
        session->refuse(parser, fromXML(systemId));
    else
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
}

} // namespace Tavrin
