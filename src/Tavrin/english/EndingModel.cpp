// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/EndingModel.h>

#include <algorithm>
#include <numeric>

namespace Tavrin::English
{

namespace
{

constexpr std::size_t expectedEndings = 24'000;
/// What the shorter ending counts for, in occurrences.
constexpr float smoothing = 3;

/// An ending with its spelling's letter in front.
class EndingKey
{
public:
    EndingKey(std::string_view word, EndingModel::Spelling spelling, std::size_t length)
        : m_length(length + 1)
    {
        m_bytes[0] = "lch"[static_cast<std::size_t>(spelling)];
        std::copy(word.end() - static_cast<std::ptrdiff_t>(length), word.end(),
                  m_bytes.begin() + 1);
    }

    std::string_view view() const { return {m_bytes.data(), m_length}; }

private:
    std::array<char, 8> m_bytes;
    std::size_t m_length;
};

} // namespace

/// The endings of no letters come first, one a spelling: what is taken where nothing fits.
EndingModel::EndingModel() : m_endings(expectedEndings)
{
    for (const auto spelling : {Spelling::Lowercase, Spelling::Capitalized, Spelling::Hyphenated})
        m_endings.insert(EndingKey({}, spelling, 0).view());
    m_probabilities.resize(3);
}

void EndingModel::learn(std::string_view word, PennTag tag, double count)
{
    const auto *const open = std::find(openTags.begin(), openTags.end(), tag);
    if (open == openTags.end())
        return;
    const auto openTag = static_cast<std::size_t>(open - openTags.begin());
    const auto occurrences = static_cast<float>(count);
    const bool hyphenated = word.size() > 2 && word.find('-', 1) < word.size() - 1;
    // Capitals stand at the head of sentences too, so they learn from all words.
    learnAs(word, Spelling::Capitalized, openTag, occurrences);
    if (hyphenated)
        learnAs(word, Spelling::Hyphenated, openTag, occurrences);
    else if (!isProper(tag))
        learnAs(word, Spelling::Lowercase, openTag, occurrences);
}

void EndingModel::learnAs(std::string_view word, Spelling spelling, std::size_t openTag,
                          float count)
{
    for (std::size_t length = 0; length <= std::min(longestEnding, word.size()); ++length) {
        const int number = m_endings.insert(EndingKey(word, spelling, length).view());
        m_probabilities.resize(static_cast<std::size_t>(m_endings.size()));
        m_probabilities[static_cast<std::size_t>(number)][openTag] += count;
    }
}

/// An ending is numbered behind all shorter ones of its own, so those are already finished.
void EndingModel::finish()
{
    for (std::size_t number = 0; number < m_probabilities.size(); ++number) {
        Probabilities &counts = m_probabilities[number];
        const std::string_view key = m_endings.word(static_cast<int>(number));
        Probabilities shorter;
        shorter.fill(1.0F / openTags.size());
        if (key.size() > 1) {
            std::string parent(key.substr(0, 1));
            parent.append(key.substr(2));
            shorter = m_probabilities[static_cast<std::size_t>(m_endings.find(parent))];
        }
        const float total = std::accumulate(counts.begin(), counts.end(), 0.0F);
        for (std::size_t tag = 0; tag < counts.size(); ++tag)
            counts[tag] = (counts[tag] + smoothing * shorter[tag]) / (total + smoothing);
    }
}

const EndingModel::Probabilities &EndingModel::probabilities(std::string_view word,
                                                             Spelling spelling) const
{
    for (std::size_t length = std::min(longestEnding, word.size()); length > 0; --length) {
        const int number = m_endings.find(EndingKey(word, spelling, length).view());
        if (number != WordTable::absent)
            return m_probabilities[static_cast<std::size_t>(number)];
    }
    return m_probabilities[static_cast<std::size_t>(spelling)];
}

} // namespace Tavrin::English
