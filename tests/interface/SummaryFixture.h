// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

#include <condition_variable>
#include <mutex>

#include <Tavrin/interface/summary/DynamicHeightImageView.h>
#include <Tavrin/interface/summary/SpecEntrySummaryCell.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/interface/toolkit/TableScrollView.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <pdfspec/ReadingFixture.h>
#include <support/FinishTasks.h>

namespace Tavrin::Testing
{

/// A printed specification with a section, a figure and a wide figure, and what shows them.
class SummaryFixture : public ReadingFixture
{
protected:
    SummaryFixture()
    {
        addPages(4);
        printSection(1, 720, u"1 Scope"_s, u"scope"_s, 4);
        page(1)
            .fill({{150, 100}, {200, 100}}, qRgb(200, 40, 40))
            .text(200, 80, u"Figure 1: Red"_s, body);
        page(2)
            .column(left, 700, 12, lines(u"rest"_s, 4), body)
            .fill({{20, 100}, {570, 200}}, qRgb(40, 40, 200))
            .text(200, 80, u"Figure 2: Blue"_s, body);
        scope = section(u"1.1"_s, u"Scope"_s, 1, 740);
        red = figure(u"Figure 1"_s, u"Red"_s, 1, 205);
        blue = figure(u"Figure 2"_s, u"Blue"_s, 2, 310);
        scope->setRelatedEntries({red->label(), blue->label()});
        specification->setTitle(u"A Specification"_s);
    }
    void TearDown() override
    {
        finishTasks(backgroundPool());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// The cell beside a caption; null if there is none.
    static SpecEntrySummaryCell *cell(const QWidget &view, const QString &caption)
    {
        for (auto *cell : view.findChildren<SpecEntrySummaryCell *>()) {
            if (!cell->isHidden() && cell->textView()->accessibleName() == caption)
                return cell;
        }
        return nullptr;
    }
    static QString text(const QWidget &view, const QString &caption)
    {
        const SpecEntrySummaryCell *shown = cell(view, caption);
        return shown ? shown->textView()->toPlainText() : QString();
    }
    static QStringList captions(const QWidget &view)
    {
        QStringList result;
        for (const auto *cell : view.findChildren<TableCellView *>()) {
            if (cell->textField() && !cell->isHidden())
                result += cell->textField()->text();
        }
        return result;
    }
    static void clickLink(DynamicHeightTextView &view, std::size_t index)
    {
        const QPoint place = view.linkRects(view.links().at(index)).front().center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    }

    EntryPtr scope;
    EntryPtr red;
    EntryPtr blue;
};

/// Holds up the computation of an entry until it is opened.
class Gate
{
public:
    explicit Gate(PDFSpecification::Entry &entry)
    {
        entry.setDisplayBlock([this, block = entry.displayBlock()](PDFSpecification::Entry &shown) {
            std::unique_lock lock(m_mutex);
            m_isReached = true;
            m_changed.notify_all();
            m_changed.wait(lock, [this] { return m_isOpen; });
            lock.unlock();
            block(shown);
        });
    }
    void waitUntilReached()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isReached; });
    }
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isReached = false;
    bool m_isOpen = false;
};

} // namespace Tavrin::Testing
