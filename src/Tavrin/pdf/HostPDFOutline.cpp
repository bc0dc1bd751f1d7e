// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/HostPDFOutline.h>

#include <Tavrin/pdf/HostPDFDocument.h>

#include <utility>

namespace Tavrin
{

/// All items of an outline; the first is the root. Holds places, not pages: a page would hold
/// nothing of the document, but be made for every item.
struct HostPDFOutline::Table {
    struct Item {
        PDFOutlineItem item;
        std::vector<std::size_t> children;
    };

    std::vector<Item> items;
    std::weak_ptr<HostPDFDocument> document;

    std::optional<HostPDFDestination> destination(const std::optional<PDFPlace> &place) const
    {
        const auto owner = place ? document.lock() : nullptr;
        auto page = owner ? owner->page(place->page) : nullptr;
        return page ? std::optional(HostPDFDestination(std::move(page), place->point))
                    : std::nullopt;
    }
};

HostPDFOutline::HostPDFOutline(std::shared_ptr<const Table> table, std::size_t index)
    : m_table(std::move(table)), m_index(index)
{
}

std::shared_ptr<const HostPDFOutline::Table>
HostPDFOutline::makeTable(const std::vector<PDFOutlineItem> &items,
                          const std::shared_ptr<HostPDFDocument> &document)
{
    auto table = std::make_shared<Table>();
    table->document = document;
    table->items.reserve(items.size() + 1);
    table->items.emplace_back();
    // The path from the root to the last item; an item hangs below the last one above its depth.
    std::vector<std::size_t> path{0};
    for (const PDFOutlineItem &item : items) {
        path.resize(std::min(path.size(), static_cast<std::size_t>(item.depth) + 1));
        const std::size_t position = table->items.size();
        table->items.push_back({item, {}});
        table->items[path.back()].children.push_back(position);
        path.push_back(position);
    }
    return table;
}

std::optional<QString> HostPDFOutline::label() const
{
    return m_table->items[m_index].item.label;
}

std::optional<HostPDFDestination> HostPDFOutline::destination() const
{
    return m_table->destination(m_table->items[m_index].item.destination);
}

std::optional<HostPDFDestination> HostPDFOutline::actionDestination() const
{
    return m_table->destination(m_table->items[m_index].item.actionDestination);
}

qsizetype HostPDFOutline::numberOfChildren() const
{
    return static_cast<qsizetype>(m_table->items[m_index].children.size());
}

std::optional<HostPDFOutline> HostPDFOutline::childAtIndex(qsizetype index) const
{
    if (index < 0 || index >= numberOfChildren())
        return std::nullopt;
    return HostPDFOutline(m_table,
                          m_table->items[m_index].children[static_cast<std::size_t>(index)]);
}

} // namespace Tavrin
