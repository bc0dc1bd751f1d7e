// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// The nearest section in front of a position of the sorted entries: the one that a figure or table
/// there belongs to. Null if there is none.
inline std::shared_ptr<PDFSpecification::Entry>
sectionBefore(const std::vector<std::shared_ptr<PDFSpecification::Entry>> &sorted,
              std::size_t position)
{
    while (position-- > 0) {
        if (sorted[position]->type() == SpecificationEntryType::Section)
            return sorted[position];
    }
    return nullptr;
}

} // namespace Tavrin
