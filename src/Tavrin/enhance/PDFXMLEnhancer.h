// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QMap>
#include <QStringList>

#include <functional>
#include <stdexcept>
#include <utility>

#include <Tavrin/enhance/TermCounts.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/LinguisticTagger.h>

namespace Tavrin
{

class AssociatedEntries;
class EntryGraphNode;
class TermCounter;

namespace RelatedEntryGraph
{
struct Edge;
}

/// Why a PDF can't be paired with a map.
///
/// PDFDestinationApproximator pairs such documents without either.
class TAVRIN_CORE_EXPORT EnhancerParseError : public std::runtime_error
{
public:
    /// What is missing.
    enum class Kind {
        /// Neither the PDF has named destinations nor the map a link.
        NoInternalLinks,
    };

    /// The message is the same for all.
    explicit EnhancerParseError(Kind kind);

    Kind kind;
};

/// Makes a whole map out of a skeleton (labels, titles, types, numbers) and the PDF: links,
/// keywords, related entries.
///
/// \snippet making-maps/main.cpp enhance
///
/// All of it happens while the PDF is loaded, in one pass on the calling thread, with progress on
/// standard output and warnings on standard error. Afterwards this is a specification like any
/// other. The tuning fields count for what is computed after they are set; extractEntryKeywords()
/// and computeRelatedEntries() may be called again.
///
/// Pairing by names suits documents whose producers number their destinations in the order of the
/// document; setRequiredLinkMarkers() and its kin say which names those are, and the defaults are
/// made for one family of documents: a host for others sets them, as in the example. Reading takes
/// as long as all summaries of a document do together, and the entries keep them.
///
/// The relations are no published algorithm: what the weights below add up to is a graph whose
/// strongest edges stay. A keyword's score is its share of the whole document's use of it, more for
/// a long term and less for a phrase of many words: ln(length) × count ÷ (words × total).
///
/// Used by one thread, which is best not the main one. Relations are written as spec URLs that name
/// the specification and no revision.
class TAVRIN_CORE_EXPORT PDFXMLEnhancer : public PDFSpecification
{
public:
    /// From an entry's label to its link, in a form of \ref map-format-links-into-the-pdf.
    using LabelLinkMapping = QHash<QString, QString>;
    using PDFEntryPtr = std::shared_ptr<PDFSpecification::Entry>;
    /// A named destination: name and place.
    using NamedPlace = std::pair<QString, HostPDFDestination>;
    /// The texts of an entry by which it is compared with others.
    using TextBlock = std::function<QStringList(const EntryGraphNode &node)>;

    PDFXMLEnhancer();
    ~PDFXMLEnhancer() override;

    /// An enhancer of class T for a map, which must have a DTD of its own, and a PDF. Nothing but
    /// the map's metadata is read yet. Throws what reading the map throws.
    ///
    /// `configure` sets the enhancer up before it reads anything.
    template <class T>
    static std::shared_ptr<T>
    matched(const QUrl &structureFile, const QUrl &pdfFile,
            const std::function<void(std::type_identity_t<T> &)> &configure = {})
    {
        auto enhancer = make<T>(structureFile, {}, {}, configure);
        enhancer->matchWith(pdfFile);
        return enhancer;
    }

    /// Names the PDF that loadStructure() is to read. Asks for a PDF if the map asks for nothing.
    ///
    /// A file whose name does not end in ".pdf" is passed over without a word.
    void matchWith(const QUrl &pdfFile);

    // Pairing

    /// Entry label to link, as the pairing found it; absent before.
    const std::optional<LabelLinkMapping> &labelLinkMapping() const { return m_labelLinkMapping; }
    void setLabelLinkMapping(const std::optional<LabelLinkMapping> &mapping)
    {
        m_labelLinkMapping = mapping;
    }

    /// A link whose name contains the key leads to an entry of the type. Keys are tried in their
    /// order as texts.
    ///
    /// "SLK", "CLK", "FLK" and "TLK" unless set.
    virtual const QMap<QString, SpecificationEntryType> &entryTypeMarkers() const
    {
        return m_entryTypeMarkers;
    }
    /// Counts for the next pairing.
    virtual void setEntryTypeMarkers(const QMap<QString, SpecificationEntryType> &markers)
    {
        m_entryTypeMarkers = markers;
    }
    /// A link whose name contains one of these is no entry's.
    ///
    /// "PART", "TITLEPAGE", "LOFAT" and "TOC" unless set.
    virtual const QStringList &ignoreLinkMarkers() const { return m_ignoreLinkMarkers; }
    virtual void setIgnoreLinkMarkers(const QStringList &markers) { m_ignoreLinkMarkers = markers; }
    /// A link's name must contain every one of these.
    ///
    /// "ondry_ref" unless set; an empty list lets every name through.
    virtual const QStringList &requiredLinkMarkers() const { return m_requiredLinkMarkers; }
    virtual void setRequiredLinkMarkers(const QStringList &markers)
    {
        m_requiredLinkMarkers = markers;
    }

