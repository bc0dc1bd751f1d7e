// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/OutlineReader.h>

#include <Tavrin/drafting/TextKey.h>

#include <algorithm>
#include <utility>

namespace Tavrin
{

namespace
{

constexpr qsizetype longestLabel = 1000;
/// No print goes deeper; what a file nests below counts as this deep.
constexpr int deepestLevel = 9;

void readPlace(const HostPDFOutline &outline, const CachingPDFDocument &document, DraftItem &item)
{
    auto place = outline.destination();
    if (!place)
        place = outline.actionDestination();
    if (!place || !place->page())
        return;
    if (const auto page = document.indexForPage(*place->page())) {
        item.page = *page;
        item.hint = place->page()->geometry().toUpright(place->point());
    }
}

std::vector<DraftItem> readAll(const HostPDFOutline &root, const CachingPDFDocument &document)
{
    struct Level {
        HostPDFOutline outline;
        qsizetype next = 0;
    };
    std::vector<DraftItem> items;
    std::vector<Level> path{{root, 0}};
    while (!path.empty()) {
        Level &level = path.back();
        const auto child = level.outline.childAtIndex(level.next++);
        if (!child) {
            path.pop_back();
            continue;
        }
        if (const auto label = child->label(); label && !label->trimmed().isEmpty()) {
            DraftItem item = OutlineReader::itemFromLabel(*label);
            item.depth = std::min(static_cast<int>(path.size()) - 1, deepestLevel);
            readPlace(*child, document, item);
            items.push_back(std::move(item));
        }
        path.push_back({*child, 0});
    }
    return items;
}

/// Whether the first item is the title of a document that the others are the parts of.
bool hasTitleOnTop(const std::vector<DraftItem> &items)
{
    if (items.size() < 3 || items.front().depth != 0 || items.front().number)
        return false;
    return std::all_of(items.begin() + 1, items.end(),
                       [](const DraftItem &item) { return item.depth > 0; });
}

} // namespace

DraftItem OutlineReader::itemFromLabel(const QString &label)
{
    DraftItem item;
    item.label = TextKey::clean(label.left(longestLabel));
    item.title = item.label;
    item.number = HeadingNumber::parse(item.label);
    if (item.number) {
        item.source = DraftItem::Source::Outline;
        const QString title = item.label.mid(item.number->length).trimmed();
        if (!title.isEmpty())
            item.title = title;
    }
    return item;
}

std::vector<DraftItem> OutlineReader::read(const CachingPDFDocument &document)
{
    const auto root = document.outlineRoot();
    if (!root)
        return {};
    std::vector<DraftItem> items = readAll(*root, document);
    if (hasTitleOnTop(items)) {
        items.erase(items.begin());
        for (DraftItem &item : items)
            --item.depth;
    }
    return items;
}

} // namespace Tavrin
