// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PrintReader.h>

#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/pdfspec/LayoutBreakMeasurer.h>
#include <Tavrin/pdfspec/PageFilter.h>
#include <Tavrin/pdfspec/SectionHeadingFinder.h>

namespace Tavrin
{

namespace
{

constexpr int textSizeInterval = 100;
constexpr int leftMarginInterval = 50;

} // namespace

PrintReader::PrintReader(const PDFSpecification &specification) : m_specification(specification) {}

const std::shared_ptr<CachingPDFDocument> &PrintReader::document() const
{
    return m_specification.document();
}

double PrintReader::normalTextSize() const
{
    if (!document() && !m_cache.knows(ReadingCache::Measure::TextSize))
        return 0;
    return *m_cache.measure(&ReadingCache::measures, ReadingCache::Measure::TextSize, [this] {
        return std::make_shared<const double>(
            m_specification.computeNormalTextSize(*document(), textSizeInterval));
    });
}

double PrintReader::leftMargin() const
{
    if (!document() && !m_cache.knows(ReadingCache::Measure::LeftMargin))
        return 0;
    return *m_cache.measure(&ReadingCache::measures, ReadingCache::Measure::LeftMargin, [this] {
        return std::make_shared<const double>(
            m_specification.computeLeftMargin(*document(), PDFBox::Media, leftMarginInterval));
    });
}

std::shared_ptr<const BodyShape> PrintReader::bodyShape() const
{
    return m_cache.measure(&ReadingCache::shapes, 0, [this] {
        return std::make_shared<const BodyShape>(*document(), normalTextSize());
    });
}

std::shared_ptr<const PageLines> PrintReader::pageLines(const HostPDFPage &page) const
{
    return m_cache.get(&ReadingCache::lines, page.index(),
                       [&page] { return std::make_shared<const PageLines>(page); });
}

std::shared_ptr<const std::vector<bool>> PrintReader::headingLines(const HostPDFPage &page) const
{
    return m_cache.get(&ReadingCache::headingLines, page.index(), [&] {
        auto flags = std::make_shared<std::vector<bool>>();
        const auto lines = pageLines(page);
        for (const PageLine &line : *lines)
            flags->push_back(m_specification.isTextHeading(lines->styled(line), line.bounds, page));
        return flags;
    });
}

std::optional<SectionHeading>
PrintReader::sectionHeading(const PDFSpecification::Entry &entry) const
{
    const auto parent = entry.parentEntry();
    const PDFSpecification::Entry *key = parent ? parent.get() : &entry;
    // Of others nobody knows how long they live.
    if (!EntryNavigator(m_specification).isListed(*key))
        return SectionHeadingFinder(*this).find(*key);
    return *m_cache.get(&ReadingCache::headings, key, [this, key] {
        return std::make_shared<const ReadingCache::Heading>(
            SectionHeadingFinder(*this).find(*key));
    });
}

const PDFSpecification::LayoutBreaks &PrintReader::layoutBreaks(int page) const
{
    return *m_cache.get(&ReadingCache::breaks, page, [this, page] {
        auto breaks = std::make_shared<PDFSpecification::LayoutBreaks>();
        if (document()) {
            LayoutBreakMeasurer(*this).measure(page, [&](const auto &entry, const auto &info) {
                breaks->emplace_back(entry, info);
            });
        }
        return breaks;
    });
}

std::shared_ptr<const FilteredPage> PrintReader::filteredPage(int index) const
{
    const auto page = document()->page(index);
    if (!page)
        return nullptr;
    return m_cache.get(&ReadingCache::pages, index, [&] {
        auto filtered = PageFilter(*this).filter(*page);
        m_specification.preformatPDFText(filtered->text);
        return filtered;
    });
}

} // namespace Tavrin
