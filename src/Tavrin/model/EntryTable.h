// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

#include <Tavrin/CoreExport.h>

namespace Tavrin
{

class SpecificationEntry;

/// The entries of a specification by label, in the order in which they were added.
///
/// Exact and case-insensitive look-ups cost the same however many entries there are. Iterators
/// are forward iterators over entries, and end with the next change.
///
/// An entry stays under the label that it had when it was added, whatever label it is given later.
/// Used by one thread at a time; Specification guards its own table.
class TAVRIN_CORE_EXPORT EntryTable
{
public:
    using EntryPtr = std::shared_ptr<SpecificationEntry>;

    /// Goes through the entries in the order in which they were added. An entry that it stands at
    /// is never null.
    class const_iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = EntryPtr;
        using difference_type = std::ptrdiff_t;
        using pointer = const EntryPtr *;
        using reference = const EntryPtr &;

        const_iterator() = default;
        reference operator*() const { return m_at->entry; }
        pointer operator->() const { return &m_at->entry; }
        const_iterator &operator++()
        {
            ++m_at;
            skipRemoved();
            return *this;
        }
        const_iterator operator++(int)
        {
            const_iterator old = *this;
            ++*this;
            return old;
        }
        friend bool operator==(const const_iterator &, const const_iterator &) = default;

    private:
        friend class EntryTable;
        struct SlotView {
            QString key;
            EntryPtr entry;
        };
        const_iterator(const SlotView *at, const SlotView *end) : m_at(at), m_end(end)
        {
            skipRemoved();
        }
        void skipRemoved()
        {
            while (m_at != m_end && !m_at->entry)
                ++m_at;
        }

        const SlotView *m_at = nullptr;
        const SlotView *m_end = nullptr;
    };

    bool isEmpty() const { return m_positions.isEmpty(); }
    qsizetype size() const { return m_positions.size(); }
    /// Whether there is an entry under exactly this label.
    bool contains(const QString &label) const { return m_positions.contains(label); }

    /// At the entry that was added first.
    const_iterator begin() const;
    /// Behind the last.
    const_iterator end() const;

    /// The entry under exactly this label, or null.
    EntryPtr value(const QString &label) const;
    /// The first-added entry whose label is equal in lower case, or null.
    ///
    /// An entry that is spelled exactly so has no precedence here: ask value() first.
    EntryPtr valueIgnoringCase(const QString &label) const;

    /// Adds an entry under its present label; false, and no change, if the label is taken.
    ///
    /// `entry` must not be null. Ends iterators.
    bool insert(const EntryPtr &entry);
    /// Removes what is stored under the label.
    ///
    /// Exactly as it is spelled; does nothing if there is none. Ends iterators.
    void remove(const QString &label);
    /// Takes all entries out. Ends iterators.
    void clear();

private:
    using Slot = const_iterator::SlotView;

    void compact();
    void index(std::size_t position);

    /// A removed entry leaves its slot empty until the slots are compacted.
    std::vector<Slot> m_slots;
    QHash<QString, std::size_t> m_positions;
    /// By lower-cased label, in the order of insertion.
    QHash<QString, std::vector<std::size_t>> m_foldedPositions;
};

} // namespace Tavrin
