// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QHash>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/interface/pdfview/DocumentFinder.h>
#include <Tavrin/interface/pdfview/PageContents.h>
#include <Tavrin/interface/pdfview/PageLayout.h>
#include <Tavrin/interface/pdfview/PagePainter.h>
#include <Tavrin/interface/pdfview/PageRenderer.h>
#include <Tavrin/interface/pdfview/SmoothScroller.h>
#include <Tavrin/interface/pdfview/TextSelection.h>
#include <Tavrin/interface/pdfview/TileCache.h>
#include <Tavrin/interface/pdfview/ViewHistory.h>
#include <Tavrin/pdf/HostPDFDocument.h>

namespace Tavrin
{

class FindBar;
class PageIndicator;

/// Shows a PDF as one column of pages to scroll, read, select and search in.
///
/// Reading and drawing happen on another thread; the view never waits for them. The pages of a
/// document are known a moment after setDocument(): where to go is remembered until then, and
/// what is asked about pages answers as without a document. Main thread.
class HostPDFView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// Custom keeps its scale; the others follow the size of the view.
    enum class ZoomMode { Custom, FitWidth, FitPage };

    /// Of drawn tiles that are kept.
    static constexpr qsizetype tileBytes = qsizetype(160) * 1024 * 1024;
    /// The scale at which pages are as large as on paper, on a screen of 96 dots an inch: 100 %.
    static constexpr double naturalScale = 96.0 / 72.0;
    /// From the top of the view, in logical pixels: what stands there is what one reads, also just
    /// after a jump, which leaves a little room above its goal.
    static constexpr double readingLine = 32;

    explicit HostPDFView(QWidget *parent = nullptr);
    ~HostPDFView() override;

    /// Null for none. Clears selection, search and history; a drawing of the old one is called off.
    void setDocument(const std::shared_ptr<HostPDFDocument> &document);
    std::shared_ptr<HostPDFDocument> document() const { return m_document; }
    /// What stands in a view without a document.
    void setPlaceholderText(const QString &text);

    // Places

    /// Puts a place at the top of the view. Remembers where the reader was.
    void goTo(const HostPDFDestination &destination);
    void goToPage(int page);
    /// The page in the middle of the view, -1 without pages.
    int currentPage() const;
    /// What is at the upper left of the view.
    std::optional<HostPDFDestination> currentDestination() const;
    std::vector<int> visiblePages() const;
    bool canGoBack() const { return m_history.canGoBack(); }
    bool canGoForward() const { return m_history.canGoForward(); }
    void goBack();
    void goForward();

    // Between the coordinates of the viewport and page space

    /// The page under a point; the nearest one if asked for. Null without pages.
    std::shared_ptr<HostPDFPage> pageAt(QPointF point, bool nearest) const;
    Point convertToPage(QPointF point, const HostPDFPage &page) const;
    QPointF convertFromPage(Point point, const HostPDFPage &page) const;
    /// Annotations of a page, read from the file if they haven't been yet.
    std::vector<HostPDFAnnotation> annotationsOf(const HostPDFPage &page) const;

    // Size

    ZoomMode zoomMode() const { return m_zoomMode; }
    void setZoomMode(ZoomMode mode);
    /// Device-independent pixels a point.
    double scaleFactor() const { return m_layout.scale(); }
    /// Sets the mode to Custom. What is under the anchor, or in the middle, stays where it is.
    void setScaleFactor(double scale, std::optional<QPointF> anchor = std::nullopt);
    void zoomIn(std::optional<QPointF> anchor = std::nullopt);
    void zoomOut(std::optional<QPointF> anchor = std::nullopt);
    /// Light on dark; off until switched on, whatever the palette.
    bool areColorsInverted() const { return m_isInverted; }
    void setColorsInverted(bool inverted);

    // Selection

    /// Nothing if no text is selected.
    std::optional<HostPDFSelection> currentSelection() const;
    void setCurrentSelection(const std::optional<HostPDFSelection> &selection);
    void clearSelection() { setCurrentSelection(std::nullopt); }
    /// Once the text of all pages is read.
    void selectAll();
    void copy() const;

    // Find

    DocumentFinder &finder() { return m_finder; }
    std::optional<FindHit> currentHit() const { return m_currentHit; }
    /// Opens the find bar.
    void showFindBar();
    void hideFindBar();
    /// Searches from the current page on, marks the hits, and shows the first.
    void find(const QString &phrase);
    void findNext();
    void findPrevious();

