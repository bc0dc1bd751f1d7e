// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditError.h>

namespace Tavrin
{

AuditError::AuditError(const QString &message) : std::runtime_error(message.toStdString()) {}

} // namespace Tavrin
