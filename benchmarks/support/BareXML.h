// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/parser.h>
#include <libxml/valid.h>

#include <QFile>

#include <stdexcept>

namespace Tavrin::Benchmarks
{

/// Reads a map with the XML parser alone and holds it against a grammar. Throws if it differs.
inline void parseAndValidate(const QString &map, const QString &grammar)
{
    const QByteArray dtdName = QFile::encodeName(grammar);
    xmlDtd *dtd = xmlParseDTD(nullptr, reinterpret_cast<const xmlChar *>(dtdName.constData()));
    xmlDoc *document = xmlReadFile(QFile::encodeName(map).constData(), nullptr, 0);
    xmlValidCtxt *validator = xmlNewValidCtxt();
    const bool isValid = xmlValidateDtd(validator, document, dtd) == 1;
    xmlFreeValidCtxt(validator);
    xmlFreeDoc(document);
    xmlFreeDtd(dtd);
    if (!isValid)
        throw std::runtime_error("a map does not match the grammar");
}

} // namespace Tavrin::Benchmarks
