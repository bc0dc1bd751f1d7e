// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/mupdf/MuPDFDestinations.h>

namespace Tavrin::MuPDFAnnotationReader
{

/// The annotations of a page. The caller holds the session's lock.
std::vector<PDFAnnotationRecord> read(const MuPDFSession &session,
                                      const MuPDFDestinations &destinations, int page);

} // namespace Tavrin::MuPDFAnnotationReader
