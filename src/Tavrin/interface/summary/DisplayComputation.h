// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QObject>

#include <memory>

#include <Tavrin/interface/toolkit/BackgroundWork.h>
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
    using QObject::QObject;

    /// Whether reading the display items of the entry may take as long as an extraction.
    static bool isNeeded(const SpecificationEntry &entry);

    /// Begins, with a preview of `scale` pixels a point as well if that is more than one.
    void start(const std::shared_ptr<SpecificationEntry> &entry, double scale);

    /// The entry's preview at the scale asked for; null before it is there, and if there is none.
    const QImage &preview() const { return m_preview; }

Q_SIGNALS:
    void finished();

private:
    std::unique_ptr<BackgroundWork> m_work;
    QImage m_preview;
};

} // namespace Tavrin
