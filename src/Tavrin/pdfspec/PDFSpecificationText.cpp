// SPDX-License-Identifier: Apache-2.0
// The part of PDFSpecification that reads texts, previews and links.
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <Tavrin/pdf/PDFString.h>
#include <Tavrin/pdfspec/BulletText.h>
#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/pdfspec/LinkReader.h>
#include <Tavrin/pdfspec/PageFilter.h>
#include <Tavrin/pdfspec/PreviewPainter.h>
#include <Tavrin/pdfspec/ReadingCache.h>
#include <Tavrin/pdfspec/SectionHeadingFinder.h>
#include <Tavrin/pdfspec/SectionTextCutter.h>
#include <Tavrin/pdfspec/SummaryMaker.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/SystemFont.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using SourceRange = PDFSpecification::SourceRange;

/// By how much a heading's line must be longer than the title to be more than a heading.
constexpr qsizetype runInExcess = 19;

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

std::optional<SectionHeading> PDFSpecification::sectionHeading(const Entry &entry) const
{
    const auto parent = entry.parentEntry();
    const Entry *key = parent ? parent.get() : &entry;
    // Of others nobody knows how long they live.
    if (!EntryNavigator(*this).isListed(*key))
        return SectionHeadingFinder(*this).find(*key);
    return *m_reading->get(&ReadingCache::headings, key, [this, key] {
        return std::make_shared<const ReadingCache::Heading>(
            SectionHeadingFinder(*this).find(*key));
    });
}

HeadingPageInfo PDFSpecification::findHeadingPageInfo(const Entry &entry, int startPage) const
{
    return SectionTextCutter(*this).findHeadings(entry, startPage);
}

std::shared_ptr<const FilteredPage> PDFSpecification::filteredPage(int index) const
{
    const auto page = m_cachingDocument ? m_cachingDocument->page(index) : nullptr;
    if (!page) {
        if (!m_cachingDocument)
            standardError(u"No document has been set"_s);
        return nullptr;
    }
    return m_reading->get(&ReadingCache::pages, index, [&] {
        auto filtered = PageFilter(*this).filter(*page);
        preformatPDFText(filtered->text);
        return filtered;
    });
}

std::optional<StyledText>
PDFSpecification::attributedSectionText(const Entry &entry, int startPage,
                                        std::vector<SourceRange> &mappings) const
{
    if (!m_cachingDocument)
        return std::nullopt;
    return SectionTextCutter(*this).cut(entry, startPage, mappings);
}

std::optional<StyledText> PDFSpecification::extractText(const Entry &entry,
                                                        LineLocations &lineRects) const
{
    const auto &place = entry.destination();
    if (!m_cachingDocument || !place || !place->page())
        return std::nullopt;
    if (!isTextual(entry.type()))
        return extractTextFromGraphicalEntry(entry);
    std::vector<SourceRange> mappings;
    const auto section = attributedSectionText(entry, place->page()->index(), mappings);
    if (!section)
        return std::nullopt;
    StyledText result;
    lineRects.clear();
    TextRange line;
    for (line.location = 0; line.location < section->length(); line.location = line.end() + 1) {
        const qsizetype end = section->string().indexOf(u'\n', line.location);
        line.length = (end < 0 ? section->length() : end) - line.location;
        const StyledText text = section->attributedSubstring(line);
        const SourceRange *origin = isBlank(text) ? nullptr : source(mappings, line);
        const auto page = origin ? m_cachingDocument->page(origin->page) : nullptr;
        if (!page)
            continue;
        const StyledText formatted = formattedLine(text);
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

std::optional<StyledText> PDFSpecification::extractTextFromGraphicalEntry(const Entry &entry) const
{
    const auto info = isTextual(entry.type()) ? std::nullopt : pageRectInfo(entry);
    if (!info)
        return std::nullopt;
    StyledText result;
    for (const auto &[index, rect] : info->pageRects) {
        if (const auto page = m_cachingDocument->page(index)) {
            result.append(page->selection(rect).attributedString());
            result.append(u"\n"_s);
        }
    }
    return result;
}

bool PDFSpecification::shouldIncludeHeadingLine(const QString &line, const Entry &entry) const
{
    return line.size() - entry.title().size() > runInExcess;
}

void PDFSpecification::preformatPDFText(StyledText &text) const
{
    BulletText::beginLines(text);
    BulletText::replaceBullets(text);
    StyledTextEditing::setPrimaryFont(text, systemFont(smallFontSize));
}

StyledText PDFSpecification::formattedLine(const StyledText &text) const
{
    StyledText line = text;
    line.append(u"\n"_s);
    return line;
}

void PDFSpecification::loadPDFPreview(Entry &entry) const
{
    if (isTextual(entry.type())) {
        if (!entry.summaryText())
            SummaryMaker(*this).make(entry);
    } else if (!entry.previewImage()) {
        const QImage image = extractImage(entry);
        if (!image.isNull())
            entry.setPreviewImage(image);
    }
}

QImage PDFSpecification::extractImage(const Entry &entry, double scale) const
{
    const auto info = m_cachingDocument ? pageRectInfo(entry) : std::nullopt;
    return info ? PreviewPainter(*m_cachingDocument, scale).paint(info->pageRects) : QImage();
}

std::vector<LinkRecord> PDFSpecification::readLinks(const PDFDictionary &page) const
{
    return LinkReader::namedLinks(page, m_readingPolicy);
}

std::vector<std::vector<HostPDFDestination>>
PDFSpecification::readDestinationsFromPages(const HostPDFDocument &) const
{
    std::vector<std::vector<HostPDFDestination>> pages;
    for (std::size_t index = 0; index < m_pageDictionaries.size(); ++index) {
        bool hasAnnotations = false;
        const auto links =
            LinkReader::targets(*m_pageDictionaries[index], m_readingPolicy, &hasAnnotations);
        if (!hasAnnotations)
            standardError(u"Page %1 has no annotations dictionary"_s.arg(index));
        auto &places = pages.emplace_back();
        for (const LinkReader::Target &link : links) {
            if (const auto place = linkDestination(link.destination))
                places.push_back(*place);
        }
    }
    return pages;
}

std::optional<HostPDFDestination>
PDFSpecification::linkDestination(const PDFObjectPtr &destination) const
{
    if (const auto array = std::dynamic_pointer_cast<PDFArray>(destination))
        return destinationFromPDFRepresentation(*array, m_pageDictionaries);
    const auto name = std::dynamic_pointer_cast<PDFString>(destination);
    const auto place = name ? m_linkDestinationMapping.constFind(name->value())
                            : m_linkDestinationMapping.constEnd();
    return place == m_linkDestinationMapping.constEnd() ? std::nullopt : std::optional(*place);
}

} // namespace Tavrin
