// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>

#include <shared_mutex>

#include <Tavrin/pdf/HostPDFDocument.h>

namespace Tavrin
{

/// A document that remembers the text and the lines of each page it was asked for.
///
/// Nothing is evicted: memory grows with the pages touched, and goes with the document. A page
/// without text is asked again each time. Safe from any thread.
///
/// A specification binds one of these, and MapDrafter takes one. A page asked for by two threads at
/// once may be read twice; both get the same.
class TAVRIN_CORE_EXPORT CachingPDFDocument : public HostPDFDocument
{
public:
    /// Opens a local file, or a document held in memory. Throws HostPDFError. Reads the structure
    /// of the file, and no page.
    static std::shared_ptr<CachingPDFDocument> open(const QUrl &url, const QString &password = {});
    /// The same for a document in memory, whose bytes are kept as long as it is open.
    static std::shared_ptr<CachingPDFDocument> open(const QByteArray &data,
                                                    const QString &password = {});

    std::optional<StyledText> attributedTextForPage(int index) const override;
    std::optional<StyledText> attributedTextFor(const HostPDFPage &page) const override;
    std::optional<QString> textForPage(int index) const override;
    std::optional<QString> textFor(const HostPDFPage &page) const override;

    /// The lines of a page in the order of LineFinder, found once.
    ///
    /// Empty for a page of another document.
    std::vector<TextRange> linesFor(const HostPDFPage &page) const;

private:
    explicit CachingPDFDocument(std::unique_ptr<PDFEngineDocument> engine);

    template <class Value, class Read>
    std::optional<Value> cached(QHash<int, Value> &cache, int index, const Read &read) const;

    mutable std::shared_mutex m_mutex;
    mutable QHash<int, QString> m_pageStrings;
    mutable QHash<int, StyledText> m_pageAttributedStrings;
    mutable QHash<int, std::vector<TextRange>> m_pageLines;
};

} // namespace Tavrin
