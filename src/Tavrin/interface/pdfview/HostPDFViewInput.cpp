// SPDX-License-Identifier: Apache-2.0
// Keys, mouse and gestures.
#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <Tavrin/interface/pdfview/FindBar.h>
#include <Tavrin/interface/pdfview/PageIndicator.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGestureEvent>
#include <QMenu>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QStyleHints>

#include <cmath>

namespace Tavrin
{

namespace
{

/// Of a page key, as a share of the view: the last lines stay in sight.
constexpr double pageKeyShare = 0.9;

std::optional<TextStep> selectingStep(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return TextStep::Previous;
    case Qt::Key_Right:
        return TextStep::Next;
    case Qt::Key_Up:
        return TextStep::Up;
    case Qt::Key_Down:
        return TextStep::Down;
    case Qt::Key_Home:
        return TextStep::LineStart;
    case Qt::Key_End:
        return TextStep::LineEnd;
    default:
        return std::nullopt;
    }
}

} // namespace

// View

bool HostPDFView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto *gesture = static_cast<QNativeGestureEvent *>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            setScaleFactor(scaleFactor() * (1 + gesture->value()), gesture->position());
            return true;
        }
    } else if (event->type() == QEvent::Gesture) {
        auto *gestures = static_cast<QGestureEvent *>(event);
        if (auto *pinch = static_cast<QPinchGesture *>(gestures->gesture(Qt::PinchGesture))) {
            const QPoint center = viewport()->mapFromGlobal(pinch->centerPoint().toPoint());
            setScaleFactor(scaleFactor() * pinch->scaleFactor(), QPointF(center));
            gestures->accept(pinch);
            return true;
        }
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void HostPDFView::resizeEvent(QResizeEvent *)
{
    updateLayout();
    if (m_findBar->isVisible())
        placeFindBar();
}

void HostPDFView::scrollContentsBy(int, int)
{
    const int scroll = verticalScrollBar()->value();
    if (scroll != m_lastScroll)
        m_direction = scroll > m_lastScroll ? 1 : -1;
    m_lastScroll = scroll;
    viewport()->update();
    if (m_isLayingOut)
        return;
    updateWanted();
    updateCurrentPage();
    Q_EMIT placeChanged();
}

void HostPDFView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        viewport()->update();
}

// Keys

void HostPDFView::keyPressEvent(QKeyEvent *event)
{
    if (!handleCommandKey(event) && !handleSelectionKey(event) && !handleScrollKey(event))
        QAbstractScrollArea::keyPressEvent(event);
}

bool HostPDFView::handleCommandKey(QKeyEvent *event)
{
    const bool isBackspace = event->key() == Qt::Key_Backspace;
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (event->matches(QKeySequence::Find) || event->text() == u"/")
        showFindBar();
    else if (event->matches(QKeySequence::FindPrevious))
        findPrevious();
    else if (event->matches(QKeySequence::FindNext))
        findNext();
    else if (event->matches(QKeySequence::ZoomIn) || event->key() == Qt::Key_ZoomIn ||
             (event->key() == Qt::Key_Equal && event->modifiers() == Qt::ControlModifier))
        zoomIn();
    else if (event->matches(QKeySequence::ZoomOut) || event->key() == Qt::Key_ZoomOut)
        zoomOut();
    else if (event->key() == Qt::Key_0 && event->modifiers() == Qt::ControlModifier)
        setZoomMode(ZoomMode::FitWidth);
    else if (event->matches(QKeySequence::Forward) ||
             (isBackspace && event->modifiers() == Qt::ShiftModifier))
        goForward();
    else if (event->matches(QKeySequence::Back) || isBackspace)
        goBack();
    else if (event->key() == Qt::Key_Escape && m_findBar->isVisible())
        hideFindBar();
    else if (event->key() == Qt::Key_Escape && m_selection)
        clearSelection();
    else
        return false;
    return true;
}

