// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Why the XML parser refused a file. what() is the file, the line if it is known, and the message:
/// "map.xml:12: …", in UTF-8. See XMLError for what is sound XML and no map.
class TAVRIN_CORE_EXPORT HostXMLError : public std::runtime_error
{
public:
    /// What went wrong, from the file to its content.
    enum class Kind {
        /// The file is missing or may not be read.
        Unreadable,
        /// It is no well-formed XML, or goes beyond the parser's limits.
        NotWellFormed,
        /// It does not match its DTD.
        Invalid,
        /// The DTD itself can't be read.
        BadDTD,
    };

    /// what() is made of the other three.
    HostXMLError(Kind kind, const QString &file, int line, const QString &message);

    Kind kind;
    /// The path of the file that the fault is in: the document, or its DTD.
    QString file;
    /// From 1; 0 where the parser names none.
    int line;
    /// The parser's own words; of many faults the first.
    QString message;
};

} // namespace Tavrin
