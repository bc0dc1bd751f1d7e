// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/BodyShape.h>

#include <Tavrin/pdfspec/PageLines.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace Tavrin
{

namespace
{

constexpr int sampleSize = 24;
/// Of the width of its page's text, what a line takes that shows where the margin is.
constexpr double fullLine = 0.6;

/// The key with the largest count, the smallest among equals.
template <class Key>
std::optional<Key> mostFrequent(const std::map<Key, qsizetype> &counts)
{
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto &a, const auto &b) { return a.second < b.second; });
    return most == counts.end() ? std::nullopt : std::optional(most->first);
}

} // namespace

/// A line that is as long as body lines are.
struct BodyShape::Sample {
    int parity;
    double x;
    TextFont font;
    qsizetype length;
};

BodyShape::BodyShape(const CachingPDFDocument &document, double textSize) : m_textSize(textSize)
{
    // An odd stride takes left and right pages in turn.
    const int stride = std::max(1, document.pageCount() / sampleSize) | 1;
    std::vector<Sample> samples;
    for (int index = std::min(1, document.pageCount() - 1); index < document.pageCount();
         index += stride) {
        const auto page = document.page(index);
        if (!page)
            continue;
        const PageLines lines(*page);
        const double width = fullLine * lines.width();
        for (const PageLine &line : lines) {
            const double x = line.start.minX();
            if (line.bounds.size.width >= width && std::isfinite(x))
                samples.push_back({index % 2, std::floor(x), line.font, line.range.length});
        }
    }
    std::map<QString, qsizetype> families;
    for (const Sample &sample : samples) {
        if (std::abs(sample.font.pointSize - textSize) <= 0.5)
            families[sample.font.family] += sample.length;
    }
    m_family = mostFrequent(families).value_or(QString());
    for (const int parity : {0, 1}) {
        std::map<double, qsizetype> starts;
        for (const Sample &sample : samples) {
            if (sample.parity == parity && isBodyFont(sample.font))
                ++starts[sample.x];
        }
        m_margins[parity] = mostFrequent(starts);
    }
}

bool BodyShape::isBodyFont(const TextFont &font) const
{
    return std::abs(font.pointSize - m_textSize) <= 0.5 && font.family == m_family;
}

Rect BodyShape::movedToMargin(Rect rect, const HostPDFPage &page, double leftMargin) const
{
    const auto &margin = m_margins[page.index() % 2];
    if (margin)
        rect.origin.x += leftMargin - *margin;
    return rect;
}

} // namespace Tavrin