bool HostPDFView::handleSelectionKey(QKeyEvent *event)
{
    const auto step = selectingStep(event->key());
    if (!step || !event->modifiers().testFlag(Qt::ShiftModifier))
        return false;
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    if (withControl && *step == TextStep::LineStart)
        extendByKey(TextStep::DocumentStart, TextUnit::Character);
    else if (withControl && *step == TextStep::LineEnd)
        extendByKey(TextStep::DocumentEnd, TextUnit::Character);
    else
        extendByKey(*step, withControl ? TextUnit::Word : TextUnit::Character);
    return true;
}

void HostPDFView::scrollByPages(double pages)
{
    m_scroller.scrollBy({0, qRound(pages * pageKeyShare * viewport()->height())});
}

bool HostPDFView::handleScrollKey(QKeyEvent *event)
{
    const int line = verticalScrollBar()->singleStep();
    const bool isShifted = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_PageUp:
        scrollByPages(-1);
        return true;
    case Qt::Key_PageDown:
        scrollByPages(1);
        return true;
    case Qt::Key_Space:
        scrollByPages(isShifted ? -1 : 1);
        return true;
    case Qt::Key_Home:
        leaveForJump();
        m_scroller.jumpTo({horizontalScrollBar()->value(), 0});
        return true;
    case Qt::Key_End:
        leaveForJump();
        m_scroller.jumpTo({horizontalScrollBar()->value(), verticalScrollBar()->maximum()});
        return true;
    case Qt::Key_Up:
        m_scroller.scrollBy({0, -line});
        return true;
    case Qt::Key_Down:
        m_scroller.scrollBy({0, line});
        return true;
    case Qt::Key_Left:
        m_scroller.scrollBy({-line, 0});
        return true;
    case Qt::Key_Right:
        m_scroller.scrollBy({line, 0});
        return true;
    default:
        return false;
    }
}

// Mouse

void HostPDFView::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        setScaleFactor(scaleFactor() * std::pow(1.2, event->angleDelta().y() / 120.0),
                       event->position());
        return;
    }
    // A touch pad says how far to go by the pixel; it glides by itself.
    if (!event->pixelDelta().isNull()) {
        m_scroller.jumpTo(m_scroller.target() - event->pixelDelta());
        return;
    }
    QPoint delta = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        delta = {delta.y(), delta.x()};
    const double pixels =
        QApplication::wheelScrollLines() * verticalScrollBar()->singleStep() / 120.0;
    m_scroller.scrollBy(-(QPointF(delta) * pixels).toPoint());
}

const HostPDFAnnotation *HostPDFView::linkAt(QPointF point) const
{
    const auto page = pageAt(point, false);
    const auto contents = page ? m_contents.constFind(page->index()) : m_contents.cend();
    if (contents == m_contents.cend())
        return nullptr;
    const Point place = convertToPage(point, *page);
    for (const HostPDFAnnotation &annotation : (*contents)->annotations) {
        const bool leads = annotation.destination || annotation.url.isValid();
        if (leads && annotation.type == u"Link" && annotation.bounds.contains(place))
            return &annotation;
    }
    return nullptr;
}

void HostPDFView::followLink(const HostPDFAnnotation &link)
{
    if (link.destination)
        goTo(*link.destination);
    else
        Q_EMIT linkActivated(link.url);
}

void HostPDFView::updateCursor(QPointF point)
{
    const HostPDFAnnotation *link = m_drag && m_drag->hasMoved ? nullptr : linkAt(point);
    const auto page = pageAt(point, false);
    const auto text = page ? textOf(page->index()) : nullptr;
    const bool isOnText =
        m_drag || (text && text->characterIndex(convertToPage(point, *page)).has_value());
    viewport()->setCursor(link       ? Qt::PointingHandCursor
                          : isOnText ? Qt::IBeamCursor
                                     : Qt::ArrowCursor);
    viewport()->setToolTip(link ? link->url.toDisplayString() : QString());
}

