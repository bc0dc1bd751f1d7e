// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/model/SpecificationEntry.h>

/// An entry of a plain text, which shows its section.
class TextEntry : public Tavrin::SpecificationEntry
{
public:
    using SpecificationEntry::SpecificationEntry;

    std::vector<Tavrin::EntryDisplayItem> displayItems() const override;
};
