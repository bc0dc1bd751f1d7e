// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QImage>

#include <functional>
#include <list>

#include <Tavrin/interface/pdfview/PageTile.h>

namespace Tavrin
{

/// Drawn tiles, up to a number of bytes; those that were not looked at for longest go first.
/// One thread.
class TileCache
{
public:
    explicit TileCache(qsizetype byteLimit) : m_byteLimit(byteLimit) {}

    qsizetype byteLimit() const { return m_byteLimit; }
    qsizetype byteCount() const { return m_byteCount; }

    /// One that is larger than the limit by itself is not kept.
    void insert(const PageTile &tile, const QImage &image);
    bool contains(const PageTile &tile) const { return m_index.contains(tile); }
    /// The tile's image, which now counts as looked at; null if it isn't here.
    QImage image(const PageTile &tile);
    /// Calls back for all tiles of a page, at whichever scale, those longest unseen first.
    void forEachOfPage(int page,
                       const std::function<void(const PageTile &, const QImage &)> &callback) const;
    void clear();

private:
    struct Item {
        PageTile tile;
        QImage image;
    };
    /// The one looked at last stands last.
    std::list<Item> m_items;
    QHash<PageTile, std::list<Item>::iterator> m_index;
    qsizetype m_byteLimit;
    qsizetype m_byteCount = 0;
};

} // namespace Tavrin
