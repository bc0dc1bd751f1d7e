// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/enhance/TermCounts.h>

namespace Tavrin
{

/// A term with its score.
struct WeightedKeyword {
    QString text;
    double score = 0;

    friend bool operator==(const WeightedKeyword &, const WeightedKeyword &) = default;
};

/// The terms that tell a text from the rest of its document, best first.
///
/// A term's score is its share of the whole document's use of it, more for a long one and less for
/// a phrase of many words: ln(length) × count ÷ (words × total). Equal scores keep the order of
/// the counts; scores that are no numbers come last. A phrase that occurs once is no term, nor is
/// the text's own title. Of a word and a phrase that holds it, the better one stays.
std::vector<WeightedKeyword> rankKeywords(const TermCounts &counts, const TermCounts &totals,
                                          const QString &title, int maximumCount);

} // namespace Tavrin
