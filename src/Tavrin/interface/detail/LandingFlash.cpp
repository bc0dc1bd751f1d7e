// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/detail/LandingFlash.h>

#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <QPainter>

#include <chrono>

namespace Tavrin
{

namespace
{

using namespace std::chrono_literals;

constexpr auto duration = 1400ms;
/// A share of the time at full strength, before it fades.
constexpr double heldShare = 0.35;
constexpr auto patience = 5s;
constexpr double strength = 0.35;
/// Places lie a little above or inside their line, depending on who made the file.
constexpr double tolerance = 4;
/// Further below it is no more what one came for.
constexpr double farthest = 72;
constexpr double stripHeight = 16;
constexpr double margin = 3;

} // namespace

LandingFlash::LandingFlash(HostPDFView &view) : QObject(&view), m_view(view)
{
    m_animation.setDuration(int(std::chrono::milliseconds(duration).count()));
    m_animation.setStartValue(1.0);
    m_animation.setKeyValueAt(heldShare, 1.0);
    m_animation.setEndValue(0.0);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, &LandingFlash::updateView);
    connect(&m_animation, &QVariantAnimation::finished, this, &LandingFlash::updateView);
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, [this] { m_place.reset(); });
}

void LandingFlash::flash(const HostPDFDestination &place)
{
    stop();
    if (!place.page())
        return;
    m_place = place;
    m_patience.start();
    m_view.viewport()->update();
}

void LandingFlash::stop()
{
    m_animation.stop();
    m_patience.stop();
    m_place.reset();
    m_page = -1;
}

void LandingFlash::updateView()
{
    m_view.viewport()->update();
}

Rect LandingFlash::landingArea(const HostPDFPage &page, const PageText &text, Point place)
{
    const PageGeometry &geometry = page.geometry();
    const Point landing = geometry.toUpright(place);
    Rect best = Rect::null();
    for (const PageTextLine &line : text.lines()) {
        const Rect rect = geometry.toUpright(line.bounds);
        const bool isBelow = rect.center().y <= landing.y + tolerance;
        const bool isNear = rect.maxY() >= landing.y - farthest;
        const bool isBeside = rect.maxX() > landing.x;
        if (isBelow && isNear && isBeside && (best.isNull() || rect.center().y > best.center().y))
            best = rect;
    }
    if (best.isNull())
        best = {{margin, landing.y - stripHeight},
                {geometry.uprightSize().width - 2 * margin, stripHeight}};
    best = {{best.minX() - margin, best.minY() - margin},
            {best.size.width + 2 * margin, best.size.height + 2 * margin}};
    return geometry.toPage(best);
}

void LandingFlash::begin()
{
    const auto page = m_place->page();
    const auto text = m_view.textOf(page->index());
    if (!text || !m_view.isDrawn(page->index()))
        return;
    m_page = page->index();
    m_area = landingArea(*page, *text, m_place->point());
    m_place.reset();
    m_patience.stop();
    m_animation.start();
}

void LandingFlash::draw(const HostPDFPage &page, QPainter &context, const QColor &color)
{
    if (m_place && m_place->page()->index() == page.index())
        begin();
    if (!isRunning() || page.index() != m_page)
        return;
    QColor light = color;
    light.setAlphaF(float(strength * m_animation.currentValue().toDouble()));
    context.setPen(Qt::NoPen);
    context.setBrush(light);
    context.drawRoundedRect(
        QRectF(m_area.minX(), m_area.minY(), m_area.size.width, m_area.size.height), margin,
        margin);
}

} // namespace Tavrin
