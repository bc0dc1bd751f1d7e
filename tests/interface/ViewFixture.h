// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSignalSpy>
#include <QTest>

#include <support/Test.h>

#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <support/PDFBuilder.h>

#include "Windows.h"

namespace Tavrin::Testing
{

/// Twenty pages of three lines each; "page N begins here" at the top of page N, counted from 1.
/// Page 1 has a link to page 11 and one to a web site.
inline PDFBuilder twentyPages()
{
    PDFBuilder pdf;
    for (int page = 1; page <= 20; ++page) {
        auto &builder = pdf.addPage();
        builder.text(72, 700, u"page %1 begins here"_s.arg(page), {.size = 20});
        builder.text(72, 660, u"The quick brown fox jumps over"_s, {.size = 16});
        builder.text(72, 630, u"the lazy dog and sleeps."_s, {.size = 16});
        if (page == 1) {
            builder.link(Rect{{72, 500}, {100, 20}}, Dest::xyz(10, 0, 792));
            builder.uriLink(Rect{{72, 450}, {100, 20}}, "https://example.org/x");
        }
    }
    return pdf;
}

/// A view of a document, shown and drawn, with its page texts at hand.
class ViewTest : public testing::Test
{
protected:
    void show(const std::shared_ptr<HostPDFDocument> &document, QSize size = {700, 600})
    {
        view.resize(size);
        view.setDocument(document);
        view.show();
        settle();
    }
    void show(const PDFBuilder &pdf, QSize size = {700, 600})
    {
        show(HostPDFDocument::open(pdf.build()), size);
    }

    /// All that can be seen is drawn and read.
    void settle()
    {
        const bool isSettled = waitFor([this] {
            if (!view.isFullyDrawn())
                return false;
            for (const int page : view.visiblePages()) {
                if (view.document()->page(page) && !view.textOf(page))
                    return false;
            }
            return true;
        });
        ASSERT_TRUE(isSettled);
    }

    std::shared_ptr<HostPDFPage> page(int index) const { return view.document()->page(index); }
    QPoint at(int pageIndex, Point point) const
    {
        return view.convertFromPage(point, *page(pageIndex)).toPoint();
    }
    /// The middle of a word of a page that can be seen.
    QPoint word(int pageIndex, const QString &text) const
    {
        const qsizetype index = view.textOf(pageIndex)->string().indexOf(text);
        const Rect first = page(pageIndex)->characterBounds(index);
        const Rect last = page(pageIndex)->characterBounds(index + text.size() - 1);
        return at(pageIndex, first.united(last).center());
    }
    void click(QPoint point, Qt::KeyboardModifiers modifiers = {})
    {
        // Clicks of different tests must not make a double click.
        QTest::qWait(1);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, point);
    }
    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
        QTest::mouseMove(view.viewport(), (from + to) / 2);
        QTest::mouseMove(view.viewport(), to);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, to);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view, key, modifiers);
    }
    QString selected() const
    {
        const auto selection = view.currentSelection();
        return selection ? selection->string() : QString();
    }
    QImage picture() { return view.viewport()->grab().toImage(); }

    EntryHighlightPDFView view;
};

} // namespace Tavrin::Testing
