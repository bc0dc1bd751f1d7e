// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/TagTransitions.h>

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Tavrin::English
{

namespace
{

constexpr std::size_t trigramCount = std::size_t(pennTagCount) * pennTagCount * pennTagCount;
constexpr double trigramWeight = 0.7;
constexpr double bigramWeight = 0.25;
constexpr double unigramWeight = 0.05;

/// The counts that stand behind the header; as many as there are, at most what is needed.
std::vector<double> readCounts(QByteArrayView data)
{
    std::vector<double> counts;
    counts.reserve(trigramCount);
    for (; data.size() >= 8 && counts.size() < trigramCount; data = data.sliced(8)) {
        const auto value = qFromBigEndian<double>(data.data());
        if (value >= 0)
            counts.push_back(value);
        else if (-value - 1 <= double(trigramCount - counts.size()))
            counts.insert(counts.end(), static_cast<std::size_t>(std::lround(-value - 1)), 0.0);
        else
            break;
    }
    return counts;
}

double sum(const double *first, std::size_t count)
{
    return std::accumulate(first, first + count, 0.0);
}

} // namespace

std::optional<TagTransitions> TagTransitions::read(QByteArrayView file)
{
    QByteArrayView rest = file;
    for (int line = 0; line < 3; ++line) {
        const qsizetype end = rest.indexOf('\n');
        if (end < 0)
            return std::nullopt;
        if (line == 1 && !rest.startsWith("nn punc nnp "))
            return std::nullopt;
        rest = rest.sliced(end + 1);
    }
    const std::vector<double> trigrams = readCounts(rest);
    if (trigrams.size() != trigramCount || !file.startsWith("NgramBin_2 3"))
        return std::nullopt;
    TagTransitions transitions;
    transitions.mix(trigrams);
    return transitions;
}

void TagTransitions::mix(const std::vector<double> &trigrams)
{
    constexpr std::size_t tags = pennTagCount;
    std::vector<double> bigrams(tags * tags);
    for (std::size_t index = 0; index < trigramCount; ++index) {
        bigrams[index % (tags * tags)] += trigrams[index];
        m_counts[index % tags] += trigrams[index];
    }
    const double total = sum(m_counts.data(), tags);
    m_logarithms.resize(trigramCount);
    for (std::size_t context = 0; context < tags * tags; ++context) {
        const std::size_t previous = context % tags;
        const double contextCount = std::max(1.0, sum(&trigrams[context * tags], tags));
        const double previousCount = std::max(1.0, sum(&bigrams[previous * tags], tags));
        for (std::size_t tag = 0; tag < tags; ++tag) {
            const double probability =
                trigramWeight * trigrams[context * tags + tag] / contextCount +
                bigramWeight * bigrams[previous * tags + tag] / previousCount +
                unigramWeight * m_counts[tag] / total;
            m_logarithms[context * tags + tag] =
                static_cast<float>(std::log(std::max(probability, 1e-9)));
        }
    }
}

} // namespace Tavrin::English
