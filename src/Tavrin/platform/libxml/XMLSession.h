// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <QDir>
#include <QString>

#include <optional>

#include <Tavrin/platform/HostXMLError.h>

namespace Tavrin
{

/// One call into the parser: collects its first fault, and keeps it inside one directory.
///
/// libxml2 has its error handler per thread and its entity loader per process. The session sets
/// the first for its own thread as long as it lives, and stays clear of the second by refusing
/// a foreign entity where it is declared.
class XMLSession
{
public:
    /// `file` is what is read; entities and subsets may come from its directory alone.
    explicit XMLSession(const QString &file);
    ~XMLSession();
    XMLSession(const XMLSession &) = delete;
    XMLSession &operator=(const XMLSession &) = delete;

    /// Turns the callbacks of a parser into those that refuse foreign entities.
    static void protect(xmlSAXHandler &handler);

    /// Whether the document asked for a file that it may not have; it is then only read in part.
    bool hasRefused() const { return m_hasRefused; }
    bool hasFault() const { return m_fault.has_value(); }
    /// The first fault as an error of the given kind; `otherwise` is said if the parser was silent.
    HostXMLError error(HostXMLError::Kind kind, const QString &otherwise) const;

private:
    struct Fault {
        QString file;
        int line = 0;
        QString message;
    };

    static XMLSession *current();
    static void receive(void *context, xmlError *error);
    static xmlParserInput *resolveEntity(void *context, const xmlChar *publicId,
                                         const xmlChar *systemId);
    static void declareEntity(void *context, const xmlChar *name, int type, const xmlChar *publicId,
                              const xmlChar *systemId, xmlChar *content);

    bool allows(const xmlParserCtxt &context, const QString &systemId) const;
    bool isBesideDocument(const QDir &base, const QString &name) const;
    void refuse(xmlParserCtxt &context, const QString &systemId);

    QString m_file;
    std::optional<Fault> m_fault;
    bool m_hasRefused = false;
    XMLSession *m_outer;
    xmlStructuredErrorFunc m_oldReceiver;
    void *m_oldContext;
};

} // namespace Tavrin
