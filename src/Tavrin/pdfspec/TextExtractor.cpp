// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/TextExtractor.h>

#include <Tavrin/pdfspec/EntryLocator.h>
#include <Tavrin/pdfspec/SectionTextCutter.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using SourceRange = PDFSpecification::SourceRange;

/// The first stretch of a cut-out text that reaches into a line.
const SourceRange *source(const std::vector<SourceRange> &mappings, TextRange line)
{
    const auto it = std::lower_bound(
        mappings.begin(), mappings.end(), line.location,
        [](const SourceRange &m, qsizetype position) { return m.range.end() <= position; });
    return it != mappings.end() && it->range.location < line.end() ? &*it : nullptr;
}

TextRange inPage(const SourceRange &source, TextRange line)
{
    const qsizetype from = std::max(line.location, source.range.location);
    const qsizetype to = std::min(line.end(), source.range.end());
    return {source.pageRange.location + from - source.range.location, to - from};
}

bool isBlank(const StyledText &text)
{
    return text.string().trimmed().isEmpty();
}

} // namespace

TextExtractor::TextExtractor(const PrintReader &print) : m_print(print) {}

std::optional<StyledText> TextExtractor::text(const PDFSpecification::Entry &entry,
                                              LineLocations &lineRects) const
{
    const auto &place = entry.destination();
    if (!m_print.document() || !place || !place->page())
        return std::nullopt;
    if (!isTextual(entry.type()))
        return graphicalText(entry);
    std::vector<SourceRange> mappings;
    const StyledText section =
        SectionTextCutter(m_print).cut(entry, place->page()->index(), mappings);
    StyledText result;
    lineRects.clear();
    TextRange line;
    for (line.location = 0; line.location < section.length(); line.location = line.end() + 1) {
        const qsizetype end = section.string().indexOf(u'\n', line.location);
        line.length = (end < 0 ? section.length() : end) - line.location;
        const StyledText printed = section.attributedSubstring(line);
        const SourceRange *origin = isBlank(printed) ? nullptr : source(mappings, line);
        const auto page = origin ? m_print.document()->page(origin->page) : nullptr;
        if (!page)
            continue;
        const StyledText formatted = m_print.specification().formattedLine(printed);
        const Rect bounds = page->selection(inPage(*origin, line)).bounds(*page);
        lineRects.push_back(
            {{result.length(), formatted.string().trimmed().size()}, origin->page, bounds});
        result.append(formatted);
    }
    // The last line has an end of its own, the text has none.
    if (result.string().endsWith(u'\n'))
        result.deleteCharacters({result.length() - 1, 1});
    return result;
}

std::optional<StyledText> TextExtractor::graphicalText(const PDFSpecification::Entry &entry) const
{
    const auto info = isTextual(entry.type()) ? std::nullopt : EntryLocator(m_print).rects(entry);
    if (!info)
        return std::nullopt;
    StyledText result;
    for (const auto &[index, rect] : info->pageRects) {
        if (const auto page = m_print.document()->page(index)) {
            result.append(page->selection(rect).attributedString());
            result.append(u"\n"_s);
        }
    }
    return result;
}

} // namespace Tavrin
