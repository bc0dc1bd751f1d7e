// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QImage>
#include <QMap>
#include <QUrl>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <shared_mutex>
#include <stdexcept>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/Specification.h>
#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdf/PDFArray.h>
#include <Tavrin/pdf/PDFDictionary.h>
#include <Tavrin/pdfspec/EntryPageInfo.h>
#include <Tavrin/pdfspec/HeadingPageInfo.h>
#include <Tavrin/pdfspec/LineLocation.h>
#include <Tavrin/pdfspec/LinkRecord.h>
#include <Tavrin/pdfspec/PDFReadingPolicy.h>
#include <Tavrin/pdfspec/PageTextSequence.h>
#include <Tavrin/platform/StyledTextEditing.h>

namespace Tavrin
{

class PrintReader;

/// A specification whose entries live in a PDF that the user imported.
///
/// Unbound until a file is assigned to its requirement, or a document is loaded outright. Binding
/// reads the page tree and the named destinations and gives every entry its place; a second file
/// replaces the first. Bound and changed by one thread at a time; once bound, the open document and
/// everything under "reading" below may be read from several.
///
/// Trouble with one link or entry is a line on standard error, and that entry has no place; the
/// binding goes on.
class TAVRIN_CORE_EXPORT PDFSpecification : public Specification
{
public:
    class Entry;

    /// Why the structure of a PDF could not be read.
    class TAVRIN_CORE_EXPORT ParseError : public std::runtime_error
    {
    public:
        /// What could not be read.
        enum class Kind { StructureReadError, InvalidPDF, PDFOutlineNotFound, OutlineError };

        /// what() is the message, or says so in general.
        explicit ParseError(Kind kind, const QString &message = {});

        Kind kind;
        /// Only structure errors have one.
        QString message;
    };

    /// Rectangles in page space by page index, from 0.
    using PageRects = std::map<int, Rect>;

    /// For Specification::make: a specification is never made on its own.
    PDFSpecification();
    ~PDFSpecification() override;

    /// Which of the file's ways to write a place are read; Strict unless set. Takes effect with
    /// the next file that is bound, so set it before.
    PDFReadingPolicy readingPolicy() const { return m_readingPolicy; }
    /// For a single object; registerType() sets it for all that are made of maps.
    void setReadingPolicy(PDFReadingPolicy policy) { m_readingPolicy = policy; }
    /// Has the maps that need one PDF, when they are registered from now on, read it by a policy.
    static void registerType(PDFReadingPolicy policy);

    /// The open document; null while nothing is bound.
    ///
    /// Copy the pointer before you read on another thread: binding replaces it.
    const std::shared_ptr<CachingPDFDocument> &document() const { return m_cachingDocument; }
    /// The file that satisfied the requirement.
    const std::optional<QUrl> &pdfURL() const { return m_pdfURL; }
    /// The printed area without running heads and page numbers, in page space, from the
    /// requirement's `read-info`.
    const std::optional<Rect> &pageBounds() const { return m_pageBounds; }
    void setPageBounds(const std::optional<Rect> &bounds);

    /// The named destinations of the document.
    const QHash<QString, HostPDFDestination> &linkDestinationMapping() const
    {
        return m_linkDestinationMapping;
    }
    /// For each page the entries that begin there, in reading order.
    const std::vector<std::vector<std::shared_ptr<Entry>>> &sortedDestinations() const
    {
        return m_sortedDestinations;
    }
    /// The leaves of the page tree; the position is the page index.
    const std::vector<PDFDictionaryPtr> &pageDictionaries() const { return m_pageDictionaries; }

    EntryClass entryClass() const override;

    /// As in the base class; a spec URL that names a range of lines gives the child entry for it.
    /// A range that ends before it begins is a fault of the program and ends the process.
    EntryPtr entry(const QString &label) override;

    /// Opens a document and loads its structure, requirement or not. A file that can't be opened
    /// is a line on standard error and leaves the specification as it was. Throws ParseError.
    void loadPDFDocument(const QUrl &url);

    /// Reads page tree and named destinations, then gives every entry its place. Throws
    /// ParseError.
    virtual void loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document);

    /// Resolves the entry's link and installs what computes its summary or preview.
    virtual void initializeEntry(Entry &entry);

    /// The words of a text, as a verifier compares them: runs of Unicode word characters.
    QStringList formatVerifierText(const QString &text) const;

