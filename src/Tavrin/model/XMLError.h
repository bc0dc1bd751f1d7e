// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// A map that validates, or needs no validation, and still can't be read.
///
/// HostXMLError is for what the parser refuses; this is for what the reader of maps does. The table
/// in \ref map-format-what-goes-wrong tells what to do about each.
class TAVRIN_CORE_EXPORT XMLError : public std::runtime_error
{
public:
    /// What is wrong with the map.
    enum class Kind {
        /// An element that has to be there is missing, or has no content.
        InvalidXMLSyntax,
        /// An element stands where this kind of specification knows none: "internal" in a map that
        /// asks for no PDF, for example.
        InvalidKey,
        /// The root element has no attributes.
        InvalidAttribute,
        /// A value that can't be what it stands for, such as a truth value other than 0 and 1.
        InvalidValue,
        /// The document holds no element.
        NoRootElement,
        /// The map names no DTD, and none was given.
        NoDTDFound,
    };

    /// what() is made of all three, in UTF-8.
    explicit XMLError(Kind kind, const QString &message = {}, const QString &file = {});

    Kind kind;
    /// Empty for the last two kinds.
    QString message;
    /// The map, which what() names too; empty for a map that came from no file.
    QString file;
};

} // namespace Tavrin
