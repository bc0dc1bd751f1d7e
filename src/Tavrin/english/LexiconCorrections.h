// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include <Tavrin/english/PennTag.h>

namespace Tavrin::English
{

/// What we know better of a word than counts in newspapers do.
struct LexiconCorrection {
    std::string_view word;
    /// In the order of their likelihood, parted by blanks.
    std::string_view tags;
    /// A function word has no other tags than these; any other word only leans to them.
    bool isFunctionWord = false;

    void apply(std::array<float, pennTagCount> &counts) const;
};

void forEachCorrection(const std::function<void(const LexiconCorrection &)> &callback);

} // namespace Tavrin::English
