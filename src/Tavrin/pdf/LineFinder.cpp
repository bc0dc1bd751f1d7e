// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/LineFinder.h>

#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdf/PageText.h>
#include <Tavrin/platform/CharacterSet.h>
#include <Tavrin/platform/StandardError.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

struct Line {
    TextRange range;
    Rect bounds;
};

bool isBlank(QStringView text)
{
    return std::all_of(text.begin(), text.end(), CharacterSet::isWhiteSpaceOrNewline);
}

bool isAbove(const Line &a, const Line &b)
{
    if (a.bounds.minY() != b.bounds.minY())
        return a.bounds.minY() > b.bounds.minY();
    return a.bounds.minX() < b.bounds.minX();
}

} // namespace

std::vector<TextRange> LineFinder::lines(const HostPDFPage &page)
{
    const auto document = std::dynamic_pointer_cast<CachingPDFDocument>(page.document());
    return document ? document->linesFor(page) : find(page);
}

std::vector<TextRange> LineFinder::find(const HostPDFPage &page)
{
    const auto text = page.text();
    if (!text) {
        standardError(u"The page doesn't have text -- it may not be loaded"_s);
        return {};
    }
    if (text->string().size() < 2)
        return {};
    std::vector<Line> found;
    for (const PageTextLine &line : text->lines()) {
        const bool hasProbe = line.range.end() > 1;
        const QStringView characters =
            QStringView(text->string()).mid(line.range.location, line.range.length);
        if (hasProbe && !isBlank(characters))
            found.push_back({line.range, page.geometry().toUpright(line.bounds)});
    }
    std::stable_sort(found.begin(), found.end(), isAbove);
    std::vector<TextRange> ranges(found.size());
    std::transform(found.begin(), found.end(), ranges.begin(),
                   [](const Line &l) { return l.range; });
    return ranges;
}

} // namespace Tavrin
