// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/PennTag.h>

#include <algorithm>
#include <array>

namespace Tavrin::English
{

namespace
{

constexpr std::array<std::string_view, pennTagCount> names = {
    "nn",  "punc", "nnp", "dt",  "in",  "jj",  "nns", "cd",  "rb",  "vbd", "vb", "prp",  "cc",
    "of",  "to",   "vbz", "vbn", "vbg", "vbp", "md",  "pos", "wdt", "jjr", "wp", "nnps", "wrb",
    "jjs", "rbr",  "rp",  "ex",  "rbs", "pdt", "fw",  "1",   "uh",  "sym", "ls", "2"};

} // namespace

std::optional<PennTag> pennTag(std::string_view name)
{
    const auto *const found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return std::nullopt;
    return static_cast<PennTag>(found - names.begin());
}

} // namespace Tavrin::English
