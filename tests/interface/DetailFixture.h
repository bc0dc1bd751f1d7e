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
        page(1)
            .text(left, 720, QStringLiteral("1 Scope"), heading)
            .column(left, 700, 12, lines(QStringLiteral("scope"), 4), body)
            .text(left, 600, QStringLiteral("2 Terms"), heading)
            .column(left, 580, 12, lines(QStringLiteral("terms"), 4), body);
        page(2)
            .column(left, 700, 12, lines(QStringLiteral("rest"), 4), body)
            .fill({{150, 300}, {200, 100}}, qRgb(200, 40, 40))
            .text(200, 280, QStringLiteral("Figure 1: Red"), body);
        page(3).text(left, 720, QStringLiteral("3 End"), heading);
        scope = section(QStringLiteral("1"), QStringLiteral("Scope"), 1, 740);
        terms = section(QStringLiteral("2"), QStringLiteral("Terms"), 1, 620);
        red = figure(QStringLiteral("Figure 1"), QStringLiteral("Red"), 2, 405);
        end = section(QStringLiteral("3"), QStringLiteral("End"), 3, 740);
        nowhere = add(QStringLiteral("9"), QStringLiteral("Nowhere"),
                      SpecificationEntryType::Section, QStringLiteral("outline:missing"));
        specification->setTitle(QStringLiteral("A Specification"));
        specification->setShortTitle(QStringLiteral("Spec"));
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
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return view().isFullyDrawn() && view().textOf(view().currentPage()); },
            10'000));
    }
    bool waitForCoverage()
    {
        return QTest::qWaitFor([this] { return coverage().has_value() && !sheet(); }, 10'000);
    }

    EntryHighlightPDFView &view() const { return controller->viewer()->pdfView(); }
    const std::optional<SpecPDFViewer::Coverage> &coverage() const
    {
        return controller->viewer()->coverageHighlights();
    }
    DetailView &detail() const { return static_cast<DetailView &>(*controller->view()); }
    QString notice() const { return detail().noticeBar().text(); }
    /// The one over the window; null if there is none.
    static ProgressSheet *sheet()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *sheet = qobject_cast<ProgressSheet *>(window);
            if (sheet && sheet->isVisible())
                return sheet;
        }
        return nullptr;
    }
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
