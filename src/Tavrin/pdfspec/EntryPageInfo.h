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
///
/// PDFSpecification::pageRectInfo makes it, and a view outlines the rectangles.
struct TAVRIN_CORE_EXPORT EntryPageInfo {
    /// What is printed there, with fonts and colours.
    StyledText text;
    /// The same as a selection of the pages.
    HostPDFSelection selection;
    /// By page index, in page space. Pages count from 0. One rectangle a page, around all of the
    /// entry that is on it.
    std::map<int, Rect> pageRects;
};

} // namespace Tavrin
