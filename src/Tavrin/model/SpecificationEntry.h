// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/EntryDisplayItem.h>
#include <Tavrin/model/SpecificationEntryType.h>

namespace Tavrin
{

class Specification;

/// One item of a specification that can be referred to: a section, chapter, figure or table.
///
/// Owned by its specification, to which it points back weakly: an entry whose specification is
/// gone still answers everything that it knows by itself. Used by one thread at a time.
///
/// Hosts get entries from SpecificationManager::entry, Specification::entries and EntryFinder.
/// Those of a PDF are PDFSpecification::Entry, which a `std::dynamic_pointer_cast` reaches and
/// which have a place, a text and a picture. To remember an entry, keep its spec URL
/// (Specification::generateURL) rather than the object: when the document's file is taken away the
/// specification is replaced, and its entries with it.
class TAVRIN_CORE_EXPORT SpecificationEntry
{
public:
    /// An empty chapter. Entries of a map that say no type, or an unknown one, stay chapters.
    explicit SpecificationEntry(const std::shared_ptr<Specification> &specification);
    /// An entry with these values and neither keywords nor relations. It is in no table until
    /// Specification::add puts it there.
    SpecificationEntry(const std::shared_ptr<Specification> &specification, const QString &label,
                       const QString &title, SpecificationEntryType type,
                       const std::vector<int> &index);
    virtual ~SpecificationEntry();
    SpecificationEntry &operator=(const SpecificationEntry &) = delete;

    virtual const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    /// The place in the document's numbering, outermost number first; {4, 2, 1} for 4.2.1. It
    /// orders entries and is no identity: two may share it.
    virtual const std::vector<int> &index() const { return m_index; }
    /// An empty index is allowed: the entry then stands before all others of its kind.
    void setIndex(const std::vector<int> &index) { m_index = index; }

    /// The identity within the specification, and what hosts store: free text, perhaps empty.
    /// Changing it does not move the entry in the table of its specification.
    virtual const QString &label() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

    virtual SpecificationEntryType type() const { return m_type; }
    void setType(SpecificationEntryType type) { m_type = type; }

    /// Further words by which a search finds the entry; none is shown. From the map, or from
    /// PDFXMLEnhancer.
    virtual const QStringList &keywords() const { return m_keywords; }
    void setKeywords(const QStringList &keywords) { m_keywords = keywords; }

    /// Labels or spec URLs of other entries, in the order in which to show them.
    ///
    /// Nothing says that they exist.
    virtual const QStringList &relatedEntries() const { return m_relatedEntries; }
    void setRelatedEntries(const QStringList &related) { m_relatedEntries = related; }

    /// Null once the specification is gone.
    virtual std::shared_ptr<Specification> specification() const { return m_specification.lock(); }

    /// The rows to show of the entry: kind with number and title, label, related entries.
    ///
    /// Captions and kinds are in the user's language. Here it costs nothing;
    /// PDFSpecification::Entry adds what is read of the pages. Hosts with a kind of their own add
    /// rows:
    ///
    /// \snippet text-specification/TextEntry.cpp display
    virtual std::vector<EntryDisplayItem> displayItems() const;
    /// The same rows as objects. Costs what displayItems() costs.
    std::vector<std::shared_ptr<BridgedEntryDisplayItem>> bridgedDisplayItems() const;

    /// "Section 4.2.1 Scope"
    ///
    /// Kind, number and title. The kind is in the user's language; without a number two blanks
    /// stand between kind and title.
    virtual QString displayTitle() const;
    /// "4.2.1 Scope"
    ///
    /// Without a number it begins with a blank.
    virtual QString outlineTitle() const;
    /// The texts that a search reads. The title comes twice and so counts double.
    ///
    /// Title, title, indexString(), then the keywords.
    virtual QStringList searchableItems() const;
    /// "." for textual entries, "-" for figures and tables.
    ///
    /// Between the numbers of number().
    virtual QString indexSeparator() const;
    /// "Section 4.2.1", "Figure 3-7"
    ///
    /// The kind is in the user's language. Made of the index alone: of appendix A.3 it says
    /// "Section 9.3". What is printed tells PrintedNumber::name().
    virtual QString indexString() const;

    /// The title, as diagnostics name the entry.
    QString description() const { return title(); }

    /// A new entry of the same specification with the same values, in no table. Each subclass
    /// yields its own kind.
    ///
    /// A subclass overrides it, or its copies lose what it adds.
    virtual std::shared_ptr<SpecificationEntry> copy() const;

    /// The numbers of the index joined by the separator; empty for an empty index.
    QString number() const;

protected:
    SpecificationEntry(const SpecificationEntry &);

private:
    QString m_title;
    std::vector<int> m_index;
    QString m_label;
    SpecificationEntryType m_type = SpecificationEntryType::Chapter;
    QStringList m_keywords;
    QStringList m_relatedEntries;
    std::weak_ptr<Specification> m_specification;
};

/// Document order: chapters and sections, then figures, then tables, each by index. A strict weak
/// order.
///
/// Of two entries with one index neither precedes the other. It is an order of numbers, not of
/// places in the file: see HostPDFDestination::compare for that.
TAVRIN_CORE_EXPORT bool entryPrecedes(const SpecificationEntry &a, const SpecificationEntry &b);

} // namespace Tavrin
