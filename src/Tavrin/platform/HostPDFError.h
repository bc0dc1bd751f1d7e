// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Why a PDF could not be opened. what() is the file, a colon and the message, in UTF-8. Thrown by
/// the `open` functions of HostPDFDocument, CachingPDFDocument and PDFEngine, and by nothing that
/// reads a document that is open: what is broken in there has no value.
class TAVRIN_CORE_EXPORT HostPDFError : public std::runtime_error
{
public:
    /// What a host may want to tell apart, since a user can be asked for a password.
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

    /// Which of them it is.
    Kind kind;
    /// The path as it was given, or "data" for a document in memory.
    QString file;
    /// For people, in English.
    QString message;
};

} // namespace Tavrin
