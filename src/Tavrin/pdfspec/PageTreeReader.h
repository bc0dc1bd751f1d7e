// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/pdf/PDFDictionary.h>

namespace Tavrin::PageTreeReader
{

/// The leaves below a node of the page tree (ISO 32000-1, 7.7.3), in page order. Walks without
/// recursion and reads each inner node once, so neither depth nor a cycle in the file matters.
std::vector<PDFDictionaryPtr> leaves(const PDFDictionaryPtr &node);

} // namespace Tavrin::PageTreeReader
