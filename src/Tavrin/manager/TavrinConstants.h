// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

/// Names that a host meets at run time.
struct TAVRIN_CORE_EXPORT TavrinConstants {
    /// Posted, with the manager as object, whenever imported files were added or taken away.
    static const QString SpecManagerAuxiliaryFilesChangedNotification;
};

} // namespace Tavrin
