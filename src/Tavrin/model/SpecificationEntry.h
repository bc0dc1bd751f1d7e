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
class TAVRIN_CORE_EXPORT SpecificationEntry
{
public:
    /// An empty chapter. Entries of a map that say no type, or an unknown one, stay chapters.
    explicit SpecificationEntry(const std::shared_ptr<Specification> &specification);
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
    void setIndex(const std::vector<int> &index) { m_index = index; }

    /// The identity within the specification, and what hosts store: free text, perhaps empty.
    /// Changing it does not move the entry in the table of its specification.
    virtual const QString &label() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

    virtual SpecificationEntryType type() const { return m_type; }
    void setType(SpecificationEntryType type) { m_type = type; }

    virtual const QStringList &keywords() const { return m_keywords; }
    void setKeywords(const QStringList &keywords) { m_keywords = keywords; }

    /// Labels or spec URLs of other entries, in the order in which to show them.
    virtual const QStringList &relatedEntries() const { return m_relatedEntries; }
    void setRelatedEntries(const QStringList &related) { m_relatedEntries = related; }

    /// Null once the specification is gone.
    virtual std::shared_ptr<Specification> specification() const { return m_specification.lock(); }

    /// The rows to show of the entry: kind with number and title, label, related entries.
    virtual std::vector<EntryDisplayItem> displayItems() const;
    std::vector<std::shared_ptr<BridgedEntryDisplayItem>> bridgedDisplayItems() const;

    /// "Section 4.2.1 Scope"
    virtual QString displayTitle() const;
    /// "4.2.1 Scope"
    virtual QString outlineTitle() const;
    /// The texts that a search reads. The title comes twice and so counts double.
    virtual QStringList searchableItems() const;
    /// "." for textual entries, "-" for figures and tables.
    virtual QString indexSeparator() const;
    /// "Section 4.2.1", "Figure 3-7"
    virtual QString indexString() const;

    /// The title, as diagnostics name the entry.
    QString description() const { return title(); }

    /// A new entry of the same specification with the same values, in no table. Each subclass
    /// yields its own kind.
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
TAVRIN_CORE_EXPORT bool entryPrecedes(const SpecificationEntry &a, const SpecificationEntry &b);

} // namespace Tavrin
