// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayView>

#include <array>
#include <vector>

#include <Tavrin/english/PennTag.h>

namespace Tavrin::English
{

/// How likely a tag follows two others: trigrams, bigrams and single tags, mixed.
class TagTransitions
{
public:
    /// From a file of the festival speech synthesiser: a line of format, two lines of tags, then
    /// counts as big-endian doubles, runs of zeros as negative numbers. Empty if it is no such
    /// file.
    static std::optional<TagTransitions> read(QByteArrayView file);

    /// The natural logarithm of the probability of `tag` behind `before` and `previous`.
    float operator()(PennTag before, PennTag previous, PennTag tag) const
    {
        return row(before, previous)[slot(tag)];
    }

    /// The same for all tags behind the two.
    const float *row(PennTag before, PennTag previous) const
    {
        return &m_logarithms[(slot(before) * pennTagCount + slot(previous)) * pennTagCount];
    }

    /// How often the tag stands in the text that the model was made from.
    double count(PennTag tag) const { return m_counts[slot(tag)]; }

private:
    void mix(const std::vector<double> &trigrams);

    std::vector<float> m_logarithms;
    std::array<double, pennTagCount> m_counts{};
};

} // namespace Tavrin::English
