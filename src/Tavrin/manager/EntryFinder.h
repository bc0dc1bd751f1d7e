// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/ReferenceResolver.h>
#include <Tavrin/model/SearchOptions.h>

namespace Tavrin
{

/// Finds what a person means who types into a field: a label, a spec URL, references as people
/// write them, or words of a title.
///
/// Asks all specifications of a manager, the preferred one and the primary one first, and loads
/// their tables when first used; a table that can't be loaded throws. What it reads of a table once
/// is kept until the table's size changes. Used on the manager's thread.
///
/// Cheap to make, and worth keeping: what it reads of a table serves the next question. Making one
/// for each question costs a pass over each table that is asked, as in this program without
/// windows:
///
/// \snippet headless/main.cpp resolve
class TAVRIN_CORE_EXPORT EntryFinder
{
public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;
    using SpecificationPtr = std::shared_ptr<Specification>;

    /// An entry and why it was found.
    ///
    /// As description() puts it into words for the user: "title, keyword valve".
    struct Hit {
        /// Why an entry is offered. An entry found by search() has one reason at least; reasons
        /// stand in this order, each once.
        enum class Reason {
            /// What was typed refers to the entry.
            Reference,
            Title,
            Number,
            Keyword,
            /// The words are there only with blanks and punctuation left out: "endoffile" finds
            /// "end-of-file".
            Punctuation
        };

        EntryPtr entry;
        std::vector<Reason> reasons;
        /// The keywords that hold a word of the search. Empty unless Reason::Keyword is among the
        /// reasons.
        QStringList keywords;
    };

    /// The manager must outlive the object.
    ///
    /// Nothing is read yet.
    explicit EntryFinder(SpecificationManager &manager);
    ~EntryFinder();
    EntryFinder(const EntryFinder &) = delete;
    EntryFinder &operator=(const EntryFinder &) = delete;

    /// The one that is asked before all others, such as the one that is on show; null for none.
    SpecificationPtr preferred() const { return m_preferred.lock(); }
    void setPreferred(const SpecificationPtr &specification) { m_preferred = specification; }

    /// The specifications in the order of asking, with their tables.
    ///
    /// The preferred one first, then the primary one, then the others in the manager's order.
    ///
    /// Loads every table that is still empty, and throws XMLError or HostXMLError for a map that
    /// can't be read any more.
    std::vector<SpecificationPtr> specifications();

    /// What a text refers to: a label or spec URL, or failing that references as people write them,
    /// by the first specification that knows any of them. A reference without entries is unknown.
    ///
    /// Asks step by step, and stops at the first answer: the label or URL in the preferred
    /// specification, then in all others as SpecificationManager::entry does, then the reference in
    /// each specification in turn. A text that nobody understands comes back as one reference
    /// without entries, and so does a spec URL whose range of lines ends before it begins; the
    /// result is never empty.
    ///
    /// Throws as specifications() does, but only if no label answers.
    std::vector<ReferenceResolver::Reference> resolve(const QString &text);

    /// The entries of one specification that hold every word, best first, each with the reasons.
    ///
    /// Loads nothing: a specification whose table is empty finds nothing. Without words all entries
    /// are found, in the order of the table, for the reason Punctuation.
    std::vector<Hit> search(const Specification &specification, const QString &text,
                            SearchOptions options = {}) const;

    /// What to offer for a text that is being typed: first what it refers to, then what holds its
    /// words, specification by specification. No entry twice; at most `limit`.
    ///
    /// Empty for a text of blanks alone. The reason of an entry that the text refers to is
    /// Reference and nothing else. Throws as specifications() does.
    std::vector<Hit> suggestions(const QString &text, std::size_t limit);

private:
    /// What was read of a table once.
    struct Reading {
        std::weak_ptr<Specification> specification;
        qsizetype size = 0;
        std::unique_ptr<ReferenceResolver> resolver;
    };

    const ReferenceResolver &resolverFor(const SpecificationPtr &specification);

    SpecificationManager &m_manager;
    std::weak_ptr<Specification> m_preferred;
    std::vector<Reading> m_readings;
};

/// A reason in the user's language, in lower case, such as "title"; keywords are named.
///
/// Several are parted by commas; empty for a hit without reasons.
TAVRIN_CORE_EXPORT QString description(const EntryFinder::Hit &hit);

} // namespace Tavrin
