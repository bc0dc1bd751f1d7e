// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/CachingPDFDocument.h>

#include <Tavrin/pdf/LineFinder.h>

#include <mutex>
#include <utility>

namespace Tavrin
{

CachingPDFDocument::CachingPDFDocument(std::unique_ptr<PDFEngineDocument> engine)
    : HostPDFDocument(std::move(engine))
{
}

std::shared_ptr<CachingPDFDocument> CachingPDFDocument::open(const QUrl &url,
                                                             const QString &password)
{
    return std::shared_ptr<CachingPDFDocument>(new CachingPDFDocument(openEngine(url, password)));
}

std::shared_ptr<CachingPDFDocument> CachingPDFDocument::open(const QByteArray &data,
                                                             const QString &password)
{
    return std::shared_ptr<CachingPDFDocument>(
        new CachingPDFDocument(PDFEngine::standard().open(data, password)));
}

template <class Value, class Read>
std::optional<Value> CachingPDFDocument::cached(QHash<int, Value> &cache, int index,
                                                const Read &read) const
{
    {
        const std::shared_lock lock(m_mutex);
        if (const auto it = cache.constFind(index); it != cache.constEnd())
            return *it;
    }
    // Read without the lock: two threads may ask for one page at once, and get equal values.
    std::optional<Value> value = read();
    if (value) {
        const std::unique_lock lock(m_mutex);
        cache.insert(index, *value);
    }
    return value;
}

std::optional<StyledText> CachingPDFDocument::attributedTextForPage(int index) const
{
    return cached(m_pageAttributedStrings, index,
                  [&] { return HostPDFDocument::attributedTextForPage(index); });
}

std::optional<QString> CachingPDFDocument::textForPage(int index) const
{
    return cached(m_pageStrings, index, [&] { return HostPDFDocument::textForPage(index); });
}

std::optional<StyledText> CachingPDFDocument::attributedTextFor(const HostPDFPage &page) const
{
    const auto index = indexForPage(page);
    return index ? attributedTextForPage(*index) : std::nullopt;
}

std::optional<QString> CachingPDFDocument::textFor(const HostPDFPage &page) const
{
    const auto index = indexForPage(page);
    return index ? textForPage(*index) : std::nullopt;
}

std::vector<TextRange> CachingPDFDocument::linesFor(const HostPDFPage &page) const
{
    const auto index = indexForPage(page);
    if (!index)
        return {};
    const auto find = [&] {
        std::vector<TextRange> lines = LineFinder::find(page);
        return lines.empty() ? std::nullopt : std::optional(std::move(lines));
    };
    return cached(m_pageLines, *index, find).value_or(std::vector<TextRange>{});
}

} // namespace Tavrin
