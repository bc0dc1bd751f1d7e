// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/OutlinePairing.h>

#include <algorithm>

#include <Tavrin/drafting/TextKey.h>
#include <Tavrin/enhance/EntryOrder.h>
#include <Tavrin/platform/StandardError.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

bool beginsWithDigit(const QString &label)
{
    return !label.isEmpty() && label.front() >= u'0' && label.front() <= u'9';
}

/// Adds a position under a key, or marks the key as one that several have.
void addOnce(QHash<QString, qsizetype> &positions, const QString &key, qsizetype position)
{
    positions.insert(key, positions.contains(key) ? -1 : position);
}

} // namespace

OutlinePairing::OutlinePairing(const PDFXMLEnhancer &specification, const HostPDFDocument &document)
    : m_specification(specification)
{
    const auto outline = specification.parseOutline(document);
    for (auto item = outline.begin(); item != outline.end(); ++item)
        m_items.push_back({item.key(), item.value()});
    std::stable_sort(m_items.begin(), m_items.end(), [&](const Item &a, const Item &b) {
        // The outline holds no items without a place.
        return std::is_lt(
            specification.destination(a.outline)->compare(*specification.destination(b.outline)));
    });
    for (const auto &entry : specification.entries()) {
        if (isTextual(entry->type()))
            m_entries.push_back(entry);
    }
    sortByNumber(m_entries);
}

PDFXMLEnhancer::LabelLinkMapping OutlinePairing::pair()
{
    pairInOrder();
    pairByTitle();
    return m_mapping;
}

void OutlinePairing::pairInOrder()
{
    auto item = m_items.begin();
    for (const auto &entry : m_entries) {
        item = std::find_if(item, m_items.end(),
                            [](const Item &next) { return beginsWithDigit(next.label); });
        if (item == m_items.end()) {
            standardError(u"Not enough outline items"_s);
            return;
        }
        if (item->label.contains(entry->title())) {
            take(*item, *entry);
        } else {
            standardError(u"Entry mismatch: expected outline item %1 to be entry %2"_s.arg(
                item->label, entry->description()));
        }
        ++item;
    }
}

/// What is left on both sides: an item that says number and title, or failing that one of the
/// title alone, if only one item and one entry have it.
void OutlinePairing::pairByTitle()
{
    QHash<QString, qsizetype> items;
    QHash<QString, qsizetype> titles;
    for (std::size_t position = 0; position < m_items.size(); ++position) {
        if (!m_items[position].isTaken)
            addOnce(items, TextKey::fold(m_items[position].label), qsizetype(position));
    }
    for (const auto &entry : m_entries)
        addOnce(titles, TextKey::fold(entry->title()), 0);
    for (const auto &entry : m_entries) {
        if (m_mapping.contains(entry->label()))
            continue;
        const QString title = TextKey::fold(entry->title());
        for (const QString &key : {TextKey::fold(entry->label() + u' ' + entry->title()), title}) {
            const qsizetype position = items.value(key, -1);
            if (position < 0 || (key == title && titles.value(title) < 0))
                continue;
            take(m_items[std::size_t(position)], *entry);
            items.remove(key);
            break;
        }
    }
}

void OutlinePairing::take(Item &item, const SpecificationEntry &entry)
{
    item.isTaken = true;
    m_mapping.insert(entry.label(), m_specification.internalLink(item.outline));
}

} // namespace Tavrin
