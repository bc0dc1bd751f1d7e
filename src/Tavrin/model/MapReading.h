// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QUrl>

#include <optional>

#include <Tavrin/platform/HostXMLDocument.h>

namespace Tavrin
{

/// While one lives, a map that is read on this thread again is not parsed and validated again: its
/// class is chosen, its object made and its table loaded from one document. Where they nest, the
/// outermost counts. What it holds is gone with it, since a parsed map is large.
class MapReading
{
public:
    MapReading();
    ~MapReading();
    MapReading(const MapReading &) = delete;
    MapReading &operator=(const MapReading &) = delete;

    /// A validated document, remembered if anything lives that remembers. Throws what
    /// Specification::loadValidatedXMLDocument throws.
    static HostXMLDocument document(const QUrl &map, const std::optional<QUrl> &dtd);

private:
    struct Last {
        QUrl map;
        std::optional<QUrl> dtd;
        HostXMLDocument document;
    };

    static thread_local MapReading *s_outermost;

    std::optional<Last> m_last;
};

} // namespace Tavrin
