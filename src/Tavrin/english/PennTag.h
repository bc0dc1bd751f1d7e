// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <optional>
#include <string_view>

namespace Tavrin::English
{

/// The tags of the Penn Treebank (Marcus, Santorini, Marcinkiewicz 1993), punctuation folded into
/// one and "of" apart, in the order in which the transition model lists them.
enum class PennTag : quint8 {
    // clang-format off
    NN, PUNC, NNP, DT, IN, JJ, NNS, CD, RB, VBD, VB, PRP, CC, OF, TO, VBZ, VBN, VBG, VBP, MD,
    POS, WDT, JJR, WP, NNPS, WRB, JJS, RBR, RP, EX, RBS, PDT, FW, Ambiguous, UH, SYM, LS, Final,
    // clang-format on
};

inline constexpr int pennTagCount = 38;

constexpr std::size_t slot(PennTag tag)
{
    return static_cast<std::size_t>(tag);
}

constexpr bool isProper(PennTag tag)
{
    return tag == PennTag::NNP || tag == PennTag::NNPS;
}

/// A set of tags, as bits.
class PennTagSet
{
public:
    constexpr PennTagSet() = default;
    constexpr PennTagSet(std::initializer_list<PennTag> tags)
    {
        for (const PennTag tag : tags)
            insert(tag);
    }

    constexpr void insert(PennTag tag) { m_bits |= quint64(1) << slot(tag); }
    constexpr void insert(PennTagSet tags) { m_bits |= tags.m_bits; }
    constexpr bool contains(PennTag tag) const { return (m_bits >> slot(tag) & 1) != 0; }
    constexpr bool isEmpty() const { return m_bits == 0; }

private:
    quint64 m_bits = 0;
};

/// By its name in the data files, "nnp" for example.
std::optional<PennTag> pennTag(std::string_view name);

} // namespace Tavrin::English
