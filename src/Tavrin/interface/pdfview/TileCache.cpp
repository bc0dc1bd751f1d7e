// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/TileCache.h>

namespace Tavrin
{

void TileCache::insert(const PageTile &tile, const QImage &image)
{
    if (image.sizeInBytes() > m_byteLimit)
        return;
    if (const auto known = m_index.constFind(tile); known != m_index.cend()) {
        m_byteCount -= (*known)->image.sizeInBytes();
        m_items.erase(*known);
    }
    m_index.insert(tile, m_items.insert(m_items.end(), {tile, image}));
    m_byteCount += image.sizeInBytes();
    while (m_byteCount > m_byteLimit) {
        m_byteCount -= m_items.front().image.sizeInBytes();
        m_index.remove(m_items.front().tile);
        m_items.pop_front();
    }
}

QImage TileCache::image(const PageTile &tile)
{
    const auto known = m_index.constFind(tile);
    if (known == m_index.cend())
        return {};
    m_items.splice(m_items.end(), m_items, *known);
    return (*known)->image;
}

void TileCache::forEachOfPage(
    int page, const std::function<void(const PageTile &, const QImage &)> &callback) const
{
    for (const Item &item : m_items) {
        if (item.tile.page == page)
            callback(item.tile, item.image);
    }
}

void TileCache::clear()
{
    m_items.clear();
    m_index.clear();
    m_byteCount = 0;
}

} // namespace Tavrin
