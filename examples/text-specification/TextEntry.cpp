// SPDX-License-Identifier: Apache-2.0
#include "TextEntry.h"

#include "TextSpecification.h"

//! [display]
std::vector<Tavrin::EntryDisplayItem> TextEntry::displayItems() const
{
    auto items = SpecificationEntry::displayItems();
    if (const auto owner = std::dynamic_pointer_cast<TextSpecification>(specification())) {
        const auto [start, end] = owner->section(*this);
        const QString text = owner->text().mid(start, end - start).trimmed();
        items.push_back({QStringLiteral("Text"), text});
    }
    return items;
}
//! [display]
