// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/LayoutMeasurer.h>

#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/platform/StandardError.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace Tavrin::LayoutMeasurer
{

using namespace Qt::StringLiterals;

namespace
{

struct StartCount {
    int startX = 0;
    int count = 0;
};

void countLines(const HostPDFPage &page, PDFBox box, std::vector<StartCount> &starts)
{
    const double left = page.bounds(box).minX();
    for (const TextRange &line : LineFinder::lines(page)) {
        const double x = page.characterBounds(line.location).minX() - left;
        if (!std::isfinite(x) || std::abs(x) > 1e6)
            continue;
        const int startX = static_cast<int>(x);
        const auto it = std::find_if(starts.begin(), starts.end(),
                                     [startX](const StartCount &c) { return c.startX == startX; });
        if (it == starts.end())
            starts.push_back({startX, 1});
        else
            ++it->count;
    }
}

bool isLessFrequent(const StartCount &a, const StartCount &b)
{
    return a.count < b.count;
}

} // namespace

double textSize(const CachingPDFDocument &document, Sample sample)
{
    std::map<double, qsizetype> counts;
    for (int index = sample.first; index < document.pageCount(); index += sample.interval) {
        const auto text = document.attributedTextForPage(index);
        if (!text)
            continue;
        text->enumerateFonts({0, text->length()}, [&](const TextFont *font, TextRange run, bool &) {
            if (font)
                counts[font->pointSize] += run.length;
        });
    }
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto &x, const auto &y) { return x.second < y.second; });
    return most == counts.end() ? 0.0 : most->first;
}

double leftMargin(const CachingPDFDocument &document, PDFBox box, Sample sample)
{
    std::vector<StartCount> starts;
    for (int index = sample.first; index < document.pageCount(); index += sample.interval) {
        if (const auto page = document.page(index))
            countLines(*page, box, starts);
        else
            standardError(u"Couldn't find page %1"_s.arg(index));
    }
    const auto most = std::max_element(starts.begin(), starts.end(), isLessFrequent);
    return most == starts.end() ? 0.0 : most->startX;
}

} // namespace Tavrin::LayoutMeasurer
