// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PageLines.h>

#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/pdf/PageText.h>
#include <Tavrin/platform/StyledTextEditing.h>

#include <QHash>

#include <algorithm>

namespace Tavrin
{

PageLines::PageLines(const HostPDFPage &page)
{
    const auto text = page.text();
    if (!text)
        return;
    m_text = text->styledText();
    QHash<qsizetype, Rect> bounds;
    for (const PageTextLine &line : text->lines())
        bounds.insert(line.range.location, page.geometry().toUpright(line.bounds));
    for (const TextRange &range : LineFinder::lines(page)) {
        m_lines.push_back({range, bounds.value(range.location, Rect::null()),
                           text->characterBounds(range.location),
                           StyledTextEditing::primaryFont(m_text, range).value_or(TextFont())});
    }
}

QString PageLines::string(const PageLine &line) const
{
    return m_text.string().mid(line.range.location, line.range.length);
}

StyledText PageLines::styled(const PageLine &line) const
{
    return m_text.attributedSubstring(line.range);
}

std::optional<std::size_t> PageLines::next(std::size_t index) const
{
    constexpr std::size_t reach = 6;
    const Rect &line = m_lines[index].bounds;
    for (std::size_t i = index + 1; i < std::min(m_lines.size(), index + 1 + reach); ++i) {
        const Rect &other = m_lines[i].bounds;
        if (other.minX() <= line.maxX() && other.maxX() >= line.minX())
            return i;
    }
    return std::nullopt;
}

double PageLines::width() const
{
    Rect all = Rect::null();
    for (const PageLine &line : m_lines)
        all = all.united(line.bounds);
    return all.size.width;
}

} // namespace Tavrin