    // Keywords

    /// Term to its total count over all sections with text of their own.
    virtual const TermCounts &totalFrequencies() const { return m_totalFrequencies; }
    virtual void setTotalFrequencies(const TermCounts &totals) { m_totalFrequencies = totals; }
    /// What an occurrence in the title of an ancestor or descendant counts for.
    ///
    /// 0.75 unless set.
    virtual double associatedEntryTitleWeight() const { return m_associatedEntryTitleWeight; }
    virtual void setAssociatedEntryTitleWeight(double weight)
    {
        m_associatedEntryTitleWeight = weight;
    }
    /// Of an entry; 10 unless set.
    virtual int maxKeywordCount() const { return m_maxKeywordCount; }
    virtual void setMaxKeywordCount(int count) { m_maxKeywordCount = count; }
    /// Lemmas that are no keywords; the library's own list unless set.
    virtual const QStringList &stopWords();
    /// In lower case, as lemmas; an empty list stops none.
    virtual void setStopWords(const QStringList &words) { m_stopWords = words; }
    /// Tokens that end a phrase.
    ///
    /// Line feed and tab unless set.
    virtual const QStringList &terminatorCharacters() const { return m_terminatorCharacters; }
    virtual void setTerminatorCharacters(const QStringList &characters)
    {
        m_terminatorCharacters = characters;
    }

    // Related entries

    /// For entries with the same title; 1 unless set.
    virtual double relatedEntryTitleWeight() const { return m_relatedEntryTitleWeight; }
    virtual void setRelatedEntryTitleWeight(double weight) { m_relatedEntryTitleWeight = weight; }
    /// For entries with a keyword in common; 0.25 unless set.
    virtual double relatedEntryKeywordWeight() const { return m_relatedEntryKeywordWeight; }
    virtual void setRelatedEntryKeywordWeight(double weight)
    {
        m_relatedEntryKeywordWeight = weight;
    }
    /// For an entry that this one's summary links to, and for one whose summary links to this.
    ///
    /// This is the first, 2 unless set; relatedEntryLinkingWeight() the second, 1.5 unless set.
    virtual double relatedEntryLinkedWeight() const { return m_relatedEntryLinkedWeight; }
    virtual void setRelatedEntryLinkedWeight(double weight) { m_relatedEntryLinkedWeight = weight; }
    virtual double relatedEntryLinkingWeight() const { return m_relatedEntryLinkingWeight; }
    virtual void setRelatedEntryLinkingWeight(double weight)
    {
        m_relatedEntryLinkingWeight = weight;
    }
    /// From a figure or table to the section that it stands in.
    ///
    /// 1.5 unless set.
    virtual double relatedEntryFigureAssociationWeight() const
    {
        return m_relatedEntryFigureAssociationWeight;
    }
    virtual void setRelatedEntryFigureAssociationWeight(double weight)
    {
        m_relatedEntryFigureAssociationWeight = weight;
    }
    /// Of an entry; 5 unless set.
    virtual int maxRelatedEntryCount() const { return m_maxRelatedEntryCount; }
    virtual void setMaxRelatedEntryCount(int count) { m_maxRelatedEntryCount = count; }
    /// The share of the weakest relations in the whole document that is dropped.
    ///
    /// 0.25 unless set. A number that isn't finite ends the process.
    virtual double relatedEntryPruningFraction() const { return m_relatedEntryPruningFraction; }
    virtual void setRelatedEntryPruningFraction(double fraction)
    {
        m_relatedEntryPruningFraction = fraction;
    }

    /// Told how far the reading of the entries has come, from 0 to 1, by the calling thread.
    void setProgressHandler(std::function<void(double fraction)> handler)
    {
        m_progressHandler = std::move(handler);
    }

    // Stages

    /// Reads the map and, if a PDF is named, everything out of it. Throws what reading either
    /// throws, and EnhancerParseError.
    ///
    /// Without a PDF that is a line on standard error, and the map alone is read. A call from
    /// within is passed over.
    void loadStructure() override;
    using PDFSpecification::loadStructure;
    void loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document) override;

    /// Pairs, links, finds keywords and related entries.
    ///
    /// The end of loadPDFStructure(). Where the pairing finds nothing, entries keep the links of
    /// the map; where it finds some, entries that it leaves out lose theirs.
    virtual void augmentSpecEntryMetadata(const std::shared_ptr<HostPDFDocument> &document);

    /// Entry label to link. Both the entries and the links of a kind are in document order, so the
    /// n-th link belongs to the n-th entry. Never fails; trouble is told on standard error.
    virtual LabelLinkMapping
    pairHumanReadableLabelsWithInternalLinks(const std::shared_ptr<HostPDFDocument> &document);

