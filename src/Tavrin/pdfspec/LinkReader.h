// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/pdf/PDFDictionary.h>
#include <Tavrin/pdfspec/LinkRecord.h>
#include <Tavrin/pdfspec/PDFReadingPolicy.h>

namespace Tavrin
{

/// Reads the link annotations of a page from its dictionary (ISO 32000-1, 12.5.6.5).
namespace LinkReader
{

/// A link annotation and what it leads to: "Dest", or by policy the "D" of a GoTo action; an array
/// or a string.
struct Target {
    Rect bounds;
    PDFObjectPtr destination;
};

/// In the order of the file. Nothing for a page without annotations; `hasAnnotations`, if given,
/// tells the difference.
std::vector<Target> targets(const PDFDictionary &page, PDFReadingPolicy policy,
                            bool *hasAnnotations = nullptr);

/// Those of them that lead to a name.
std::vector<LinkRecord> namedLinks(const PDFDictionary &page, PDFReadingPolicy policy);

} // namespace LinkReader

} // namespace Tavrin