    bool doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement) override;
    bool assignAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement) override;

    /// Null while a file is missing too.
    ViewControllerPtr detailViewController(const std::optional<QString> &label = {}) override;

    /// The page dictionaries below a node of the page tree, in order. Nodes that the file repeats
    /// or loops to are read once.
    std::vector<PDFDictionaryPtr> readPageTree(const PDFDictionaryPtr &node) const;
    /// The named destinations of a name tree (ISO 32000-1, 7.9.6), by what the reading policy
    /// reads.
    QHash<QString, HostPDFDestination>
    readDestinationNameTree(const PDFDictionary &tree,
                            const std::vector<PDFDictionaryPtr> &pageDicts) const;
    /// The place that a destination array names (ISO 32000-1, 12.3.2.2), by what the reading policy
    /// reads; absent for others.
    std::optional<HostPDFDestination>
    destinationFromPDFRepresentation(const PDFArray &array,
                                     const std::vector<PDFDictionaryPtr> &pageDicts) const;

    /// Outline items by label, read once; of two with one label the later in document order.
    /// Empty while no document is bound.
    QMap<QString, HostPDFOutline> documentOutline() const;
    /// Sets them in place of reading; they stay when another document is bound.
    void setDocumentOutline(const QMap<QString, HostPDFOutline> &outline);
    /// The outline items of a document that lead somewhere, by label.
    QMap<QString, HostPDFOutline> parseOutline(const HostPDFDocument &document) const;
    /// The items with a destination, depth first, the given one included.
    std::vector<HostPDFOutline> recursivelyCollectChildren(const HostPDFOutline &outline) const;
    /// Where an item leads, by what the reading policy reads.
    std::optional<HostPDFDestination> destination(const HostPDFOutline &outline) const;

    /// The place that a link names (the forms are told in docs/map-format.md). For a "rects:" link
    /// `pageRects`, if given, receives its rectangles. A link that breaks its form says so on
    /// standard error.
    std::optional<HostPDFDestination> destinationForLink(const QString &link,
                                                         PageRects *pageRects = nullptr) const;
    /// The link to an outline item, as a map has it: "outline:LABEL".
    QString internalLink(const HostPDFOutline &outline) const;
    /// The link to a place: "destination:PAGE,X,Y". A place in another document counts as on the
    /// first page.
    QString internalLink(const HostPDFDestination &destination) const;
    /// The link to an area: "rects:…".
    QString internalLink(const PageRects &rectangles) const;

    /// The place of the entry with this label; failing that, the text is tried as a link.
    std::optional<HostPDFDestination> destination(const QString &label);

    using Specification::generateURL;
    /// As in the base class, with the range of lines of a child entry behind it.
    QString generateURL(const SpecificationEntry &entry, bool constrainSpecID,
                        bool constrainSpecRevision) const override;

    bool parseXMLEntryChild(const HostXMLNode &child, SpecificationEntry &entry) override;
    HostXMLElement xmlElement(const SpecificationEntry &entry) const override;
    HostXMLElement generateRootXMLElement() const override;
    std::vector<HostXMLElement> generateAuxiliaryFileRequirementXMLNodes() const override;

    /// While it is held no file is bound and the printed area stays, so that a background thread
    /// can read while the thread that binds goes on. To be taken before anything of an entry is
    /// computed, never while.
    [[nodiscard]] std::shared_lock<std::shared_mutex> readingLock() const
    {
        return std::shared_lock(m_bindingMutex);
    }

    // Reading: the shape of the print

    /// The size of body text, in points; measured once, 0 while no document is bound. Kept when
    /// another document is bound, and so is the margin.
    double normalTextSize() const;
    /// Where body lines begin, from the left of the media box; measured once, 0 while no document
    /// is bound.
    double leftMargin() const;
    /// The size that most characters have on the pages 1, 1 + interval, and so on; 0 for a
    /// document of one page.
    virtual double computeNormalTextSize(const CachingPDFDocument &document, int interval) const;
    /// The start, in whole points from the left of the box, that most lines of those pages have.
    virtual double computeLeftMargin(const CachingPDFDocument &document, PDFBox box,
                                     int interval) const;

    /// Measures size, margin, and what else of the print reading needs, so that the first reading
    /// is as quick as the next. Any thread; does nothing while no document is bound.
    void measurePrint() const;

    using HeadingCallback =
        std::function<void(const QString &heading, TextRange range, bool &stop)>;
    /// Stretches of a text that are larger than the body, bold or italic, from front to back; the
    /// callback ends the enumeration by the flag.
    virtual void enumerateHeadings(const StyledText &text, const HeadingCallback &callback) const;
    /// Whether a line can be a heading, by the font it begins in.
    virtual bool isTextHeading(const StyledText &text, const Rect &rect,
                               const HostPDFPage &page) const;
    /// Whether a line that begins with this rectangle stands off the left margin.
    virtual bool isLinePartOfLayoutBreak(const Rect &rect, const HostPDFPage &page) const;
    /// Whether a line, which begins with this rectangle, is the caption of a figure or table.
    virtual bool isLineStartOfLayoutBreak(const QString &text, const Rect &rect, const Entry &entry,
                                          const HostPDFPage &page) const;
    /// Whether the text holds the title, as it is or with its blanks left out: the text of a
    /// heading often has lost them. Case counts.
    virtual bool textContainsTitle(const QString &text, const QString &title) const;
    /// The part of the page that is read: pageBounds(), or the media box.
    Rect readingArea(const HostPDFPage &page) const;

    // Reading: places of entries

    /// Where the entry stands; nothing if it has no place or can't be found there, which may be
    /// told on standard error.
    std::optional<EntryPageInfo> pageRectInfo(const Entry &entry) const;
    /// The lines of a section that a selection touches; nothing if there are none.
    std::optional<StyledTextEditing::LineRange> lineRange(const HostPDFSelection &selection,
                                                          const Entry &entry) const;
    /// The places of some lines of an entry's text; nothing if it has no such lines.
    std::optional<LineLocations> lineLocations(StyledTextEditing::LineRange range,
                                               const Entry &entry) const;
    /// The text of an entry on the pages, or of some of its lines.
    std::optional<HostPDFSelection>
    selection(const Entry &entry, std::optional<StyledTextEditing::LineRange> range = {}) const;
    /// The entry that holds the place: the last that begins before it if nothing argues against,
    /// else the nearest whose rectangles do.
    std::shared_ptr<Entry> closestEntry(const HostPDFDestination &place) const;
    /// The entry behind or before this one in the order of the pages; null at the ends, and for
    /// an entry without a place, which is told on standard error.
    std::shared_ptr<Entry> nextEntry(const SpecificationEntry &entry) const;
    /// As nextEntry(), towards the beginning.
    std::shared_ptr<Entry> previousEntry(const SpecificationEntry &entry) const;
    /// The first entry that begins on the page at this height, to within 1.
    std::shared_ptr<Entry> entry(const HostPDFDestination &place) const;
    /// The entry that a selection lies in; of a section, the child for the selected lines.
    std::shared_ptr<Entry> entry(const HostPDFSelection &selection);
    using LayoutBreaks = std::vector<std::pair<std::shared_ptr<Entry>, EntryPageInfo>>;
    /// The figures and tables whose place is on the page, with their regions; measured once.
    const LayoutBreaks &layoutBreaks(int page) const;

    // Reading: texts

    /// The entry's text, with the place of each line; nothing without a place. Throws
    /// EntryExtractionError.
    std::optional<StyledText> extractText(const Entry &entry, LineLocations &lineRects) const;
    /// Where a stretch of a cut-out text came from.
    struct SourceRange {
        TextRange range;
        int page = 0;
        TextRange pageRange;
    };
    /// The text between the entry's heading and the next; appends to `mappings` where it came
    /// from. Throws EntryExtractionError.
    std::optional<StyledText> attributedSectionText(const Entry &entry, int startPage,
                                                    std::vector<SourceRange> &mappings) const;
    /// Throws EntryExtractionError if the entry's own heading isn't found.
    HeadingPageInfo findHeadingPageInfo(const Entry &entry, int startPage) const;
    /// What is printed in a figure or table, page by page; nothing for other entries.
    std::optional<StyledText> extractTextFromGraphicalEntry(const Entry &entry) const;
    /// Whether a heading's line is kept with the text: if it is much longer than the title, body
    /// text runs on behind a heading on the same line.
    virtual bool shouldIncludeHeadingLine(const QString &line, const Entry &entry) const;
    /// Makes a page's text ready to be shown: bullets begin lines and are printable, the text is
    /// in the font of the surroundings. An override that changes lengths shifts line places.
    virtual void preformatPDFText(StyledText &text) const;
    /// A line as it stands in the extracted text, its end included.
    virtual StyledText formattedLine(const StyledText &text) const;
    /// The body of a page, as extraction uses it; null without such a page. Made once.
    std::shared_ptr<const FilteredPage> filteredPage(int page) const;

    // Reading: summaries, previews and links

    /// Fills what the entry shows: summary and line places, or the preview. Any thread.
    virtual void loadPDFPreview(Entry &entry) const;
    /// The region of a figure or table as it is printed, pages from top to bottom, at `scale`
    /// pixels a point, on white and without annotations. Null if there is none.
    QImage extractImage(const Entry &entry, double scale = 1) const;
    /// The links of a page to named destinations.
    std::vector<LinkRecord> readLinks(const PDFDictionary &page) const;
    /// For each page the places that its links lead to.
    std::vector<std::vector<HostPDFDestination>>
    readDestinationsFromPages(const HostPDFDocument &document) const;

