// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>
#include <QString>

#include <stdexcept>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/audit/AuditReference.h>

/// References as a text, one a line:
///
///     # what is behind a number sign at the start of a line, or behind a blank, is not read
///     4.2.1
///     Fig. 3-7          # as people write it
///     REQ-12<TAB>4.2.2  what refers, a tab, and the reference
namespace Tavrin::AuditReferenceList
{

/// A line that can't be read; what() begins with its file and number. Nothing of the list is given
/// then.
class TAVRIN_CORE_EXPORT Error : public std::runtime_error
{
public:
    /// `location` is the file and the line, as in "refs.txt:12".
    Error(const QString &location, const QString &message);
};

/// Reads UTF-8, with or without a byte-order mark, with any kind of line ends. `name` is what the
/// locations call the text. Throws Error.
///
/// Whether entries answer to the references is not looked at: that is the audit's. Blanks around a
/// reference are dropped, and lines without one passed over. Error is thrown for a line that is no
/// UTF-8, has more than one tab, or nothing behind it.
TAVRIN_CORE_EXPORT std::vector<AuditReference> parse(QByteArrayView utf8, const QString &name);

} // namespace Tavrin::AuditReferenceList
