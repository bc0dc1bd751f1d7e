// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/pdf/HostPDFDocument.h>
#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// A place where a phrase was found.
struct FindHit {
    int page = 0;
    TextRange range;

    friend bool operator==(const FindHit &, const FindHit &) = default;
};

/// Looks for a phrase through a document on another thread, from a page on to the end and then
/// from the start. Used on the main thread, which never waits for a search that is replaced; when
/// the finder goes, for the page being read.
class DocumentFinder : public QObject
{
    Q_OBJECT

public:
    /// Beyond this many a search stops: nobody steps through more.
    static constexpr int mostHits = 10'000;

    explicit DocumentFinder(QObject *parent = nullptr);
    ~DocumentFinder() override;

    /// Begins a search in place of the one before, whose hits are forgotten. An empty phrase
    /// finds nothing and ends at once.
    void find(const std::shared_ptr<HostPDFDocument> &document, const QString &phrase,
              int firstPage);
    void clear();

    const QString &phrase() const { return m_phrase; }
    bool isSearching() const { return m_isSearching; }
    int hitCount() const { return m_hitCount; }
    bool isAtLimit() const { return m_hitCount >= mostHits; }
    /// In reading order.
    const std::vector<TextRange> &hitsOn(int page) const;
    /// Counted from 0 in reading order, -1 if it is no hit.
    int indexOf(const FindHit &hit) const;
    /// The first hit at or after a place, or the last one before it; the search goes round the
    /// end. Nothing without hits.
    std::optional<FindHit> hitFrom(int page, qsizetype offset) const;
    std::optional<FindHit> hitBefore(int page, qsizetype offset) const;

Q_SIGNALS:
    void hitsChanged();
    void finished();

private:
    using Hits = std::map<int, std::vector<TextRange>>;
    struct Search;

    static void run(const std::shared_ptr<Search> &search);
    static void look(const std::shared_ptr<Search> &search);
    /// Lets go of the threads that have ended, or waits for all.
    void join(bool all);
    void add(Hits found);
    void end();
    void stop();

    QString m_phrase;
    Hits m_hits;
    int m_hitCount = 0;
    bool m_isSearching = false;
    std::shared_ptr<Search> m_search;
    /// This one and those that have not ended yet.
    std::vector<std::shared_ptr<Search>> m_running;
};

} // namespace Tavrin
