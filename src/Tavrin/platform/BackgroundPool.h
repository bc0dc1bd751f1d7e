// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/CoreExport.h>

class QThreadPool;

namespace Tavrin
{

/// The threads for what takes long, such as reading pages for an audit or for marks.
///
/// Qt's global pool is not for that: Qt has its threads help with painting large areas, and the
/// main thread waits for them. As many threads as there are processors; the application waits for
/// them before it ends. Any thread.
TAVRIN_CORE_EXPORT QThreadPool &backgroundPool();

/// One thread more, for what is short and must be done in order. It isn't held up by what the
/// others compute, and is waited for only when the application ends. Any thread.
TAVRIN_CORE_EXPORT QThreadPool &serialBackground();

} // namespace Tavrin
