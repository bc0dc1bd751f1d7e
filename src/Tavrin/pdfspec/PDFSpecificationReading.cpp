// SPDX-License-Identifier: Apache-2.0
// The part of PDFSpecification that reads the print: what it offers hosts, and what a subclass may
// say otherwise. Others do the work.
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <Tavrin/pdf/PDFString.h>
#include <Tavrin/pdfspec/BulletText.h>
#include <Tavrin/pdfspec/EntryLocator.h>
#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/pdfspec/HeadingEnumerator.h>
#include <Tavrin/pdfspec/LayoutMeasurer.h>
#include <Tavrin/pdfspec/LinkReader.h>
#include <Tavrin/pdfspec/PreviewPainter.h>
#include <Tavrin/pdfspec/PrintReader.h>
#include <Tavrin/pdfspec/SectionTextCutter.h>
#include <Tavrin/pdfspec/SummaryMaker.h>
#include <Tavrin/pdfspec/TextExtractor.h>
#include <Tavrin/platform/CharacterSet.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/SystemFont.h>

#include <cmath>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// A body line starts at the margin, to within less than this.
constexpr double marginTolerance = 1;
/// By how much a heading's line must be longer than the title to be more than a heading.
constexpr qsizetype runInExcess = 19;

/// The place that a link's target means, written as an array or as a name.
std::optional<HostPDFDestination> placeOf(const PDFObjectPtr &target,
                                          const PDFSpecification &specification)
{
    if (const auto array = std::dynamic_pointer_cast<PDFArray>(target)) {
        return specification.destinationFromPDFRepresentation(*array,
                                                              specification.pageDictionaries());
    }
    const auto name = std::dynamic_pointer_cast<PDFString>(target);
    const auto &places = specification.linkDestinationMapping();
    const auto place = name ? places.constFind(name->value()) : places.constEnd();
    return place == places.constEnd() ? std::nullopt : std::optional(*place);
}

} // namespace

// The shape of the print

double PDFSpecification::normalTextSize() const
{
    return m_print->normalTextSize();
}

double PDFSpecification::leftMargin() const
{
    return m_print->leftMargin();
}

double PDFSpecification::computeNormalTextSize(const CachingPDFDocument &document,
                                               int interval) const
{
    return LayoutMeasurer::textSize(document, {1, interval});
}

double PDFSpecification::computeLeftMargin(const CachingPDFDocument &document, PDFBox box,
                                           int interval) const
{
    return LayoutMeasurer::leftMargin(document, box, {1, interval});
}

void PDFSpecification::measurePrint() const
{
    if (!m_cachingDocument)
        return;
    leftMargin();
    // The text size is part of it.
    m_print->bodyShape();
}

Rect PDFSpecification::readingArea(const HostPDFPage &page) const
{
    return m_pageBounds.value_or(page.bounds(PDFBox::Media));
}

void PDFSpecification::enumerateHeadings(const StyledText &text,
                                         const HeadingCallback &callback) const
{
    HeadingEnumerator(normalTextSize(), callback).enumerate(text);
}

bool PDFSpecification::isTextHeading(const StyledText &text, const Rect &,
                                     const HostPDFPage &) const
{
    const auto &font = text.attributesAt(0).font;
    return font && (font->isStyled() || font->pointSize > normalTextSize());
}

bool PDFSpecification::isLinePartOfLayoutBreak(const Rect &rect, const HostPDFPage &) const
{
    return std::abs(rect.minX() - leftMargin()) >= marginTolerance;
}

bool PDFSpecification::isLineStartOfLayoutBreak(const QString &text, const Rect &,
                                                const Entry &entry, const HostPDFPage &) const
{
    return textContainsTitle(text, entry.title());
}

bool PDFSpecification::textContainsTitle(const QString &text, const QString &title) const
{
    if (text.contains(title))
        return true;
    QString closedUp = title;
    closedUp.removeIf(CharacterSet::isWhiteSpace);
    return text.contains(closedUp);
}

// Places of entries

const PDFSpecification::LayoutBreaks &PDFSpecification::layoutBreaks(int page) const
{
    return m_print->layoutBreaks(page);
}

std::optional<EntryPageInfo> PDFSpecification::pageRectInfo(const Entry &entry) const
{
    return EntryLocator(*m_print).rects(entry);
}

std::optional<StyledTextEditing::LineRange>
PDFSpecification::lineRange(const HostPDFSelection &selection, const Entry &entry) const
{
    return EntryLocator(*m_print).lineRange(selection, entry);
}

std::optional<LineLocations> PDFSpecification::lineLocations(StyledTextEditing::LineRange range,
                                                             const Entry &entry) const
{
    return EntryLocator(*m_print).lineLocations(range, entry);
}

std::optional<HostPDFSelection>
PDFSpecification::selection(const Entry &entry,
                            std::optional<StyledTextEditing::LineRange> range) const
{
    return EntryLocator(*m_print).selection(entry, range);
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::closestEntry(const HostPDFDestination &place) const
{
    return EntryLocator(*m_print).closest(place);
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::nextEntry(const SpecificationEntry &entry) const
{
    const auto *known = dynamic_cast<const Entry *>(&entry);
    return known ? EntryNavigator(*this).next(*known) : nullptr;
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::previousEntry(const SpecificationEntry &entry) const
{
    const auto *known = dynamic_cast<const Entry *>(&entry);
    return known ? EntryNavigator(*this).previous(*known) : nullptr;
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::entry(const HostPDFDestination &place) const
{
    return EntryNavigator(*this).at(place);
}

std::shared_ptr<PDFSpecification::Entry> PDFSpecification::entry(const HostPDFSelection &selection)
{
    auto found = EntryLocator(*m_print).closest(selection);
    const auto range =
        found && isTextual(found->type()) ? lineRange(selection, *found) : std::nullopt;
    if (!range)
        return found;
    auto child = found->childEntry(*range);
    initializeEntry(*child);
    return child;
}

// Texts

std::optional<StyledText> PDFSpecification::extractText(const Entry &entry,
                                                        LineLocations &lineRects) const
{
    return TextExtractor(*m_print).text(entry, lineRects);
}

std::optional<StyledText>
PDFSpecification::attributedSectionText(const Entry &entry, int startPage,
                                        std::vector<SourceRange> &mappings) const
{
    if (!m_cachingDocument)
        return std::nullopt;
    return SectionTextCutter(*m_print).cut(entry, startPage, mappings);
}

HeadingPageInfo PDFSpecification::findHeadingPageInfo(const Entry &entry, int startPage) const
{
    return SectionTextCutter(*m_print).findHeadings(entry, startPage);
}

std::optional<StyledText> PDFSpecification::extractTextFromGraphicalEntry(const Entry &entry) const
{
    return TextExtractor(*m_print).graphicalText(entry);
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

std::shared_ptr<const FilteredPage> PDFSpecification::filteredPage(int page) const
{
    if (m_cachingDocument)
        return m_print->filteredPage(page);
    standardError(u"No document has been set"_s);
    return nullptr;
}

// Summaries, previews and links

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
            if (const auto place = placeOf(link.destination, *this))
                places.push_back(*place);
        }
    }
    return pages;
}

} // namespace Tavrin
