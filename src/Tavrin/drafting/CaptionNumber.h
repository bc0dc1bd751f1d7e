// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>

#include <Tavrin/drafting/HeadingNumber.h>
#include <Tavrin/model/SpecificationEntryType.h>

namespace Tavrin
{

/// What the caption of a figure or table begins with: "Figure 3-7", "Table A.3:", "Fig. 4".
struct CaptionNumber {
    /// What stands between the number and the title.
    enum class Separator { None, Colon, Stop, Dash };

    SpecificationEntryType type = SpecificationEntryType::Figure;
    /// "Figure" or "Table", and the number as printed.
    QString label;
    HeadingNumber number;
    Separator separator = Separator::None;
    /// The word in front of the number as printed ("Fig.").
    QString word;
    /// How much of the text it takes, the separator and the blank behind it included.
    qsizetype length = 0;

    static std::optional<CaptionNumber> parse(const QString &text);
};

} // namespace Tavrin
