// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/manager/TavrinConstants.h>

namespace Tavrin
{

const QString TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification =
    QStringLiteral("TavrinSpecManagerAuxiliaryFilesChanged");

} // namespace Tavrin
