// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/Logging.h>

namespace Tavrin
{

Q_LOGGING_CATEGORY(modelLog, "tavrin.model", QtInfoMsg)
Q_LOGGING_CATEGORY(pdfLog, "tavrin.pdf", QtInfoMsg)
Q_LOGGING_CATEGORY(managerLog, "tavrin.manager", QtInfoMsg)

} // namespace Tavrin
