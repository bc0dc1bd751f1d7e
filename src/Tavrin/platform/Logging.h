// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLoggingCategory>

namespace Tavrin
{

// One category a subsystem, so that a host can filter what it sees.
Q_DECLARE_LOGGING_CATEGORY(modelLog)
Q_DECLARE_LOGGING_CATEGORY(pdfLog)
Q_DECLARE_LOGGING_CATEGORY(managerLog)

} // namespace Tavrin
