// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/DisplayComputation.h>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/BackgroundPool.h>

#include <QThreadPool>

namespace Tavrin
{

namespace
{

using Entry = PDFSpecification::Entry;

QImage compute(const Entry &entry, double scale)
{
    const auto specification = std::dynamic_pointer_cast<PDFSpecification>(entry.specification());
    if (!specification)
        return {};
    const auto lock = specification->readingLock();
    entry.computeDisplay();
    if (scale <= 1 || !entry.previewImage())
        return {};
    QImage image = specification->extractImage(entry, scale);
    image.setDevicePixelRatio(scale);
    return image;
}

} // namespace

DisplayComputation::DisplayComputation(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcherBase::finished, this, [this] {
        m_preview = m_watcher.result();
        Q_EMIT finished();
    });
}

DisplayComputation::~DisplayComputation()
{
    if (m_isGivenUp)
        *m_isGivenUp = true;
}

bool DisplayComputation::isNeeded(const SpecificationEntry &entry)
{
    const auto *shown = dynamic_cast<const Entry *>(&entry);
    return shown && shown->displayBlock() && shown->needsComputeDisplay();
}

void DisplayComputation::start(const std::shared_ptr<SpecificationEntry> &entry, double scale)
{
    const auto shown = std::dynamic_pointer_cast<Entry>(entry);
    if (!shown)
        return;
    m_isGivenUp = std::make_shared<std::atomic<bool>>(false);
    // The application waits for this pool before it ends.
    m_watcher.setFuture(QtFuture::makeReadyFuture().then(
        &backgroundPool(), [shown, scale, isGivenUp = m_isGivenUp] {
            return *isGivenUp ? QImage() : compute(*shown, scale);
        }));
}

} // namespace Tavrin
