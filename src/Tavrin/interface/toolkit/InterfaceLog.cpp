// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/InterfaceLog.h>

namespace Tavrin
{

Q_LOGGING_CATEGORY(interfaceLog, "tavrin.interface", QtInfoMsg)

} // namespace Tavrin
