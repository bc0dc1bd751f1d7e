// SPDX-License-Identifier: Apache-2.0
// Selecting and finding text.
#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <Tavrin/interface/pdfview/FindBar.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>

#include <algorithm>
#include <limits>

namespace Tavrin
{

namespace
{

/// How far from the edge of the view a hit is brought, as a share of its height.
constexpr double hitMargin = 0.25;
constexpr int barDistance = 12;

} // namespace

// Selection

std::optional<HostPDFSelection> HostPDFView::currentSelection() const
{
    return m_selection;
}

void HostPDFView::setCurrentSelection(const std::optional<HostPDFSelection> &selection)
{
    const HostPDFSelection wanted = selection.value_or(HostPDFSelection());
    if (const auto pages = wanted.pages(); !pages.empty()) {
        const HostPDFPage &last = *pages.back();
        const TextRange end = wanted.range(wanted.numberOfTextRanges(last) - 1, last);
        m_textSelection = TextSelection(
            TextPosition{pages.front()->index(), wanted.range(0, *pages.front()).location});
        m_textSelection.moveTo({last.index(), end.end()});
    }
    storeSelection(wanted);
}

void HostPDFView::storeSelection(const HostPDFSelection &selection)
{
    const auto wanted = selection.isEmpty() ? std::nullopt : std::optional(selection);
    if (wanted == m_selection)
        return;
    m_selection = wanted;
    m_selectionBoxes.clear();
    viewport()->update();
    Q_EMIT selectionChanged();
}

bool HostPDFView::isTextKnown(int firstPage, int lastPage) const
{
    for (int page = firstPage; page <= lastPage; ++page) {
        if (!m_contents.contains(page))
            return false;
    }
    return true;
}

std::optional<HostPDFView::PagePoint> HostPDFView::pagePointAt(QPointF point) const
{
    const auto page = pageAt(point, true);
    if (!page)
        return std::nullopt;
    return PagePoint{page->index(), convertToPage(point, *page)};
}

void HostPDFView::beginDrag(QPointF point, TextUnit unit, bool extend)
{
    const auto place = pagePointAt(point);
    if (!place)
        return;
    m_drag = Drag{*place, *place, unit};
    if (extend && (m_selection || m_caret)) {
        m_drag->start = m_selection ? m_textSelection.anchor() : *m_caret;
        m_drag->anchor.page = m_drag->start->page;
    }
    if (unit != TextUnit::Character || m_drag->start || isTextKnown(place->page, place->page))
        updateDrag();
}

void HostPDFView::moveDrag(QPointF point)
{
    const auto place = m_drag ? pagePointAt(point) : std::nullopt;
    if (!place)
        return;
    m_drag->focus = *place;
    m_drag->hasMoved = true;
    updateDrag();
}

void HostPDFView::updateDrag()
{
    const auto [first, last] = std::minmax(m_drag->anchor.page, m_drag->focus.page);
    m_drag->isPending = !isTextKnown(first, last);
    if (m_drag->isPending)
        return m_renderer.wantContents(first, last);
    const auto position = [this](const PagePoint &place) {
        const auto text = textOf(place.page);
        const qsizetype offset = text ? TextSelection::nearestOffset(*text, geometryOf(place.page),
                                                                     place.point, m_drag->unit)
                                      : 0;
        return TextPosition{place.page, offset};
    };
    m_textSelection = TextSelection(m_drag->start.value_or(position(m_drag->anchor)), m_drag->unit);
    m_textSelection.moveTo(position(m_drag->focus));
    m_caret = m_textSelection.focus();
    applySelection(m_textSelection);
}

void HostPDFView::applySelection(const TextSelection &selection)
{
    HostPDFSelection result;
    const auto texts = [this](int page) { return textOf(page); };
    for (int page = selection.firstPage(); page <= selection.lastPage(); ++page) {
        const TextRange range = selection.rangeOn(page, texts);
        const auto &shown = m_pages[static_cast<std::size_t>(page)];
        if (shown && range.length > 0)
            result.addSelection(HostPDFSelection(shown, {range}));
    }
    storeSelection(result);
}

void HostPDFView::extendByKey(TextStep step, TextUnit unit)
{
    if (!isReady())
        return;
    if (!m_selection) {
        const int page = std::max(0, currentPage());
        const TextPosition start = m_caret.value_or(TextPosition{page, 0});
        m_textSelection = TextSelection(start);
    }
    TextSelection extended = m_textSelection;
    extended.step(step, unit, m_layout.pageCount(), [this](int page) { return textOf(page); });
    if (!isTextKnown(extended.firstPage(), extended.lastPage()))
        return m_renderer.wantContents(extended.firstPage(), extended.lastPage());
    m_textSelection = extended;
    applySelection(extended);
    // The moving end stays in sight.
    const TextPosition focus = extended.focus();
    const auto text = textOf(focus.page);
    const auto &page = m_pages[static_cast<std::size_t>(focus.page)];
    const qsizetype length = text ? text->string().size() : 0;
    if (!page || length == 0)
        return;
    const auto boxes =
        TextSelection::boxes(*text, {std::clamp<qsizetype>(focus.offset, 0, length - 1), 1});
    if (boxes.empty())
        return;
    const double y = convertFromPage(boxes.front().center(), *page).y();
    const double above = std::min(0.0, y - 40);
    const double below = std::max(0.0, y + 40 - viewport()->height());
    m_scroller.jumpTo(m_scroller.target() + QPoint(0, qRound(above + below)));
}

void HostPDFView::selectAll()
{
    const int count = m_layout.pageCount();
    m_isSelectAllPending = isReady() && !isTextKnown(0, count - 1);
    if (m_isSelectAllPending)
        return m_renderer.wantContents(0, count - 1);
    if (!isReady())
        return;
    m_textSelection = TextSelection(TextPosition{0, 0});
    m_textSelection.moveTo({count - 1, std::numeric_limits<qsizetype>::max()});
    applySelection(m_textSelection);
}

void HostPDFView::copy() const
{
    if (!m_selection)
        return;
    QStringList parts;
    for (const auto &page : m_selection->pages()) {
        const auto text = textOf(page->index());
        for (qsizetype index = 0; text && index < m_selection->numberOfTextRanges(*page); ++index) {
            const TextRange range = m_selection->range(index, *page);
            parts << text->string().mid(range.location, range.length);
        }
    }
    QGuiApplication::clipboard()->setText(parts.isEmpty() ? m_selection->string()
                                                          : parts.join(u'\n'));
}

const std::vector<Rect> &HostPDFView::selectionBoxes(int page)
{
    const auto known = m_selectionBoxes.constFind(page);
    if (known != m_selectionBoxes.cend())
        return *known;
    std::vector<Rect> boxes;
    const auto text = textOf(page);
    const auto &shown = m_pages[static_cast<std::size_t>(page)];
    const qsizetype count = text && m_selection ? m_selection->numberOfTextRanges(*shown) : 0;
    for (qsizetype index = 0; index < count; ++index) {
        const auto more = TextSelection::boxes(*text, m_selection->range(index, *shown));
        boxes.insert(boxes.end(), more.begin(), more.end());
    }
    return *m_selectionBoxes.insert(page, boxes);
}

// Find

void HostPDFView::showFindBar()
{
    const QString selected = m_selection ? m_selection->string().simplified() : QString();
    if (!selected.isEmpty() && selected.size() < 80)
        m_findBar->setPhrase(selected);
    m_findBar->show();
    placeFindBar();
    m_findBar->activate();
}

void HostPDFView::hideFindBar()
{
    m_findBar->hide();
    m_finder.clear();
    m_currentHit.reset();
    setFocus(Qt::OtherFocusReason);
    viewport()->update();
}

void HostPDFView::placeFindBar()
{
    const QSize size = m_findBar->sizeHint();
    const int width = std::min(size.width(), viewport()->width() - 2 * barDistance);
    const int right = viewport()->geometry().right() - barDistance;
    const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
    m_findBar->setGeometry(isLeftToRight ? right - width + 1 : viewport()->x() + barDistance,
                           viewport()->y() + barDistance, width, size.height());
    m_findBar->raise();
}

void HostPDFView::find(const QString &phrase)
{
    m_currentHit.reset();
    m_finder.find(m_document, phrase, std::max(0, currentPage()));
    updateFindBar();
    viewport()->update();
}

void HostPDFView::takeHits()
{
    if (!m_currentHit && m_finder.hitCount() > 0)
        showHit(m_finder.hitFrom(std::max(0, currentPage()), 0));
    updateFindBar();
    viewport()->update();
}

void HostPDFView::findNext()
{
    if (m_currentHit)
        showHit(m_finder.hitFrom(m_currentHit->page, m_currentHit->range.location + 1));
    else
        showHit(m_finder.hitFrom(std::max(0, currentPage()), 0));
}

void HostPDFView::findPrevious()
{
    if (m_currentHit)
        showHit(m_finder.hitBefore(m_currentHit->page, m_currentHit->range.location));
    else
        showHit(m_finder.hitBefore(std::max(0, currentPage()), 0));
}

void HostPDFView::showHit(const std::optional<FindHit> &hit)
{
    m_currentHit = hit;
    updateFindBar();
    viewport()->update();
    if (!hit || hit->page >= m_layout.pageCount() || !m_pages[std::size_t(hit->page)])
        return;
    // The finder has read this page, so its text is at hand.
    const auto &page = m_pages[static_cast<std::size_t>(hit->page)];
    const Rect box = page->characterBounds(hit->range.location);
    const QPointF place = convertFromPage(box.isNull() ? Point{} : box.center(), *page);
    const QRectF view(viewport()->rect());
    const double margin = view.height() * hitMargin;
    if (!view.adjusted(0, barDistance * 4, 0, -barDistance).contains(place)) {
        leaveForJump();
        const double down = place.y() - margin;
        const double across =
            place.x() < view.left() || place.x() > view.right() ? place.x() - view.center().x() : 0;
        m_scroller.jumpTo((scrollOffset() + QPointF(across, down)).toPoint());
    }
    Q_EMIT hitChanged();
}

void HostPDFView::updateFindBar()
{
    const auto progress = m_finder.isSearching() ? FindBar::Progress::Searching
                          : m_finder.isAtLimit() ? FindBar::Progress::Stopped
                                                 : FindBar::Progress::Finished;
    m_findBar->showCount(m_currentHit ? m_finder.indexOf(*m_currentHit) : -1, m_finder.hitCount(),
                         progress);
}

} // namespace Tavrin
