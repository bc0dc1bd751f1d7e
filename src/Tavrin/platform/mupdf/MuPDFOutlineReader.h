// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/mupdf/MuPDFDestinations.h>

namespace Tavrin::MuPDFOutlineReader
{

/// The outline in document order. Each item is read once, so a file that loops ends; and without
/// recursion, so depth is no matter. The caller holds the session's lock.
std::vector<PDFOutlineItem> read(const MuPDFSession &session,
                                 const MuPDFDestinations &destinations);

} // namespace Tavrin::MuPDFOutlineReader