protected:
    /// Gives every entry its place and sorts them by page.
    void loadPDFEntryMetadata(const HostPDFDocument &document);

    /// For a subclass that knows its file before it is bound.
    void setPDFURL(const std::optional<QUrl> &url) { m_pdfURL = url; }
    /// Sets the printed area from a requirement's `read-info`: four numbers parted by commas. What
    /// is anything else says so on standard error.
    void readPageBounds(const QString &readInfo);

private:
    void tellBound();
    void readNamedDestinations(const PDFDictionary &catalog,
                               const std::shared_ptr<CachingPDFDocument> &document);

    PDFReadingPolicy m_readingPolicy = PDFReadingPolicy::Strict;
    std::shared_ptr<CachingPDFDocument> m_cachingDocument;
    QHash<QString, HostPDFDestination> m_linkDestinationMapping;
    std::vector<std::vector<std::shared_ptr<Entry>>> m_sortedDestinations;
    std::vector<PDFDictionaryPtr> m_pageDictionaries;
    std::optional<QUrl> m_pdfURL;
    std::optional<Rect> m_pageBounds;
    mutable std::optional<QMap<QString, HostPDFOutline>> m_documentOutline;
    std::unique_ptr<PrintReader> m_print;
    mutable std::shared_mutex m_bindingMutex;
};

} // namespace Tavrin
