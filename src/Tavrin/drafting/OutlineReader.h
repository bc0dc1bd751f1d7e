// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/drafting/DraftItem.h>
#include <Tavrin/pdf/CachingPDFDocument.h>

namespace Tavrin::OutlineReader
{

/// The items of a document's outline in document order, with the numbers that their labels seem
/// to hold. Labels are cut after 1000 units. A single item at the top whose children hold
/// the document is its title and left out; items without a label are, too.
///
/// Any depth in constant stack; linear in the items.
std::vector<DraftItem> read(const CachingPDFDocument &document);

/// An item by its label: number, cleaned title and the rest left for others to fill.
DraftItem itemFromLabel(const QString &label);

} // namespace Tavrin::OutlineReader
