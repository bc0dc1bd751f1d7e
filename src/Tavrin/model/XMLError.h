// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// A map that validates, or needs no validation, and still can't be read.
class TAVRIN_CORE_EXPORT XMLError : public std::runtime_error
{
public:
    enum class Kind {
        InvalidXMLSyntax,
        InvalidKey,
        InvalidAttribute,
        InvalidValue,
        NoRootElement,
        NoDTDFound,
    };

    explicit XMLError(Kind kind, const QString &message = {}, const QString &file = {});

    Kind kind;
    /// Empty for the last two kinds.
    QString message;
    /// The map, which what() names too; empty for a map that came from no file.
    QString file;
};

} // namespace Tavrin
