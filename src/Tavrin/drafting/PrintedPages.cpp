// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/PrintedPages.h>

#include <Tavrin/drafting/HeadingNumber.h>
#include <Tavrin/drafting/TextKey.h>
#include <Tavrin/pdf/PageText.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace Tavrin
{

namespace
{

/// Takes the fonts of a page's runs line by line; both are in the order of the text.
class LineFonts
{
public:
    explicit LineFonts(const StyledText &text) : m_runs(text.runs()) {}

    void apply(TextRange range, PrintedLine &line)
    {
        while (m_next < m_runs.size() && m_runs[m_next].range.end() <= range.location)
            ++m_next;
        std::map<double, qsizetype> unitsBySize;
        qsizetype bold = 0;
        qsizetype all = 0;
        for (size_t i = m_next; i < m_runs.size() && m_runs[i].range.location < range.end(); ++i) {
            const auto &font = m_runs[i].attributes.font;
            if (!font)
                continue;
            const qsizetype units = std::min(m_runs[i].range.end(), range.end()) -
                                    std::max(m_runs[i].range.location, range.location);
            if (all == 0)
                line.beginsStyled = font->isStyled();
            all += units;
            bold += font->isBold() ? units : 0;
            unitsBySize[std::round(font->pointSize * 10) / 10] += units;
        }
        if (unitsBySize.empty())
            return;
        const auto fewer = [](const auto &a, const auto &b) { return a.second < b.second; };
        line.size = std::max_element(unitsBySize.begin(), unitsBySize.end(), fewer)->first;
        line.largestSize = unitsBySize.rbegin()->first;
        line.isBold = 10 * bold >= 8 * all;
    }

private:
    std::vector<StyledText::Run> m_runs;
    size_t m_next = 0;
};

bool isSideways(const PrintedLine &line)
{
    return line.text.size() > 2 && line.bounds.size.height > 3 * line.bounds.size.width;
}

bool standsBeside(const PrintedLine &number, const PrintedLine &title)
{
    const double gap = title.bounds.minX() - number.bounds.maxX();
    const double size = std::max(number.largestSize, 1.0);
    return gap > -1 && gap < 8 * size && number.middle() > title.bottom() &&
           number.middle() < title.top() && std::abs(number.size - title.size) < 0.5 * size;
}

/// "4.2" and "Scope" on one baseline are one heading, however wide the gap.
void joinNumbers(std::vector<PrintedLine> &lines)
{
    size_t kept = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        PrintedLine &line = lines[i];
        if (kept > 0 && standsBeside(lines[kept - 1], line) &&
            HeadingNumber::parseWhole(lines[kept - 1].text)) {
            PrintedLine &number = lines[kept - 1];
            number.text += QLatin1Char(' ') + line.text;
            number.bounds = number.bounds.united(line.bounds);
            number.size = line.size;
            number.largestSize = std::max(number.largestSize, line.largestSize);
            number.isBold = number.isBold && line.isBold;
            continue;
        }
        if (kept != i)
            lines[kept] = std::move(line);
        ++kept;
    }
    lines.resize(kept);
}

} // namespace

PrintedPages::PrintedPages(std::shared_ptr<CachingPDFDocument> document)
    : m_document(std::move(document)), m_pages(static_cast<size_t>(m_document->pageCount()))
{
}

PrintedPages::PrintedPages(std::vector<std::vector<PrintedLine>> lines, Size size)
    : m_fixedSize(size)
{
    for (auto &page : lines)
        m_pages.push_back({true, std::move(page)});
}

const std::vector<PrintedLine> &PrintedPages::lines(int page) const
{
    static const std::vector<PrintedLine> none;
    if (page < 0 || page >= pageCount())
        return none;
    Page &entry = m_pages[static_cast<size_t>(page)];
    if (!entry.isRead) {
        entry.lines = read(page);
        entry.isRead = true;
    }
    return entry.lines;
}

std::vector<PrintedLine> PrintedPages::read(int index) const
{
    const auto page = m_document->page(index);
    const auto text = page ? page->text() : nullptr;
    if (!text)
        return {};
    std::vector<PrintedLine> result;
    LineFonts fonts(text->styledText());
    for (const PageTextLine &source : text->lines()) {
        PrintedLine line;
        const qsizetype length = std::min(source.range.length, longestLine);
        line.text = TextKey::clean(text->string().mid(source.range.location, length));
        line.bounds = page->geometry().toUpright(source.bounds);
        fonts.apply(source.range, line);
        if (!line.text.isEmpty() && !isSideways(line))
            result.push_back(std::move(line));
    }
    joinNumbers(result);
    return result;
}

Size PrintedPages::size(int index) const
{
    if (!m_document)
        return m_fixedSize;
    const auto page = m_document->page(index);
    return page ? page->geometry().uprightSize() : Size{};
}

PageGeometry PrintedPages::geometry(int index) const
{
    if (const auto page = m_document ? m_document->page(index) : nullptr)
        return page->geometry();
    const Rect box{{0, 0}, m_fixedSize};
    return {box, box, 0};
}

double PrintedPages::bodySize() const
{
    if (m_bodySize > 0)
        return m_bodySize;
    std::map<double, qsizetype> unitsBySize;
    for (const int page : sample(60)) {
        for (const PrintedLine &line : lines(page))
            unitsBySize[line.size] += line.text.size();
    }
    const auto fewer = [](const auto &a, const auto &b) { return a.second < b.second; };
    const auto most = std::max_element(unitsBySize.begin(), unitsBySize.end(), fewer);
    m_bodySize = most != unitsBySize.end() && most->first > 0 ? most->first : 10;
    return m_bodySize;
}

std::vector<int> PrintedPages::sample(int count) const
{
    std::vector<int> result;
    const int pages = pageCount();
    const int taken = std::min(count, pages);
    for (int i = 0; i < taken; ++i) {
        const int page = static_cast<int>(static_cast<qint64>(i) * pages / taken);
        // Every other one takes a neighbour where the step would keep to left or right pages.
        const bool shift = pages >= 2 * taken && (page % 2 != i % 2);
        result.push_back(shift ? page + 1 : page);
    }
    return result;
}

} // namespace Tavrin
