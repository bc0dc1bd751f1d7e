// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace Tavrin
{

/// What a thread did before it calls this has happened for every thread that calls it later.
///
/// Qt orders what goes through its pools, futures and event queue by itself. A thread sanitizer
/// can't see how, where Qt was built without it, and takes the other side's first look for a race:
/// so both sides call this, before handing over and before looking. Any thread.
void handOver();

} // namespace Tavrin
