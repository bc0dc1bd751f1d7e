// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// An audit that can't be written; what() says why, in UTF-8.
///
/// A file that can't be written, or a device that takes no more. A file that was there before is as
/// it was.
class TAVRIN_CORE_EXPORT AuditError : public std::runtime_error
{
public:
    /// `message` becomes what().
    explicit AuditError(const QString &message);
};

} // namespace Tavrin
