// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <stdexcept>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// An audit that can't be written; what() says why, in UTF-8.
class TAVRIN_CORE_EXPORT AuditError : public std::runtime_error
{
public:
    explicit AuditError(const QString &message);
};

} // namespace Tavrin
