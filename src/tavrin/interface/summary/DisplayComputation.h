// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFutureWatcher>
#include <QImage>
#include <QObject>

#include <atomic>
#include <memory>

#include <Tavrin/model/SpecificationEntry.h>

namespace Tavrin
{

/// Computes what an entry shows, in the background.
///
/// The entry lives until that is done, and no file is bound to its specification meanwhile; a
/// specification that is gone, or goes, leaves less to show. Dropping the object gives up what has
/// not begun. Main thread.
class DisplayComputation : public QObject
{
    Q_OBJECT

public:
    explicit DisplayComputation(QObject *parent = nullptr);
    ~DisplayComputation() override;

    /// Whether reading the display items of the entry may take as long as an extraction.
    static bool isNeeded(const SpecificationEntry &entry);

    /// Begins, with a preview of `scale` pixels a point as well if that is more than one.
    void start(const std::shared_ptr<SpecificationEntry> &entry, double scale);
    bool isRunning() const { return m_watcher.isRunning(); }

    /// The entry's preview at the scale asked for; null before it is there, and if there is none.
    const QImage &preview() const { return m_preview; }

Q_SIGNALS:
    void finished();

private:
    QFutureWatcher<QImage> m_watcher;
    std::shared_ptr<std::atomic<bool>> m_isGivenUp;
    QImage m_preview;
};

} // namespace Tavrin