    /// The named destination of the type's kind on the page that is nearest to a height in page
    /// space. A page outside the document is a fault of the program and ends the process.
    ///
    /// Told by the library's own markers of types, whatever is set; absent if the page has none.
    /// Pages count from 0.
    virtual std::optional<QString> closestInternalLink(double y, int page,
                                                       SpecificationEntryType type) const;

    /// All entries in the order of their places; one without a place stays behind the one before
    /// it in the table. Computed once.
    virtual const std::vector<PDFEntryPtr> &sortedEntries();
    /// Sets the order in place of computing it.
    virtual void setSortedEntries(const std::vector<PDFEntryPtr> &entries);

    /// Counts the terms of all entries anew and sets their keywords. Where no tagger can be made,
    /// that is a line on standard error, and the counting ends there. Texts are read on the way, so
    /// this is where the time goes.
    virtual void extractEntryKeywords();
    /// The counts of a section or chapter that is at the position in sortedEntries(): of its text
    /// and the titles around it, or where it has no text of the sections below it. Nothing for
    /// other entries and where the text can't be told.
    virtual std::optional<TermCounts> computeWordFrequencies(const PDFEntryPtr &entry,
                                                             std::size_t position);
    /// The terms of any text: words and phrases in their dictionary forms. Throws
    /// LinguisticTaggerError if no tagger can be made.
    virtual TermCounts computeWordFrequencies(const QString &text);

    /// Makes the graph anew and sets the related entries of all entries. Takes time by the pairs of
    /// entries that share something; extractEntryKeywords() comes before.
    virtual void computeRelatedEntries();
    /// Finds which entries' summaries link to which.
    virtual void computeLinkedEntries();
    /// Adds to the weight of the edges between entries that share one of the block's texts: more
    /// for a long text, less for one that many entries hold.
    ///
    /// Part of computeRelatedEntries(), which calls it for titles and keywords.
    virtual void addRelatedEntriesBySharedText(double weight, const TextBlock &textBlock);

    EntryClass entryClass() const override;
    /// As in the base class; then the element's link is the one that the pairing found.
    EntryPtr parseXMLEntry(const HostXMLNode &element) override;
    /// A file named .pdf is the one; the map needs not know its words yet.
    bool doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement) override;
    /// With the title that the map gave.
    HostXMLElement generateRootXMLElement() const override;

private:
    void collectInternalLinks(const HostPDFDocument &document);
    bool hasInternalLink() const;
    void readRequiredPageBounds();
    TermCounter &termCounter();
    TermCounts inheritedFrequencies(const PDFSpecification::Entry &entry, std::size_t position);
    TermCounts ownFrequencies(const PDFSpecification::Entry &entry, const QString &text);
    QString associatedTitles(const PDFSpecification::Entry &entry);
    void countSection(const PDFEntryPtr &entry, std::size_t position);
    void countGraphicalEntry(const PDFEntryPtr &entry, std::size_t position);
    void assignKeywords();
    std::vector<std::shared_ptr<EntryGraphNode>> sortedNodes();
    std::vector<RelatedEntryGraph::Edge> strongestEdges();
    std::shared_ptr<EntryGraphNode> linkTarget(const EntryGraphNode &source, const QString &link,
                                               const QHash<QString, QString> &labelsByLink) const;

    std::optional<LabelLinkMapping> m_labelLinkMapping;
    std::vector<std::vector<NamedPlace>> m_internalLinksByPage;
    QMap<QString, SpecificationEntryType> m_entryTypeMarkers;
    QStringList m_ignoreLinkMarkers;
    QStringList m_requiredLinkMarkers;
    std::optional<std::vector<PDFEntryPtr>> m_sortedEntries;
    QHash<QString, TermCounts> m_wordFrequencies;
    TermCounts m_totalFrequencies;
    double m_associatedEntryTitleWeight = 0.75;
    int m_maxKeywordCount = 10;
    std::optional<QStringList> m_stopWords;
    QStringList m_terminatorCharacters;
    const std::vector<LinguisticTag> m_keywordClasses;
    const std::vector<LinguisticTag> m_phraseClasses;
    double m_relatedEntryTitleWeight = 1;
    double m_relatedEntryKeywordWeight = 0.25;
    double m_relatedEntryLinkedWeight = 2;
    double m_relatedEntryLinkingWeight = 1.5;
    double m_relatedEntryFigureAssociationWeight = 1.5;
    int m_maxRelatedEntryCount = 5;
    double m_relatedEntryPruningFraction = 0.25;

    std::function<void(double)> m_progressHandler;
    /// Made from the tuning fields anew in each run.
    std::unique_ptr<TermCounter> m_termCounter;
    std::unique_ptr<AssociatedEntries> m_associatedEntries;
    bool m_isLoading = false;
};

} // namespace Tavrin
