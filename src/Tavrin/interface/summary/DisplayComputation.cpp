// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/summary/DisplayComputation.h>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

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
    const auto preview = std::make_shared<QImage>();
    m_work = std::make_unique<BackgroundWork>();
    connect(m_work.get(), &BackgroundWork::finished, this, [this, preview] {
        m_preview = *preview;
        Q_EMIT finished();
    });
    m_work->start([shown, scale, preview](const BackgroundWork::Progress &) {
        *preview = compute(*shown, scale);
    });
}

} // namespace Tavrin
