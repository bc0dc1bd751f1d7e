// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

#include <Tavrin/pdfspec/EntryDisplay.h>

#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace Tavrin
{

std::shared_ptr<SpecificationEntry> PDFSpecification::Entry::copy() const
{
    auto result = std::make_shared<Entry>(specification(), label(), title(), type(), index());
    copyValuesTo(*result);
    return result;
}

void PDFSpecification::Entry::copyValuesTo(Entry &other) const
{
    other.setKeywords(keywords());
    other.setRelatedEntries(relatedEntries());
    other.setInternalLink(m_internalLink);
    other.setDestination(m_destination);
    other.m_displayBlock = m_displayBlock;
    other.m_needsComputeDisplay = needsComputeDisplay();
}

std::shared_ptr<PDFSpecification::Entry>
PDFSpecification::Entry::childEntry(StyledTextEditing::LineRange range)
{
    const std::lock_guard lock(m_childEntriesLock);
    const auto it =
        std::find_if(m_childEntries.begin(), m_childEntries.end(),
                     [&range](const auto &child) { return child->lineRange() == range; });
    if (it != m_childEntries.end())
        return *it;
    auto child = std::static_pointer_cast<Entry>(copy());
    child->m_lineRange = range;
    child->m_parentEntry = weak_from_this();
    m_childEntries.push_back(child);
    return child;
}

// Display

template <class Value>
std::optional<Value> PDFSpecification::Entry::cached(const std::optional<Value> Entry::*field) const
{
    const std::lock_guard lock(m_valueLock);
    return this->*field;
}

template <class Value>
std::optional<Value> PDFSpecification::Entry::lazy(const std::optional<Value> Entry::*field) const
{
    // Most reads end here, and never wait for a computation.
    if (auto value = cached(field))
        return value;
    computeDisplay();
    return cached(field);
}

std::optional<StyledText> PDFSpecification::Entry::summaryText() const
{
    return lazy<StyledText>(&Entry::m_summaryText);
}

void PDFSpecification::Entry::setSummaryText(const std::optional<StyledText> &text)
{
    const std::lock_guard lock(m_valueLock);
    m_summaryText = text;
}

std::optional<QImage> PDFSpecification::Entry::previewImage() const
{
    return lazy<QImage>(&Entry::m_previewImage);
}

void PDFSpecification::Entry::setPreviewImage(const std::optional<QImage> &image)
{
    const std::lock_guard lock(m_valueLock);
    m_previewImage = image;
}

std::optional<LineLocations> PDFSpecification::Entry::lineLocations() const
{
    return lazy<LineLocations>(&Entry::m_lineLocations);
}

void PDFSpecification::Entry::setLineLocations(const std::optional<LineLocations> &lines)
{
    const std::lock_guard lock(m_valueLock);
    m_lineLocations = lines;
}

void PDFSpecification::Entry::setDisplayBlock(DisplayBlock block)
{
    const std::lock_guard lock(m_displayItemsLock);
    m_displayBlock = std::move(block);
    m_needsComputeDisplay = true;
}

void PDFSpecification::Entry::setNeedsComputeDisplay(bool needs)
{
    const std::lock_guard lock(m_displayItemsLock);
    m_needsComputeDisplay = needs;
}

void PDFSpecification::Entry::computeDisplay() const
{
    const std::lock_guard lock(m_displayItemsLock);
    if (!m_displayBlock || m_computingDisplay || !m_needsComputeDisplay)
        return;
    m_computingDisplay = true;
    const auto done = qScopeGuard([this] {
        m_computingDisplay = false;
        m_needsComputeDisplay = false;
    });
    // The values are a cache: filling them does not change what the entry is.
    m_displayBlock(const_cast<Entry &>(*this));
}

std::vector<EntryDisplayItem> PDFSpecification::Entry::displayItems() const
{
    return EntryDisplay(*this).items();
}

std::vector<EntryDisplayItem> PDFSpecification::Entry::knownDisplayItems() const
{
    return EntryDisplay(*this).knownItems();
}

} // namespace Tavrin
