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
class TAVRIN_CORE_EXPORT EnhancerParseError : public std::runtime_error
{
public:
    enum class Kind {
        /// Neither the PDF has named destinations nor the map a link.
        NoInternalLinks,
    };

    explicit EnhancerParseError(Kind kind);

    Kind kind;
};

/// Makes a whole map out of a skeleton (labels, titles, types, numbers) and the PDF: links,
/// keywords, related entries.
///
///     const auto enhancer = PDFXMLEnhancer::matched<PDFXMLEnhancer>(skeleton, pdf);
///     enhancer->setRequiredLinkMarkers({});
///     enhancer->loadStructure();
///     const QString map = enhancer->writeSpecToXMLString(dtd);
///
/// All of it happens while the PDF is loaded, in one pass on the calling thread, with progress on
/// standard output and warnings on standard error. Afterwards this is a specification like any
/// other. The tuning fields count for what is computed after they are set; extractEntryKeywords()
/// and computeRelatedEntries() may be called again.
class TAVRIN_CORE_EXPORT PDFXMLEnhancer : public PDFSpecification
{
public:
    using LabelLinkMapping = QHash<QString, QString>;
    using PDFEntryPtr = std::shared_ptr<PDFSpecification::Entry>;
    /// A named destination: name and place.
    using NamedPlace = std::pair<QString, HostPDFDestination>;
    using TextBlock = std::function<QStringList(const EntryGraphNode &node)>;

    PDFXMLEnhancer();
    ~PDFXMLEnhancer() override;

    /// An enhancer of class T for a map, which must have a DTD of its own, and a PDF. Nothing but
    /// the map's metadata is read yet. Throws what reading the map throws.
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
    virtual const QMap<QString, SpecificationEntryType> &entryTypeMarkers() const
    {
        return m_entryTypeMarkers;
    }
    virtual void setEntryTypeMarkers(const QMap<QString, SpecificationEntryType> &markers)
    {
        m_entryTypeMarkers = markers;
    }
    /// A link whose name contains one of these is no entry's.
    virtual const QStringList &ignoreLinkMarkers() const { return m_ignoreLinkMarkers; }
    virtual void setIgnoreLinkMarkers(const QStringList &markers) { m_ignoreLinkMarkers = markers; }
    /// A link's name must contain every one of these.
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
    virtual double associatedEntryTitleWeight() const { return m_associatedEntryTitleWeight; }
    virtual void setAssociatedEntryTitleWeight(double weight)
    {
        m_associatedEntryTitleWeight = weight;
    }
    virtual int maxKeywordCount() const { return m_maxKeywordCount; }
    virtual void setMaxKeywordCount(int count) { m_maxKeywordCount = count; }
    /// Lemmas that are no keywords; the library's own list unless set.
    virtual const QStringList &stopWords();
    virtual void setStopWords(const QStringList &words) { m_stopWords = words; }
    /// Tokens that end a phrase.
    virtual const QStringList &terminatorCharacters() const { return m_terminatorCharacters; }
    virtual void setTerminatorCharacters(const QStringList &characters)
    {
        m_terminatorCharacters = characters;
    }

    // Related entries

    virtual double relatedEntryTitleWeight() const { return m_relatedEntryTitleWeight; }
    virtual void setRelatedEntryTitleWeight(double weight) { m_relatedEntryTitleWeight = weight; }
    virtual double relatedEntryKeywordWeight() const { return m_relatedEntryKeywordWeight; }
    virtual void setRelatedEntryKeywordWeight(double weight)
    {
        m_relatedEntryKeywordWeight = weight;
    }
    /// For an entry that this one's summary links to, and for one whose summary links to this.
    virtual double relatedEntryLinkedWeight() const { return m_relatedEntryLinkedWeight; }
    virtual void setRelatedEntryLinkedWeight(double weight) { m_relatedEntryLinkedWeight = weight; }
    virtual double relatedEntryLinkingWeight() const { return m_relatedEntryLinkingWeight; }
    virtual void setRelatedEntryLinkingWeight(double weight)
    {
        m_relatedEntryLinkingWeight = weight;
    }
    /// From a figure or table to the section that it stands in.
    virtual double relatedEntryFigureAssociationWeight() const
    {
        return m_relatedEntryFigureAssociationWeight;
    }
    virtual void setRelatedEntryFigureAssociationWeight(double weight)
    {
        m_relatedEntryFigureAssociationWeight = weight;
    }
    virtual int maxRelatedEntryCount() const { return m_maxRelatedEntryCount; }
    virtual void setMaxRelatedEntryCount(int count) { m_maxRelatedEntryCount = count; }
    /// The share of the weakest relations in the whole document that is dropped.
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
    void loadStructure() override;
    using PDFSpecification::loadStructure;
    void loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document) override;

    /// Pairs, links, finds keywords and related entries.
    virtual void augmentSpecEntryMetadata(const std::shared_ptr<HostPDFDocument> &document);

    /// Entry label to link. Both the entries and the links of a kind are in document order, so the
    /// n-th link belongs to the n-th entry. Never fails; trouble is told on standard error.
    virtual LabelLinkMapping
    pairHumanReadableLabelsWithInternalLinks(const std::shared_ptr<HostPDFDocument> &document);

    /// The named destination of the type's kind on the page that is nearest to a height in page
    /// space. A page outside the document is a fault of the program and ends the process.
    virtual std::optional<QString> closestInternalLink(double y, int page,
                                                       SpecificationEntryType type) const;

    /// All entries in the order of their places; one without a place stays behind the one before
    /// it in the table. Computed once.
    virtual const std::vector<PDFEntryPtr> &sortedEntries();
    virtual void setSortedEntries(const std::vector<PDFEntryPtr> &entries);

    virtual void extractEntryKeywords();
    /// The counts of a section or chapter that is at the position in sortedEntries(): of its text
    /// and the titles around it, or where it has no text of the sections below it. Nothing for
    /// other entries and where the text can't be told.
    virtual std::optional<TermCounts> computeWordFrequencies(const PDFEntryPtr &entry,
                                                             std::size_t position);
    virtual TermCounts computeWordFrequencies(const QString &text);

    virtual void computeRelatedEntries();
    /// Finds which entries' summaries link to which.
    virtual void computeLinkedEntries();
    /// Adds to the weight of the edges between entries that share one of the block's texts: more
    /// for a long text, less for one that many entries hold.
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
