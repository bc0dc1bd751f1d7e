// SPDX-License-Identifier: Apache-2.0
// The document and its layout, places and zoom. See also HostPDFViewPainting.cpp,
// HostPDFViewSelection.cpp and HostPDFViewInput.cpp.
#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <Tavrin/interface/pdfview/FindBar.h>
#include <Tavrin/interface/pdfview/PDFViewAccessible.h>
#include <Tavrin/interface/pdfview/PageIndicator.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace Tavrin
{

namespace
{

/// Above a place that one goes to, so that it doesn't stick to the edge.
constexpr double headroom = 12;
constexpr double zoomStep = 1.2;

} // namespace

HostPDFView::HostPDFView(QWidget *parent)
    : QAbstractScrollArea(parent),
      m_placeholder(localized("No document is open.", "In an empty PDF view")),
      m_findBar(new FindBar(this)),
      m_indicator(new PageIndicator(this))
{
    PDFViewAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(localized("Document", "Accessible name of a PDF view"));
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->grabGesture(Qt::PinchGesture);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
    m_findBar->hide();
    m_autoScroll.setInterval(30);
    connectParts();
    updateLayout();
}

void HostPDFView::connectParts()
{
    connect(&m_renderer, &PageRenderer::pagesRead, this, &HostPDFView::takePages);
    connect(&m_renderer, &PageRenderer::contentsRead, this, &HostPDFView::takeContents);
    connect(&m_renderer, &PageRenderer::tileFailed, this, &HostPDFView::takeFailure);
    connect(&m_renderer, &PageRenderer::tileDrawn, this,
            [this](const PageTile &tile, const QImage &image) {
                m_tiles.insert(tile, image);
                if (const PlacedPage page = placed(tile.page); page.whole.scale == tile.scale)
                    viewport()->update();
                tellWhenDrawn();
            });
    connect(&m_finder, &DocumentFinder::hitsChanged, this, &HostPDFView::takeHits);
    connect(&m_finder, &DocumentFinder::finished, this, &HostPDFView::takeHits);
    connect(m_findBar, &FindBar::phraseChanged, this, &HostPDFView::find);
    connect(m_findBar, &FindBar::nextWanted, this, &HostPDFView::findNext);
    connect(m_findBar, &FindBar::previousWanted, this, &HostPDFView::findPrevious);
    connect(m_findBar, &FindBar::closed, this, &HostPDFView::hideFindBar);
    connect(&m_autoScroll, &QTimer::timeout, this, [this] {
        const QPoint mouse = viewport()->mapFromGlobal(QCursor::pos());
        const QRect inside = viewport()->rect();
        const int beyond = mouse.y() < inside.top()      ? mouse.y() - inside.top()
                           : mouse.y() > inside.bottom() ? mouse.y() - inside.bottom()
                                                         : 0;
        verticalScrollBar()->setValue(verticalScrollBar()->value() + beyond / 2);
        moveDrag(mouse);
    });
}

HostPDFView::~HostPDFView()
{
    // Nothing that ends with the view has to wait for a drawing.
    m_renderer.setDocument(nullptr);
}

void HostPDFView::setDocument(const std::shared_ptr<HostPDFDocument> &document)
{
    if (document == m_document)
        return;
    m_finder.clear();
    m_pages.clear();
    m_contents.clear();
    m_failures.clear();
    m_tiles.clear();
    m_pendingDestination.reset();
    m_pendingPage.reset();
    m_drag.reset();
    m_caret.reset();
    m_pressedLink.reset();
    m_currentHit.reset();
    m_isSelectAllPending = false;
    m_history.clear();
    m_lastPage = -1;
    const bool hadSelection = m_selection.has_value();
    m_selection.reset();
    m_selectionBoxes.clear();
    m_document = document;
    m_renderer.setDocument(document);
    m_scroller.jumpTo({0, 0});
    m_layout.setPages({});
    updateLayout();
    if (hadSelection)
        Q_EMIT selectionChanged();
    Q_EMIT historyChanged();
}

void HostPDFView::setPlaceholderText(const QString &text)
{
    m_placeholder = text;
    viewport()->update();
}

void HostPDFView::takePages(const std::vector<std::shared_ptr<HostPDFPage>> &pages)
{
    m_pages = pages;
    std::vector<Size> sizes;
    for (std::size_t index = 0; index < pages.size(); ++index) {
        // A broken page takes the size of the one before it, since most pages are alike.
        const Size before = sizes.empty() ? Size{} : sizes.back();
        sizes.push_back(pages[index] ? pages[index]->geometry().uprightSize() : before);
        if (!pages[index])
            m_failures.insert(static_cast<int>(index), 0);
    }
    m_isHolding = true;
    m_layout.setPages(sizes);
    updateLayout();
    if (const auto destination = std::exchange(m_pendingDestination, std::nullopt))
        goTo(*destination);
    else if (const auto page = std::exchange(m_pendingPage, std::nullopt))
        goToPage(*page);
    m_history.clear();
    m_isHolding = false;
    updateWanted();
    updateCurrentPage();
    Q_EMIT documentReady();
}

void HostPDFView::takeContents(int page, const PageContentsPtr &contents)
{
    m_contents.insert(page, contents);
    m_selectionBoxes.remove(page);
    if (m_drag && m_drag->isPending)
        updateDrag();
    if (m_drag && m_drag->isReleased && !m_drag->isPending)
        m_drag.reset();
    if (m_isSelectAllPending)
        selectAll();
    if (page == currentPage())
        setAccessibleDescription(
            localized("Page %1", "Accessible description of a PDF view").arg(contents->label));
    viewport()->update();
}

void HostPDFView::takeFailure(const PageTile &tile)
{
    m_failures.insert(tile.page, tile.scale);
    viewport()->update();
    updateWanted();
    tellWhenDrawn();
}

// Layout

double HostPDFView::devicePixelRatio() const
{
    return viewport()->devicePixelRatioF();
}

void HostPDFView::updateLayout()
{
    if (m_isLayingOut)
        return;
    m_isLayingOut = true;
    const bool wasReady = m_layout.pageCount() > 0 && isReady();
    const ViewPlace place = wasReady ? placeAt({0, 0}) : ViewPlace{};
    setVerticalScrollBarPolicy(isReady() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const QSizeF size = viewport()->size();
    const double oldScale = m_layout.scale();
    if (m_zoomMode == ZoomMode::FitWidth)
        m_layout.setScale(m_layout.scaleForWidth(size.width()));
    else if (m_zoomMode == ZoomMode::FitPage)
        m_layout.setScale(m_layout.scaleForPage(std::max(0, m_lastPage), size));
    m_layout.setViewWidth(size.width());
    updateScrollBars();
    if (wasReady)
        scrollToPlace(place, {0, 0});
    m_isLayingOut = false;
    updateWanted();
    viewport()->update();
    if (m_layout.scale() != oldScale)
        Q_EMIT zoomChanged();
}

void HostPDFView::updateScrollBars()
{
    const QSize content = m_layout.contentSize().toSize();
    const QSize size = viewport()->size();
    verticalScrollBar()->setRange(0, std::max(0, content.height() - size.height()));
    verticalScrollBar()->setPageStep(size.height());
    horizontalScrollBar()->setRange(0, std::max(0, content.width() - size.width()));
    horizontalScrollBar()->setPageStep(size.width());
}

QPointF HostPDFView::scrollOffset() const
{
    return QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

QRectF HostPDFView::visibleRect() const
{
    return {scrollOffset(), QSizeF(viewport()->size())};
}

PageGeometry HostPDFView::geometryOf(int page) const
{
    if (const auto &known = m_pages[static_cast<std::size_t>(page)])
        return known->geometry();
    const Rect box{{0, 0}, m_layout.pageSize(page)};
    return {box, box, 0};
}

PlacedPage HostPDFView::placed(int page) const
{
    const double ratio = devicePixelRatio();
    const double scale = m_layout.scale() * ratio;
    const QPointF corner = (m_layout.pageRect(page).topLeft() - scrollOffset()) * ratio;
    const QRect whole({0, 0}, pixelSize(m_layout.pageSize(page), scale));
    return {{page, scale, whole, m_isInverted}, corner.toPoint(), geometryOf(page)};
}

std::pair<int, int> HostPDFView::visibleRange(double above, double below) const
{
    if (!isReady())
        return {0, -1};
    const QRectF area = visibleRect();
    return {m_layout.pageAt(area.top() - above), m_layout.pageAt(area.bottom() + below)};
}

// Places

ViewPlace HostPDFView::placeAt(QPointF viewportPoint) const
{
    const QPointF point = scrollOffset() + viewportPoint;
    const int page = m_layout.pageAt(point.y());
    const QPointF onPage = (point - m_layout.pageRect(page).topLeft()) / m_layout.scale();
    const PageGeometry geometry = geometryOf(page);
    return {page, geometry.toPage(Point{onPage.x(), geometry.uprightSize().height - onPage.y()})};
}

void HostPDFView::scrollToPlace(const ViewPlace &place, QPointF viewportPoint)
{
    const PageGeometry geometry = geometryOf(place.page);
    const Point upright = geometry.toUpright(place.point);
    const QPointF onPage(upright.x, geometry.uprightSize().height - upright.y);
    const QPointF corner = m_layout.pageRect(place.page).topLeft();
    m_scroller.jumpTo((corner + onPage * m_layout.scale() - viewportPoint).toPoint());
}

void HostPDFView::leaveForJump()
{
    if (!isReady())
        return;
    m_history.leave(placeAt({0, 0}));
    Q_EMIT historyChanged();
}

void HostPDFView::jump(const ViewPlace &place, QPointF viewportPoint)
{
    leaveForJump();
    scrollToPlace(place, viewportPoint);
}

void HostPDFView::goTo(const HostPDFDestination &destination)
{
    if (!destination.page())
        return;
    if (!isReady()) {
        m_pendingDestination = destination;
        m_pendingPage.reset();
        return;
    }
    const int page = destination.page()->index();
    if (destination.page()->document() != m_document || page >= m_layout.pageCount())
        return;
    // A place beside or above the page, as some producers write, is at its edge.
    const PageGeometry geometry = geometryOf(page);
    Point upright = geometry.toUpright(destination.point());
    const Size size = geometry.uprightSize();
    const auto within = [](double value, double most) {
        return std::isfinite(value) ? std::clamp(value, 0.0, most) : 0.0;
    };
    upright = {within(upright.x, size.width), within(upright.y, size.height)};
    // Sideways, a page that fits is shown whole.
    const QRectF rect = m_layout.pageRect(page);
    const double width = viewport()->width();
    double left = upright.x * m_layout.scale() - headroom;
    if (rect.width() + 2 * PageLayout::margin <= width)
        left = (rect.width() - width) / 2;
    else
        left = std::clamp(left, -PageLayout::margin, rect.width() + PageLayout::margin - width);
    leaveForJump();
    const double top = (size.height - upright.y) * m_layout.scale() - headroom;
    m_scroller.jumpTo((rect.topLeft() + QPointF(left, top)).toPoint());
}

void HostPDFView::goToPage(int page)
{
    if (!isReady()) {
        m_pendingPage = page;
        m_pendingDestination.reset();
    } else if (page >= 0 && page < m_layout.pageCount()) {
        leaveForJump();
        const QRectF rect = m_layout.pageRect(page);
        const double left = rect.center().x() - viewport()->width() / 2.0;
        m_scroller.jumpTo(QPointF(left, rect.top() - PageLayout::margin).toPoint());
    }
}

int HostPDFView::currentPage() const
{
    return isReady() ? m_layout.pageAt(visibleRect().center().y()) : -1;
}

std::optional<HostPDFDestination> HostPDFView::currentDestination() const
{
    if (!isReady())
        return std::nullopt;
    const ViewPlace place = placeAt({0, 0});
    return HostPDFDestination(m_pages[static_cast<std::size_t>(place.page)], place.point);
}

std::vector<int> HostPDFView::visiblePages() const
{
    std::vector<int> result;
    const auto [first, last] = visibleRange();
    for (int page = first; page <= last; ++page) {
        if (m_layout.pageRect(page).intersects(visibleRect()))
            result.push_back(page);
    }
    return result;
}

void HostPDFView::restore(const std::optional<ViewPlace> &place)
{
    if (place && place->page < m_layout.pageCount())
        scrollToPlace(*place, {0, 0});
    Q_EMIT historyChanged();
}

void HostPDFView::goBack()
{
    if (isReady())
        restore(m_history.goBack(placeAt({0, 0})));
}

void HostPDFView::goForward()
{
    if (isReady())
        restore(m_history.goForward(placeAt({0, 0})));
}

void HostPDFView::updateCurrentPage()
{
    const int page = currentPage();
    if (page < 0)
        return;
    const PageContentsPtr contents = m_contents.value(page);
    if (isVisible())
        m_indicator->showPage(contents ? contents->label : QString(), page, m_layout.pageCount());
    if (page != m_lastPage) {
        m_lastPage = page;
        Q_EMIT currentPageChanged(page);
    }
}

// Zoom

void HostPDFView::setZoomMode(ZoomMode mode)
{
    m_lastPage = currentPage();
    m_zoomMode = mode;
    updateLayout();
    if (mode == ZoomMode::FitPage && isReady()) {
        const QRectF rect = m_layout.pageRect(m_lastPage);
        m_scroller.jumpTo(QPoint(horizontalScrollBar()->value(),
                                 qRound(rect.center().y() - viewport()->height() / 2.0)));
    }
    Q_EMIT zoomChanged();
}

void HostPDFView::setScaleFactor(double scale, std::optional<QPointF> anchor)
{
    m_zoomMode = ZoomMode::Custom;
    m_scroller.stop();
    if (isReady()) {
        const QPointF fixed = anchor.value_or(QRectF(viewport()->rect()).center());
        const ViewPlace place = placeAt(fixed);
        m_layout.setScale(scale);
        updateScrollBars();
        // A bar may have come or gone with the new size.
        updateLayout();
        scrollToPlace(place, fixed);
        updateWanted();
    } else {
        m_layout.setScale(scale);
    }
    Q_EMIT zoomChanged();
}

void HostPDFView::zoomIn(std::optional<QPointF> anchor)
{
    setScaleFactor(scaleFactor() * zoomStep, anchor);
}

void HostPDFView::zoomOut(std::optional<QPointF> anchor)
{
    setScaleFactor(scaleFactor() / zoomStep, anchor);
}

void HostPDFView::setColorsInverted(bool inverted)
{
    if (inverted == m_isInverted)
        return;
    m_isInverted = inverted;
    updateWanted();
    viewport()->update();
    Q_EMIT colorsInverted(inverted);
}

// Coordinates

std::shared_ptr<HostPDFPage> HostPDFView::pageAt(QPointF point, bool nearest) const
{
    if (!isReady())
        return nullptr;
    const QPointF place = point + scrollOffset();
    const int page = m_layout.pageAt(place.y());
    const bool isOn = nearest || m_layout.pageRect(page).contains(place);
    return isOn ? m_pages[static_cast<std::size_t>(page)] : nullptr;
}

Point HostPDFView::convertToPage(QPointF point, const HostPDFPage &page) const
{
    if (page.index() >= m_layout.pageCount())
        return {};
    bool isInvertible = false;
    const QTransform transform = placed(page.index()).transform().inverted(&isInvertible);
    const QPointF place = transform.map(point * devicePixelRatio());
    return {place.x(), place.y()};
}

QPointF HostPDFView::convertFromPage(Point point, const HostPDFPage &page) const
{
    if (page.index() >= m_layout.pageCount())
        return {};
    return placed(page.index()).transform().map(QPointF(point.x, point.y)) / devicePixelRatio();
}

std::vector<HostPDFAnnotation> HostPDFView::annotationsOf(const HostPDFPage &page) const
{
    const PageContentsPtr contents = m_contents.value(page.index());
    return contents && page.document() == m_document ? contents->annotations : page.annotations();
}

std::shared_ptr<const PageText> HostPDFView::textOf(int page) const
{
    const PageContentsPtr contents = m_contents.value(page);
    return contents ? contents->text : nullptr;
}

} // namespace Tavrin
