// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// A page's text as one searches it: a line end is a blank, a word broken at a line end is whole,
/// and quotes and dashes have their plain form.
class FoldedText
{
public:
    explicit FoldedText(const QString &text);

    /// Where the phrase stands in the text given, whatever its case, from the start on; no two
    /// overlap. The phrase is folded as the text is.
    std::vector<TextRange> rangesOf(const QString &phrase) const;

private:
    QString m_folded;
    /// For each folded unit where it comes from, and the end.
    std::vector<qsizetype> m_origin;
};

} // namespace Tavrin
