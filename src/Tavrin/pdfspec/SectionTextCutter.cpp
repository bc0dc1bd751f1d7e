// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/SectionTextCutter.h>

#include <Tavrin/pdfspec/EntryExtractionError.h>
#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/pdfspec/FlatText.h>
#include <Tavrin/pdfspec/SectionHeadingFinder.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// How much of a page an error shows.
constexpr qsizetype excerpt = 100;

/// The stretches of a page that a cut touches, moved to where they stand in the result.
void addMappings(const FilteredPage &page, int pageIndex, TextRange cut, qsizetype offset,
                 std::vector<PDFSpecification::SourceRange> &mappings)
{
    for (const RangeMapping &mapping : page.mappings) {
        const qsizetype from = std::max(mapping.filtered.location, cut.location);
        const qsizetype to = std::min(mapping.filtered.end(), cut.end());
        if (from >= to)
            continue;
        const qsizetype inPage = mapping.page.location + from - mapping.filtered.location;
        mappings.push_back(
            {{offset + from - cut.location, to - from}, pageIndex, {inPage, to - from}});
    }
}

} // namespace

SectionTextCutter::SectionTextCutter(const PrintReader &print)
    : m_print(print), m_specification(print.specification())
{
}

HeadingPageInfo SectionTextCutter::findHeadings(const PDFSpecification::Entry &entry,
                                                int startPage) const
{
    HeadingPageInfo info;
    const auto own = m_print.sectionHeading(entry);
    if (!own) {
        const auto text = m_print.document()->textForPage(startPage);
        throw EntryExtractionError(EntryExtractionError::Kind::EntryTitleNotFound, entry.title(),
                                   startPage, text ? text->left(excerpt) : u"<unavailable>"_s);
    }
    info.headingPageIndex = own->page;
    info.headingText = own->flatText;
    info.headingRange = own->range;
    const auto next = EntryNavigator(m_specification).nextTextual(entry);
    if (!next)
        return info;
    if (const auto heading = m_print.sectionHeading(*next)) {
        info.nextHeadingPageIndex = heading->page;
        info.nextHeadingText = heading->flatText;
        info.nextHeadingRange = {heading->start, heading->range.end() - heading->start};
    } else {
        const auto &place = *next->destination();
        info.nextHeadingPageIndex = place.page()->index();
        info.nextHeadingRange = {SectionHeadingFinder(m_print).firstPositionBelow(place), 0};
    }
    return info;
}

PageTextSequence SectionTextCutter::sequence(const HeadingPageInfo &headings) const
{
    PageTextSequence pages;
    const int last = std::max(headings.headingPageIndex, headings.nextHeadingPageIndex);
    for (int index = headings.headingPageIndex; index <= last; ++index) {
        if (auto page = m_print.filteredPage(index))
            pages.emplace(index, std::move(page));
    }
    return pages;
}

TextRange SectionTextCutter::headingRange(const PDFSpecification::Entry &entry,
                                          const FilteredPage &page, int pageIndex,
                                          const QString &heading, TextRange inPage,
                                          qsizetype from) const
{
    // A heading's words can stand in the text above it, too: the printed place decides.
    const qsizetype hint = page.filteredPosition(inPage.location);
    const auto found = FlatText(page.text.string()).find(heading, hint, from);
    if (found)
        return *found;
    throw EntryExtractionError(EntryExtractionError::Kind::TitleNotFoundInFilteredText,
                               entry.title(), pageIndex, page.text.string().left(excerpt));
}

qsizetype SectionTextCutter::start(const PDFSpecification::Entry &entry, const FilteredPage &page,
                                   const HeadingPageInfo &headings) const
{
    const TextRange heading = headingRange(entry, page, headings.headingPageIndex,
                                           headings.headingText, headings.headingRange, 0);
    if (m_specification.shouldIncludeHeadingLine(headings.headingText, entry))
        return heading.location;
    return heading.end();
}

qsizetype SectionTextCutter::end(const PDFSpecification::Entry &entry, const FilteredPage &page,
                                 const HeadingPageInfo &headings, qsizetype from) const
{
    const TextRange next = headings.nextHeadingRange;
    if (headings.nextHeadingText.isEmpty())
        return std::max(from, page.filteredPosition(next.location));
    const TextRange heading = headingRange(entry, page, headings.nextHeadingPageIndex,
                                           headings.nextHeadingText, next, from);
    // What stands above the title and belongs to it is no part of this section either.
    const qsizetype above = page.filteredPosition(next.location);
    return above >= from && above < heading.location ? above : heading.location;
}

StyledText SectionTextCutter::cut(const PDFSpecification::Entry &entry, int startPage,
                                  std::vector<PDFSpecification::SourceRange> &mappings) const
{
    const HeadingPageInfo headings = findHeadings(entry, startPage);
    const PageTextSequence pages = sequence(headings);
    if (pages.empty()) {
        throw EntryExtractionError(EntryExtractionError::Kind::UnableToGeneratePresentationText);
    }
    StyledText result;
    for (const auto &[index, page] : pages) {
        const qsizetype from =
            index == headings.headingPageIndex ? start(entry, *page, headings) : 0;
        const qsizetype to = index == headings.nextHeadingPageIndex
                                 ? end(entry, *page, headings, from)
                                 : page->text.length();
        const TextRange range{from, std::max<qsizetype>(0, to - from)};
        if (!result.isEmpty() && range.length > 0)
            result.append(u"\n"_s);
        addMappings(*page, index, range, result.length(), mappings);
        result.append(page->text.attributedSubstring(range));
    }
    return result;
}

} // namespace Tavrin
