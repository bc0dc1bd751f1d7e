// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLoggingCategory>

namespace Tavrin
{

/// What views tell of faults in what they are given.
Q_DECLARE_LOGGING_CATEGORY(interfaceLog)

} // namespace Tavrin
