// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include <atomic>
#include <functional>
#include <mutex>

#include <Tavrin/model/SpecificationEntry.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/StyledTextEditing.h>

namespace Tavrin
{

/// An entry with a place in a PDF, and what a reader sees of it without opening the document: a
/// summary of a section or chapter, a picture of a figure or table.
///
/// Both are computed on first read, once, on the thread that reads; another thread that reads the
/// same entry meanwhile waits, and one that reads another entry does not. A computation that reads
/// its own entry sees what is there so far. What failed is not tried again.
///
/// The way to one leads over SpecificationEntry. Reading may take as long as an extraction, so a
/// host with windows reads on another thread, and holds the lock that keeps the file bound:
///
/// \snippet headless/main.cpp read
class TAVRIN_CORE_EXPORT PDFSpecification::Entry : public SpecificationEntry,
                                                   public std::enable_shared_from_this<Entry>
{
public:
    using SpecificationEntry::SpecificationEntry;

    std::shared_ptr<SpecificationEntry> copy() const override;

    /// The text of a section or chapter; absent for figures and tables, and where it can't be read.
    ///
    /// From heading to heading, without running heads, figures and tables; lines as in the print.
    /// Links within are spec URLs where they lead to entries. In systemFont() of smallFontSize. A
    /// child entry has its lines alone. That it can't be read is told on standard error, once.
    ///
    /// Whether it may be shown outside the document is another question:
    /// Specification::allowsPreviews().
    std::optional<StyledText> summaryText() const;
    /// What a display block calls. Absent makes it be computed anew only if needsComputeDisplay()
    /// is set, too.
    void setSummaryText(const std::optional<StyledText> &text);
    /// The picture of a figure or table, a pixel a point; absent for sections and chapters.
    ///
    /// For a display of more pixels, PDFSpecification::extractImage draws one anew.
    std::optional<QImage> previewImage() const;
    void setPreviewImage(const std::optional<QImage> &image);
    /// Where each line of the summary stands in the PDF.
    ///
    /// Absent for figures and tables. Lines without print are left out.
    std::optional<LineLocations> lineLocations() const;
    void setLineLocations(const std::optional<LineLocations> &lines);

    using DisplayBlock = std::function<void(Entry &)>;
    /// What computes the three above; binding installs it. Setting it makes them be computed anew
    /// where they are absent.
    const DisplayBlock &displayBlock() const { return m_displayBlock; }
    void setDisplayBlock(DisplayBlock block);
    /// Whether reading what is shown may take an extraction. Does not wait for one that runs.
    bool needsComputeDisplay() const { return m_needsComputeDisplay; }
    /// Setting it has the display block run once more with the next read of what is absent. Waits
    /// for a computation that runs.
    void setNeedsComputeDisplay(bool needs);
    /// Computes them now, if that was not done yet. Any thread.
    ///
    /// Does nothing for an entry that no document was ever bound for. What the block throws passes
    /// through, and that counts as done.
    void computeDisplay() const;

    /// Kind with number and title, source, summary or preview, a link into the document, related
    /// entries. Texts are StyledText, the preview is a QImage, related entries are a list of
    /// StyledText with links. Made on each read; may take as long as an extraction.
    ///
    /// Where neither summary nor preview could be read, the first two rows are all. Where the map
    /// allows no previews, both stay away, and the link remains.
    std::vector<EntryDisplayItem> displayItems() const override;
    /// The first of them, which take no extraction: kind with number and title, source.
    std::vector<EntryDisplayItem> knownDisplayItems() const;

    /// The link to the place, as the map has it or an enhancer found it. Without one the label
    /// itself is the link.
    ///
    /// The forms are told in \ref map-format-links-into-the-pdf.
    const std::optional<QString> &internalLink() const { return m_internalLink; }
    void setInternalLink(const std::optional<QString> &link) { m_internalLink = link; }

    /// Where the entry begins; absent while nothing is bound and where the link leads nowhere.
    ///
    /// As the map has it, so a figure's may be its caption's; PDFSpecification::pageRectInfo tells
    /// where the entry itself is.
    const std::optional<HostPDFDestination> &destination() const { return m_destination; }
    /// Setting what it is already writes nothing, so that whoever reads meanwhile isn't disturbed.
    void setDestination(const std::optional<HostPDFDestination> &place)
    {
        if (place != m_destination)
            m_destination = place;
    }

    /// The entry's rectangles by page, if its link gives them.
    const std::optional<PageRects> &destinationRects() const { return m_destinationRects; }
    void setDestinationRects(const std::optional<PageRects> &rects)
    {
        if (rects != m_destinationRects)
            m_destinationRects = rects;
    }

    /// The lines of the parent that this entry stands for, from `lower` up to but not including
    /// `upper`; absent for an entry that is no child.
    const std::optional<StyledTextEditing::LineRange> &lineRange() const { return m_lineRange; }
    /// The entry whose lines these are; null for an entry that is no child.
    std::shared_ptr<Entry> parentEntry() const { return m_parentEntry.lock(); }
    /// The child for a range of lines: the same object for the same range. Owned by this entry.
    /// Any thread, as long as nobody changes the entry.
    ///
    /// It has the label, title and place of its parent, and of its text those lines. Nothing checks
    /// that there are so many lines: if not, that is a line on standard error, and its text is the
    /// whole. PDFSpecification::entry gives children by spec URL and by selection.
    std::shared_ptr<Entry> childEntry(StyledTextEditing::LineRange range);

protected:
    /// Gives a fresh entry of the same label all else that a copy has.
    void copyValuesTo(Entry &other) const;

private:
    template <class Value>
    std::optional<Value> lazy(const std::optional<Value> Entry::*field) const;
    template <class Value>
    std::optional<Value> cached(const std::optional<Value> Entry::*field) const;

    std::optional<StyledText> m_summaryText;
    std::optional<QImage> m_previewImage;
    std::optional<LineLocations> m_lineLocations;
    /// Guards the three above, for as long as it takes to copy one.
    mutable std::mutex m_valueLock;
    DisplayBlock m_displayBlock;
    mutable bool m_computingDisplay = false;
    mutable std::atomic<bool> m_needsComputeDisplay = true;
    /// Guards changes of the three above, and is held while the block runs. Recursive, so that the
    /// block may read the entry.
    mutable std::recursive_mutex m_displayItemsLock;
    std::optional<StyledTextEditing::LineRange> m_lineRange;
    std::weak_ptr<Entry> m_parentEntry;
    std::vector<std::shared_ptr<Entry>> m_childEntries;
    std::mutex m_childEntriesLock;
    std::optional<QString> m_internalLink;
    std::optional<HostPDFDestination> m_destination;
    std::optional<PageRects> m_destinationRects;
};

} // namespace Tavrin
