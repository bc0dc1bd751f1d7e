// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/HostPDFSelection.h>

#include <Tavrin/pdf/HostPDFPage.h>
#include <Tavrin/pdf/PageText.h>

#include <algorithm>
#include <utility>

namespace Tavrin
{

namespace
{

/// In ascending order, with what touches or overlaps made one.
std::vector<TextRange> merged(std::vector<TextRange> ranges)
{
    std::sort(ranges.begin(), ranges.end(),
              [](const TextRange &a, const TextRange &b) { return a.location < b.location; });
    std::vector<TextRange> result;
    for (const TextRange &range : ranges) {
        if (!result.empty() && range.location <= result.back().end())
            result.back().length =
                std::max(result.back().end(), range.end()) - result.back().location;
        else if (range.length > 0)
            result.push_back(range);
    }
    return result;
}

} // namespace

HostPDFSelection::HostPDFSelection(const std::shared_ptr<HostPDFPage> &page,
                                   std::vector<TextRange> ranges)
{
    auto sorted = merged(std::move(ranges));
    if (!sorted.empty())
        m_parts.push_back({page, std::move(sorted)});
}

const HostPDFSelection::Part *HostPDFSelection::part(const HostPDFPage &page) const
{
    const auto it = std::find_if(m_parts.begin(), m_parts.end(),
                                 [&page](const Part &part) { return part.page.get() == &page; });
    return it == m_parts.end() ? nullptr : &*it;
}

std::vector<std::shared_ptr<HostPDFPage>> HostPDFSelection::pages() const
{
    std::vector<std::shared_ptr<HostPDFPage>> result;
    for (const Part &part : m_parts)
        result.push_back(part.page);
    return result;
}

Rect HostPDFSelection::bounds(const HostPDFPage &page) const
{
    Rect result = Rect::null();
    const Part *selected = part(page);
    const auto text = selected ? page.text() : nullptr;
    if (!text)
        return result;
    for (const TextRange &range : selected->ranges) {
        for (qsizetype index = range.location; index < range.end(); ++index)
            result = result.united(text->characterBounds(index));
    }
    return result;
}

qsizetype HostPDFSelection::numberOfTextRanges(const HostPDFPage &page) const
{
    const Part *selected = part(page);
    return selected ? static_cast<qsizetype>(selected->ranges.size()) : 0;
}

TextRange HostPDFSelection::range(qsizetype index, const HostPDFPage &page) const
{
    const bool exists = index >= 0 && index < numberOfTextRanges(page);
    return exists ? part(page)->ranges[static_cast<std::size_t>(index)] : TextRange::notFound();
}

QString HostPDFSelection::string() const
{
    return attributedString().string();
}

StyledText HostPDFSelection::attributedString() const
{
    StyledText result;
    for (const Part &part : m_parts) {
        const StyledText text = part.page->attributedString().value_or(StyledText());
        qsizetype end = 0;
        for (const TextRange &range : part.ranges) {
            // What was left out tells whether a line ended between two ranges.
            const QStringView skipped = QStringView(text.string()).mid(end, range.location - end);
            const bool isNewLine =
                skipped.contains(u'\n') || range.location == part.ranges.front().location;
            if (!result.isEmpty())
                result.append(isNewLine ? QStringLiteral("\n") : QStringLiteral(" "));
            result.append(text.attributedSubstring(range));
            end = range.end();
        }
    }
    return result;
}

void HostPDFSelection::addSelection(const HostPDFSelection &other)
{
    for (const Part &added : other.m_parts) {
        // Parts stand by page, so that a selection grows along a document in linear time.
        const auto it = std::lower_bound(
            m_parts.begin(), m_parts.end(), added,
            [](const Part &a, const Part &b) { return a.page->index() < b.page->index(); });
        if (it == m_parts.end() || it->page != added.page) {
            m_parts.insert(it, added);
            continue;
        }
        it->ranges.insert(it->ranges.end(), added.ranges.begin(), added.ranges.end());
        it->ranges = merged(std::move(it->ranges));
    }
}

} // namespace Tavrin
