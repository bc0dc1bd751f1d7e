// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <shared_mutex>

#include <Tavrin/pdfspec/BodyShape.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/pdfspec/PageLines.h>

namespace Tavrin
{

/// What a specification remembers of the pages it has read. Safe from any thread; values are
/// immutable once stored.
///
/// Two threads that miss the same value at once both make it, and the first one stored stays:
/// computing without the lock lets a computation ask for other values. What is measured on many
/// pages is made by one thread, and the others wait.
class ReadingCache
{
public:
    using Breaks = PDFSpecification::LayoutBreaks;
    using Heading = std::optional<SectionHeading>;

    enum class Measure { TextSize, LeftMargin };

    template <class Key, class Value>
    using Table = std::map<Key, std::shared_ptr<const Value>>;

    /// The value for a key, made by `make` (which returns a shared pointer) the first time.
    template <class Key, class Value, class Make>
    std::shared_ptr<const Value> get(Table<Key, Value> ReadingCache::*table, const Key &key,
                                     const Make &make)
    {
        {
            const std::shared_lock lock(m_mutex);
            const auto it = (this->*table).find(key);
            if (it != (this->*table).end())
                return it->second;
        }
        std::shared_ptr<const Value> value = make();
        const std::unique_lock lock(m_mutex);
        return (this->*table).emplace(key, std::move(value)).first->second;
    }

    /// As get(), but made by one thread at a time. What is made this way may ask for others of its
    /// kind, but not for what is made under a lock of an entry.
    template <class Key, class Value, class Make>
    std::shared_ptr<const Value> measure(Table<Key, Value> ReadingCache::*table, const Key &key,
                                         const Make &make)
    {
        return get(table, key, [&] {
            const std::scoped_lock lock(m_measuring);
            return get(table, key, make);
        });
    }

    bool knows(Measure measure)
    {
        const std::shared_lock lock(m_mutex);
        return measures.contains(measure);
    }

    /// Forgets what depends on the entries' places and the printed area; the measures of the
    /// print stay.
    void forgetPages()
    {
        const std::unique_lock lock(m_mutex);
        breaks.clear();
        lines.clear();
        headingLines.clear();
        pages.clear();
        headings.clear();
    }

    Table<Measure, double> measures;
    Table<int, BodyShape> shapes;
    Table<int, Breaks> breaks;
    Table<int, PageLines> lines;
    Table<int, std::vector<bool>> headingLines;
    Table<int, FilteredPage> pages;
    Table<const PDFSpecification::Entry *, Heading> headings;

private:
    std::shared_mutex m_mutex;
    std::recursive_mutex m_measuring;
};

} // namespace Tavrin
