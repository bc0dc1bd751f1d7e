// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <memory>

namespace Tavrin
{

class SpecPDFSearchResult;

/// Computes what the entries of search results show, one after the other on one background thread,
/// and says when each is done. Main thread.
///
/// An entry that is being computed lives until that is done, and no file is bound to its
/// specification meanwhile.
class SearchResultLoader : public QObject
{
    Q_OBJECT

public:
    using ResultPtr = std::shared_ptr<SpecPDFSearchResult>;

    explicit SearchResultLoader(QObject *parent = nullptr);
    ~SearchResultLoader() override;

    /// Does nothing for a result that is described, or was enqueued since the latest removal.
    void enqueue(const ResultPtr &result);
    /// Gives up what has not begun; it may be enqueued again.
    void removeAll();
    bool isLoading() const;

Q_SIGNALS:
    /// The entry of a result has been computed.
    void loaded(const std::shared_ptr<SpecPDFSearchResult> &result);

private:
    struct Drain;

    void startDrain();
    void take(const ResultPtr &result);
    void announce();

    std::shared_ptr<Drain> m_drain;
    /// What is computed and not announced.
    std::deque<ResultPtr> m_loaded;
    QTimer m_announcing;
    int m_filling = 0;
};

} // namespace Tavrin
