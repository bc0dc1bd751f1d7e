// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/model/SpecificationEntry.h>

namespace Tavrin
{

class Specification;

/// Finds the entries that a reference means, as people write references: "§ 4.2.1", "Sec. 4.2",
/// "Clause 7", "Fig. 3-7", "FIGURE 3.7", "Tables 2.1 and 2.2", "4.2.1-4.2.3".
///
/// A number is compared with the printed number of each entry and with a label that is a number;
/// hyphen or dot, case and the kind's abbreviation make no difference. A reference matches an
/// entry or stays unknown: nothing near is taken for it. A number without a kind word is first
/// a section's, and a figure's or table's only if no section has it.
///
/// Reads the table once, when made; make a new one when the table changes. Any thread, as long
/// as nobody changes the entries.
///
/// Kind words are English, and those that the user is shown in their own language. EntryFinder asks
/// resolvers of all specifications in turn, and is what a host usually wants.
class TAVRIN_CORE_EXPORT ReferenceResolver
{
public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// One reference of a list, by itself.
    struct Reference {
        /// The reference by itself, under the kind word of its list: "Tables 2.2".
        QString written;
        /// What it means: one entry, the entries of a range in document order, or none.
        ///
        /// A range holds the entries of its ends' depth: "4.2.1-4.2.3" has no 4.2.2.1. It is
        /// unknown if one of its ends is, if they differ in depth, or if the second stands before
        /// the first.
        std::vector<EntryPtr> entries;
    };

    /// Reads the table that is in memory; it loads none. Keeps the entries alive, and not the
    /// specification.
    explicit ReferenceResolver(const Specification &specification);

    /// The references of a text in order. A text that is no reference at all gives an empty list.
    ///
    /// "Tables 2.1 and 2.2" gives two. Only the first thousand characters are read. Never throws.
    std::vector<Reference> resolve(const QString &text) const;

private:
    enum class Group { Any, Textual, Figure, Table };

    static Group groupForWord(const QString &word);
    static QString numberKey(const QString &number);
    EntryPtr entryFor(Group group, const QString &number) const;
    std::vector<EntryPtr> entriesFor(Group group, const QString &number) const;
    std::vector<EntryPtr> rangeFor(Group group, const QString &from, const QString &to) const;
    void add(Group group, const QString &key, std::size_t position);

    /// In document order.
    std::vector<EntryPtr> m_entries;
    QHash<QString, std::size_t> m_numbers[3];
};

} // namespace Tavrin
