// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include <map>
#include <optional>
#include <vector>

#include <Tavrin/interface/detail/LandingFlash.h>
#include <Tavrin/interface/pdfview/HostPDFView.h>

namespace Tavrin
{

/// A PDF view that marks an entry and what is covered by references, over the drawn pages.
///
/// Rectangles are in page space, by page index from 0. Whoever changes a field asks for update()
/// of the viewport. What is set stays when the document changes.
class EntryHighlightPDFView : public HostPDFView
{
    Q_OBJECT

public:
    explicit EntryHighlightPDFView(QWidget *parent = nullptr);

    /// Lights up the line at a place for a moment, when it can be seen.
    void flash(const HostPDFDestination &place) { m_flash.flash(place); }

    /// An outline around the selected entry; one rectangle a page.
    std::optional<std::map<int, Rect>> pageRects;
    /// A tint over each rectangle, with a bar on its left edge.
    std::optional<std::map<int, std::vector<Rect>>> coverageHighlights;
    QColor coverageHighlightColor = QColor::fromRgbF(0.0F, 0.75F, 0.0F, 1.0F);

protected:
    void drawOverPage(const HostPDFPage &page, QPainter &context) override;

private:
    void drawEntryOutline(const Rect &rect, QPainter &context) const;
    void drawCoverage(const std::vector<Rect> &rects, QPainter &context) const;

    LandingFlash m_flash{*this};
};

} // namespace Tavrin