void HostPDFView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::BackButton)
        return goBack();
    if (event->button() == Qt::ForwardButton)
        return goForward();
    if (event->button() != Qt::LeftButton)
        return;
    m_scroller.stop();
    m_pressPoint = event->position().toPoint();
    m_pressedLink.reset();
    const bool extend = event->modifiers().testFlag(Qt::ShiftModifier);
    const bool isTriple =
        m_sinceDoubleClick.isValid() &&
        !m_sinceDoubleClick.hasExpired(QGuiApplication::styleHints()->mouseDoubleClickInterval()) &&
        (m_pressPoint - m_doubleClickPoint).manhattanLength() <
            QGuiApplication::styleHints()->startDragDistance();
    m_sinceDoubleClick.invalidate();
    if (isTriple)
        return beginDrag(event->position(), TextUnit::Line, false);
    if (const HostPDFAnnotation *link = extend ? nullptr : linkAt(event->position()))
        m_pressedLink = *link;
    if (!extend)
        clearSelection();
    beginDrag(event->position(), TextUnit::Character, extend);
}

void HostPDFView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return mousePressEvent(event);
    m_sinceDoubleClick.start();
    m_doubleClickPoint = event->position().toPoint();
    m_pressedLink.reset();
    beginDrag(event->position(), TextUnit::Word, false);
}

void HostPDFView::mouseMoveEvent(QMouseEvent *event)
{
    const bool isFar = (event->position().toPoint() - m_pressPoint).manhattanLength() >=
                       QGuiApplication::styleHints()->startDragDistance();
    if (m_drag && event->buttons().testFlag(Qt::LeftButton) && (isFar || m_drag->hasMoved)) {
        m_pressedLink.reset();
        moveDrag(event->position());
        const bool isOutside = !viewport()->rect().contains(event->position().toPoint());
        if (isOutside != m_autoScroll.isActive())
            isOutside ? m_autoScroll.start() : m_autoScroll.stop();
    }
    updateCursor(event->position());
}

void HostPDFView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_autoScroll.stop();
    if (m_drag && m_drag->isPending)
        m_drag->isReleased = true;
    else
        m_drag.reset();
    const auto link = std::exchange(m_pressedLink, std::nullopt);
    const HostPDFAnnotation *under = link ? linkAt(event->position()) : nullptr;
    if (under && under->bounds == link->bounds)
        followLink(*link);
    updateCursor(event->position());
}

void HostPDFView::contextMenuEvent(QContextMenuEvent *event)
{
    const QPointF point = event->reason() == QContextMenuEvent::Mouse
                              ? QPointF(event->pos())
                              : QRectF(viewport()->rect()).center();
    const HostPDFAnnotation *link = linkAt(point);
    const QUrl url = link ? link->url : QUrl();
    QMenu menu(this);
    QAction *copyText =
        menu.addAction(localized("Copy", "Menu of a PDF view"), this, [this] { copy(); });
    copyText->setEnabled(m_selection.has_value());
    if (url.isValid()) {
        menu.addAction(localized("Copy Link", "Menu of a PDF view"), this,
                       [url] { QGuiApplication::clipboard()->setText(url.toString()); });
    }
    menu.addAction(localized("Select All", "Menu of a PDF view"), this, &HostPDFView::selectAll)
        ->setEnabled(isReady());
    menu.addSeparator();
    menu.addAction(localized("Back", "Menu of a PDF view"), this, &HostPDFView::goBack)
        ->setEnabled(canGoBack());
    menu.addAction(localized("Forward", "Menu of a PDF view"), this, &HostPDFView::goForward)
        ->setEnabled(canGoForward());
    menu.addSeparator();
    menu.addAction(localized("Find…", "Menu of a PDF view"), this, &HostPDFView::showFindBar)
        ->setEnabled(isReady());
    QAction *inverted = menu.addAction(localized("Inverted Pages", "Menu of a PDF view"), this,
                                       &HostPDFView::setColorsInverted);
    inverted->setCheckable(true);
    inverted->setChecked(m_isInverted);
    menu.exec(event->globalPos());
}

} // namespace Tavrin