    /// Whether all that can be seen is drawn, or has failed to; of one page, or of all.
    bool isDrawn(int page) const;
    bool isFullyDrawn() const;
    /// Bytes of drawn tiles, never above `tileBytes`.
    qsizetype usedTileBytes() const { return m_tiles.byteCount(); }
    /// The text of a page where it is known.
    std::shared_ptr<const PageText> textOf(int page) const;

Q_SIGNALS:
    /// The pages of the document are known.
    void documentReady();
    /// All that can be seen has been drawn.
    void fullyDrawn();
    void selectionChanged();
    void currentPageChanged(int page);
    void placeChanged();
    void historyChanged();
    /// The scale or the mode is another, also because the view's size is.
    void zoomChanged();
    void colorsInverted(bool inverted);
    void hitChanged();
    /// A link that leads out of the document was clicked. The view opens nothing itself.
    void linkActivated(const QUrl &url);

protected:
    /// Called after each page is painted, with a painter in page space.
    virtual void drawOverPage(const HostPDFPage &page, QPainter &context);

    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    /// A point of a page.
    struct PagePoint {
        int page = 0;
        Point point;
    };
    /// A selection by mouse under way.
    struct Drag {
        PagePoint anchor;
        PagePoint focus;
        TextUnit unit = TextUnit::Character;
        /// In place of the first point where an earlier selection is extended.
        std::optional<TextPosition> start = std::nullopt;
        bool hasMoved = false;
        /// Waits for the text of a page, even when the mouse is up again.
        bool isPending = false;
        bool isReleased = false;
    };

    // Document and layout
    void takePages(const std::vector<std::shared_ptr<HostPDFPage>> &pages);
    void takeContents(int page, const PageContentsPtr &contents);
    void takeFailure(const PageTile &tile);
    void connectParts();
    void updateLayout();
    void updateScrollBars();
    double devicePixelRatio() const;
    bool isReady() const { return !m_pages.empty(); }
    QPointF scrollOffset() const;
    QRectF visibleRect() const;
    PageGeometry geometryOf(int page) const;
    PlacedPage placed(int page) const;
    std::pair<int, int> visibleRange(double above = 0, double below = 0) const;
    void updateWanted();
    /// Nearest to the middle first; none of a page that has failed.
    std::vector<PageTile> tilesToDraw(int page, const QRectF &area) const;
    void tellWhenDrawn();

    // Places
    ViewPlace placeAt(QPointF viewportPoint) const;
    void scrollToPlace(const ViewPlace &place, QPointF viewportPoint);
    void jump(const ViewPlace &place, QPointF viewportPoint);
    void leaveForJump();
    void restore(const std::optional<ViewPlace> &place);
    void updateCurrentPage();
    void scrollByPages(double pages);

    // Painting
    /// What the pages lie on.
    QColor desk() const;
    void paintPage(QPainter &painter, int page, const QRect &deviceArea);
    void paintOverlays(QPainter &painter, const PlacedPage &placed, int page);
    void paintPlaceholder(QPainter &painter);

    // Selection and find
    std::optional<PagePoint> pagePointAt(QPointF point) const;
    void beginDrag(QPointF point, TextUnit unit, bool extend);
    void moveDrag(QPointF point);
    void updateDrag();
    void applySelection(const TextSelection &selection);
    void storeSelection(const HostPDFSelection &selection);
    void extendByKey(TextStep step, TextUnit unit);
    bool isTextKnown(int firstPage, int lastPage) const;
    const std::vector<Rect> &selectionBoxes(int page);
    void showHit(const std::optional<FindHit> &hit);
    void updateFindBar();
    void takeHits();
    void placeFindBar();

    // Keys and mouse
    bool handleSelectionKey(QKeyEvent *event);
    bool handleCommandKey(QKeyEvent *event);
    bool handleScrollKey(QKeyEvent *event);
    const HostPDFAnnotation *linkAt(QPointF point) const;
    void followLink(const HostPDFAnnotation &link);
    void updateCursor(QPointF point);

    std::shared_ptr<HostPDFDocument> m_document;
    std::vector<std::shared_ptr<HostPDFPage>> m_pages;
    QHash<int, PageContentsPtr> m_contents;
    /// Pages that can't be drawn, and the scale at which that was tried.
    QHash<int, double> m_failures;
    QString m_placeholder;

    PageLayout m_layout;
    ZoomMode m_zoomMode = ZoomMode::FitWidth;
    bool m_isInverted = false;
    TileCache m_tiles{tileBytes};
    PageRenderer m_renderer;
    SmoothScroller m_scroller{this};
    bool m_isLayingOut = false;
    /// Nothing is wanted of the renderer while the view is still on its way to a place.
    bool m_isHolding = false;
    bool m_wasFullyDrawn = false;
    int m_lastPage = -1;
    int m_lastScroll = 0;
    /// A window may move to a screen of another scale.
    double m_paintedRatio = 0;
    int m_direction = 1;

    ViewHistory m_history;
    /// Where to go once the pages are known.
    std::optional<HostPDFDestination> m_pendingDestination;
    std::optional<int> m_pendingPage;

    std::optional<HostPDFSelection> m_selection;
    QHash<int, std::vector<Rect>> m_selectionBoxes;
    TextSelection m_textSelection;
    /// From where the keyboard selects if there is no selection.
    std::optional<TextPosition> m_caret;
    std::optional<Drag> m_drag;
    bool m_isSelectAllPending = false;
    QTimer m_autoScroll;
    QElapsedTimer m_sinceDoubleClick;
    QPoint m_doubleClickPoint;
    std::optional<HostPDFAnnotation> m_pressedLink;
    QPoint m_pressPoint;

    DocumentFinder m_finder;
    std::optional<FindHit> m_currentHit;
    FindBar *m_findBar;
    PageIndicator *m_indicator;
};

} // namespace Tavrin
