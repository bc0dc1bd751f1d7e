// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Why a PDF could not be opened.
class TAVRIN_CORE_EXPORT HostPDFError : public std::runtime_error
{
public:
    enum class Kind {
        /// The file is missing or may not be read.
        Unreadable,
        /// It is there, and it is no PDF.
        NotAPDF,
        /// It is a PDF, too broken to repair.
        Damaged,
        /// It is encrypted, and the password given (or none) does not open it.
        PasswordNeeded,
    };

    /// `file` names the file, or says "data"; `message` is a clause in plain words.
    HostPDFError(Kind kind, const QString &file, const QString &message);

    Kind kind;
    QString file;
    QString message;
};

} // namespace Tavrin
