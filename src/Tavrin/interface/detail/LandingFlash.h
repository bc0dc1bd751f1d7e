// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QTimer>
#include <QVariantAnimation>

#include <optional>

#include <Tavrin/pdf/HostPDFDestination.h>
#include <Tavrin/platform/Geometry.h>

class QPainter;

namespace Tavrin
{

class HostPDFView;
class PageText;

/// Shows where one has landed in a document: lights up the line at the place, and fades.
///
/// It begins once the page is drawn and its text is read, since what nobody sees is no help; a
/// place that isn't drawn within a few seconds is not lit any more. Main thread.
class LandingFlash : public QObject
{
    Q_OBJECT

public:
    explicit LandingFlash(HostPDFView &view);

    /// Takes the place of a flash before it. Does nothing without a page.
    void flash(const HostPDFDestination &place);
    void stop();
    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }

    /// Over a page, with a painter in page space.
    void draw(const HostPDFPage &page, QPainter &context, const QColor &color);

    /// What is lit of a page: the line that begins at the place or is the next below, or a strip
    /// across the page where there is none near. In page space.
    static Rect landingArea(const HostPDFPage &page, const PageText &text, Point place);

private:
    void begin();
    void updateView();

    HostPDFView &m_view;
    QVariantAnimation m_animation;
    QTimer m_patience;
    /// Until it begins.
    std::optional<HostPDFDestination> m_place;
    int m_page = -1;
    Rect m_area;
};

} // namespace Tavrin
