// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/pdfview/PDFViewAccessible.h>

#include <Tavrin/interface/pdfview/HostPDFView.h>

#include <algorithm>

namespace Tavrin
{

namespace
{

QAccessibleInterface *make(const QString &, QObject *object)
{
    auto *view = qobject_cast<HostPDFView *>(object);
    return view ? new PDFViewAccessible(view) : nullptr;
}

std::shared_ptr<HostPDFPage> currentPage(const HostPDFView &view)
{
    const auto document = view.document();
    const bool isKnown = document && view.textOf(view.currentPage());
    return isKnown ? document->page(view.currentPage()) : nullptr;
}

} // namespace

void PDFViewAccessible::install()
{
    // Qt keeps a list in which a factory stands once.
    QAccessible::installFactory(make);
}

PDFViewAccessible::PDFViewAccessible(HostPDFView *view)
    : QAccessibleWidget(view, QAccessible::Document)
{
}

HostPDFView &PDFViewAccessible::view() const
{
    return *static_cast<HostPDFView *>(object());
}

QString PDFViewAccessible::pageText() const
{
    const auto text = view().textOf(view().currentPage());
    return text ? text->string() : QString();
}

void *PDFViewAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State PDFViewAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void PDFViewAccessible::selection(int index, int *start, int *end) const
{
    const auto page = currentPage(view());
    const auto selected = view().currentSelection();
    const TextRange range =
        page && selected ? selected->range(index, *page) : TextRange::notFound();
    *start = range.isFound() ? static_cast<int>(range.location) : 0;
    *end = range.isFound() ? static_cast<int>(range.end()) : 0;
}

int PDFViewAccessible::selectionCount() const
{
    const auto page = currentPage(view());
    const auto selected = view().currentSelection();
    return page && selected ? static_cast<int>(selected->numberOfTextRanges(*page)) : 0;
}

void PDFViewAccessible::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void PDFViewAccessible::removeSelection(int)
{
    view().clearSelection();
}

void PDFViewAccessible::setSelection(int, int start, int end)
{
    if (const auto page = currentPage(view()))
        view().setCurrentSelection(page->selection(TextRange{start, end - start}));
}

int PDFViewAccessible::cursorPosition() const
{
    int start = 0;
    int end = 0;
    selection(0, &start, &end);
    return end;
}

void PDFViewAccessible::setCursorPosition(int position)
{
    scrollToSubstring(position, position);
}

QString PDFViewAccessible::text(int start, int end) const
{
    return pageText().mid(start, end - start);
}

int PDFViewAccessible::characterCount() const
{
    return static_cast<int>(pageText().size());
}

QRect PDFViewAccessible::characterRect(int offset) const
{
    const auto page = currentPage(view());
    const Rect box = page ? page->characterBounds(offset) : Rect::null();
    if (box.isNull())
        return {};
    const QRectF inView(view().convertFromPage(box.origin, *page),
                        view().convertFromPage({box.maxX(), box.maxY()}, *page));
    const QRect rect = inView.normalized().toAlignedRect();
    return {view().viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

int PDFViewAccessible::offsetAtPoint(const QPoint &point) const
{
    const auto page = currentPage(view());
    if (!page)
        return -1;
    const QPointF inView = view().viewport()->mapFromGlobal(point);
    return static_cast<int>(page->characterIndex(view().convertToPage(inView, *page)).value_or(-1));
}

void PDFViewAccessible::scrollToSubstring(int start, int)
{
    const auto page = currentPage(view());
    const Rect box = page ? page->characterBounds(start) : Rect::null();
    if (!box.isNull())
        view().goTo(HostPDFDestination(page, {box.minX(), box.maxY()}));
}

QString PDFViewAccessible::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace Tavrin
