// SPDX-License-Identifier: Apache-2.0
// The part of PDFSpecification that reads the shape of the print.
#include <Tavrin/pdfspec/PDFSpecification.h>

#include <Tavrin/pdfspec/HeadingEnumerator.h>
#include <Tavrin/pdfspec/LayoutMeasurer.h>
#include <Tavrin/pdfspec/ReadingCache.h>
#include <Tavrin/platform/CharacterSet.h>

#include <cmath>

namespace Tavrin
{

namespace
{

constexpr int textSizeInterval = 100;
constexpr int leftMarginInterval = 50;
/// A body line starts at the margin, to within less than this.
constexpr double marginTolerance = 1;

} // namespace

double PDFSpecification::normalTextSize() const
{
    if (!m_cachingDocument && !m_reading->knows(ReadingCache::Measure::TextSize))
        return 0;
    return *m_reading->measure(&ReadingCache::measures, ReadingCache::Measure::TextSize, [this] {
        return std::make_shared<const double>(
            computeNormalTextSize(*m_cachingDocument, textSizeInterval));
    });
}

double PDFSpecification::leftMargin() const
{
    if (!m_cachingDocument && !m_reading->knows(ReadingCache::Measure::LeftMargin))
        return 0;
    return *m_reading->measure(&ReadingCache::measures, ReadingCache::Measure::LeftMargin, [this] {
        return std::make_shared<const double>(
            computeLeftMargin(*m_cachingDocument, PDFBox::Media, leftMarginInterval));
    });
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
    bodyShape();
}

std::shared_ptr<const BodyShape> PDFSpecification::bodyShape() const
{
    return m_reading->measure(&ReadingCache::shapes, 0, [this] {
        return std::make_shared<const BodyShape>(*m_cachingDocument, normalTextSize());
    });
}

std::shared_ptr<const PageLines> PDFSpecification::pageLines(const HostPDFPage &page) const
{
    return m_reading->get(&ReadingCache::lines, page.index(),
                          [&page] { return std::make_shared<const PageLines>(page); });
}

std::shared_ptr<const std::vector<bool>>
PDFSpecification::headingLines(const HostPDFPage &page) const
{
    return m_reading->get(&ReadingCache::headingLines, page.index(), [&] {
        auto flags = std::make_shared<std::vector<bool>>();
        const auto lines = pageLines(page);
        for (const PageLine &line : *lines)
            flags->push_back(isTextHeading(lines->styled(line), line.bounds, page));
        return flags;
    });
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

} // namespace Tavrin
