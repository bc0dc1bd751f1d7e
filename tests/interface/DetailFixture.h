// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <mutex>

#include <Tavrin/interface/detail/DetailView.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/sidebars/HighlightTabViewController.h>
#include <Tavrin/interface/toolkit/NoticeBar.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <pdfspec/ReadingFixture.h>
#include <support/FinishTasks.h>
#include <support/LogCapture.h>

#include "Windows.h"

namespace Tavrin::Testing
{

/// Notes what the detail view tells its lists.
class NotedList : public ViewController, public SpecPDFSourceList
{
public:
    using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;

    EntryPtr entry() const override { return m_entry; }
    void setEntry(const EntryPtr &entry) override { m_entry = entry; }
    std::shared_ptr<PDFSpecification> specification() const override { return m_specification; }
    void setSpecification(const std::shared_ptr<PDFSpecification> &specification) override
    {
        m_specification = specification;
    }
    std::shared_ptr<SpecPDFSourceListDelegate> delegate() const override
    {
        return m_delegate.lock();
    }
    void setDelegate(const std::weak_ptr<SpecPDFSourceListDelegate> &delegate) override
    {
        m_delegate = delegate;
    }
    void showsPlace(const HostPDFDestination &place) override { places.push_back(place); }

    std::vector<HostPDFDestination> places;

protected:
    std::unique_ptr<QWidget> loadView() override
    {
        auto field = std::make_unique<QWidget>();
        field->setFocusPolicy(Qt::StrongFocus);
        return field;
    }

private:
    EntryPtr m_entry;
    std::shared_ptr<PDFSpecification> m_specification;
    std::weak_ptr<SpecPDFSourceListDelegate> m_delegate;
};

/// A sidebar of nothing but its children.
class PlainSidebar : public ViewController
{
protected:
    std::unique_ptr<QWidget> loadView() override
    {
        auto widget = std::make_unique<QWidget>();
        auto *column = new QVBoxLayout(widget.get());
        for (const auto &child : childViewControllers())
            column->addWidget(child->view());
        return widget;
    }
};

/// Hears of what was chosen.
struct ChoiceListener : public SpecDetailViewControllerDelegate {
    QStringList labels;

    void specDetailViewController(SpecDetailViewController &,
                                  const std::shared_ptr<SpecificationEntry> &selected) override
    {
        labels << selected->label();
    }
};

/// A printed specification of two sections and a figure, and a detail view of it with one list.
class DetailFixture : public ReadingFixture
{
protected:
    using Controller = SpecPDFViewController;

    DetailFixture()
    {
        addPages(4);
        printSection(1, 720, u"1 Scope"_s, u"scope"_s, 4)
            .text(left, 600, u"2 Terms"_s, heading)
            .column(left, 580, 12, lines(u"terms"_s, 4), body);
        page(2)
            .column(left, 700, 12, lines(u"rest"_s, 4), body)
            .fill({{150, 300}, {200, 100}}, qRgb(200, 40, 40))
            .text(200, 280, u"Figure 1: Red"_s, body);
        page(3).text(left, 720, u"3 End"_s, heading);
        scope = section(u"1"_s, u"Scope"_s, 1, 740);
        terms = section(u"2"_s, u"Terms"_s, 1, 620);
        red = figure(u"Figure 1"_s, u"Red"_s, 2, 405);
        end = section(u"3"_s, u"End"_s, 3, 740);
        nowhere = add(u"9"_s, u"Nowhere"_s, SpecificationEntryType::Section, u"outline:missing"_s);
        specification->setTitle(u"A Specification"_s);
        specification->setShortTitle(u"Spec"_s);
        bind();
        QSettings().clear();
    }
    void TearDown() override
    {
        controller.reset();
        finishTasks(backgroundPool());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::shared_ptr<Controller> makeController() const
    {
        auto result = std::make_shared<Controller>();
        const auto sidebar = std::make_shared<PlainSidebar>();
        sidebar->addChildViewController(list);
        result->addChildViewController(sidebar);
        result->addChildViewController(std::make_shared<SpecPDFViewer>());
        result->setDelegate(listener);
        return result;
    }
    void show(QSize size = {900, 700})
    {
        controller->view()->resize(size);
        controller->view()->show();
        settle();
    }
    void settle()
    {
        ASSERT_TRUE(waitFor(
            [this] { return view().isFullyDrawn() && view().textOf(view().currentPage()); }));
    }
    bool waitForCoverage()
    {
        return waitFor([this] { return coverage().has_value() && !sheet(); });
    }

    EntryHighlightPDFView &view() const { return controller->viewer()->pdfView(); }
    const std::optional<SpecPDFViewer::Coverage> &coverage() const
    {
        return controller->viewer()->coverageHighlights();
    }
    DetailView &detail() const { return static_cast<DetailView &>(*controller->view()); }
    QString notice() const { return detail().noticeBar().text(); }
    static ProgressSheet *sheet() { return shownWindow<ProgressSheet>(); }
    /// Whether a place is at the top of the view.
    bool isAtTop(const EntryPtr &entry) const
    {
        const auto &place = *entry->destination();
        const QPointF point = view().convertFromPage(place.point(), *place.page());
        return point.y() >= 0 && point.y() < 40;
    }

    EntryPtr scope;
    EntryPtr terms;
    EntryPtr red;
    EntryPtr end;
    EntryPtr nowhere;
    std::shared_ptr<NotedList> list = std::make_shared<NotedList>();
    std::shared_ptr<ChoiceListener> listener = std::make_shared<ChoiceListener>();
    std::shared_ptr<Controller> controller = makeController();
};

} // namespace Tavrin::Testing
