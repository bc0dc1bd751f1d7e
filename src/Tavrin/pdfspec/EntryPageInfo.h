// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>

#include <Tavrin/CoreExport.h>
#include <Tavrin/pdf/HostPDFSelection.h>
#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// Where an entry stands: its rectangles, and what is printed in them.
///
/// Text and selection are empty for an entry whose link gives its rectangles.
struct TAVRIN_CORE_EXPORT EntryPageInfo {
    StyledText text;
    HostPDFSelection selection;
    /// By page index, in page space.
    std::map<int, Rect> pageRects;
};

} // namespace Tavrin
