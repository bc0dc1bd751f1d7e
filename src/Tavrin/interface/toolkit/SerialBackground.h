// SPDX-License-Identifier: Apache-2.0
#pragma once

class QThreadPool;

namespace Tavrin
{

/// A pool of one thread, for what is short and must be done in order. It is never waited for but
/// when the application ends, and isn't held up by what the other pool computes.
QThreadPool &serialBackground();

} // namespace Tavrin
