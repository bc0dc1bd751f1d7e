// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

#include <atomic>

#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/summary/SpecErrorViewController.h>
#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <support/FinishTasks.h>

#include "SharedManagerFixture.h"

namespace
{

class LookupViews : public SharedManagerFixture
{
protected:
    template <class View>
    static View *as(const ViewControllerPtr &view)
    {
        return qobject_cast<View *>(view.get());
    }
    static void pressButton(const ViewControllerPtr &prompt)
    {
        QWidget *view = prompt->view();
        view->show();
        QTest::mouseClick(view->findChild<QPushButton *>(), Qt::LeftButton);
    }
};

} // namespace

TEST_F(LookupViews, ShowASummaryWhoseLinksLeadToTheDetailView)
{
    const auto alpha = addSpecification(u"alpha"_s);
    addSpecification(u"beta"_s);
    import(u"alpha"_s);
    import(u"beta"_s);
    manager.setPrimarySpecification(specification(u"beta"_s));
    const auto onlyAlpha = [&](const Specification &candidate) {
        return &candidate == alpha.get();
    };
    const auto view = manager.summaryLookup(u"1"_s, onlyAlpha);
    auto *summary = as<SpecEntrySummaryViewController>(view);
    ASSERT_THAT(summary, NotNull());
    EXPECT_EQ(summary->entry(), alpha->entry(u"1"_s));

    QWidget window;
    window.resize(800, 500);
    QPushButton button(u"1"_s, &window);
    window.show();
    QPointer<Popover> popover = Popover::show(view, button.rect(), button);
    // The host puts the popover away as soon as a link is followed.
    QObject::connect(summary, &SpecEntrySummaryViewController::detailViewRequested, popover,
                     &Popover::close);
    summary->summaryCellClickedLink(u"1"_s);
    ASSERT_EQ(details.size(), 1U);
    auto *detail = as<SpecPDFViewController>(details.front());
    ASSERT_THAT(detail, NotNull());
    EXPECT_EQ(detail->specification(), alpha) << "the summary's own, though another is primary";
    EXPECT_EQ(detail->entry(), alpha->entry(u"1"_s));
    EXPECT_EQ(manager.currentDetailViewController(), details.front());
}

TEST_F(LookupViews, HaveThePrimarySpecificationMeasuredInTheBackground)
{
    /// Knows on which thread, and how often, its print was measured.
    class Measured : public PDFSpecification
    {
    public:
        using PDFSpecification::PDFSpecification;
        double computeNormalTextSize(const CachingPDFDocument &, int) const override
        {
            ++times;
            wasOnMainThread = QThread::currentThread() == QCoreApplication::instance()->thread();
            return 10;
        }
        mutable std::atomic<int> times = 0;
        mutable std::atomic<bool> wasOnMainThread = true;
    };
    const auto primary = Specification::make<Measured>();
    const auto other = Specification::make<Measured>();
    // Any manager's, not the shared one's alone.
    SpecificationManager hosts;
    hosts.setSpecifications({primary, other});
    const QUrl document = writeDocument(u"alpha"_s, u"alpha.pdf"_s);
    for (const auto &specification : {primary, other})
        specification->loadPDFDocument(document);
    QCoreApplication::processEvents();
    finishTasks(backgroundPool());
    EXPECT_EQ(primary->times, 1);
    EXPECT_FALSE(primary->wasOnMainThread);
    EXPECT_EQ(other->times, 0) << "that would cost memory for each document";
    EXPECT_EQ(primary->normalTextSize(), 10);
    EXPECT_EQ(primary->times, 1);
}

TEST_F(LookupViews, LeadFromEachPromptToTheBrowser)
{
    manager.setAuxiliaryFileBrowserHelpText(u"Ask the librarian."_s);
    addSpecification(u"alpha"_s);
    pressButton(manager.summaryLookup(u"1"_s));
    manager.showDetailViewController(u"1"_s);
    pressButton(details.back());
    manager.showDetailViewController(specification(u"alpha"_s));
    pressButton(details.back());
    import(u"alpha"_s);
    manager.showDetailViewController(u"nonsense"_s);
    pressButton(details.back());
    ASSERT_EQ(browsers.size(), 4U);
    for (const auto &browser : browsers) {
        ASSERT_THAT(as<AuxiliaryFileBrowserController>(browser), NotNull());
        browser->view()->show();
        EXPECT_EQ(browser->view()->findChild<QLabel *>(u"instructionLabel"_s)->text(),
                  u"Ask the librarian."_s);
    }

    manager.setAuxiliaryFileBrowserDisplayBlock({});
    const auto prompt = manager.makeNoSpecsController();
    prompt->view()->show();
    EXPECT_TRUE(prompt->view()->findChild<QPushButton *>()->isHidden());
    EXPECT_EQ(as<SpecErrorViewController>(prompt)->messageText(),
              u"You have not imported a spec for this reference."_s);
}

TEST_F(LookupViews, MarkCoverageWhenTheyAppear)
{
    const auto alpha = addSpecification(u"alpha"_s);
    manager.showSpecCoverage({{u"1"_s, u"test 7"_s}}, alpha);
    EXPECT_THAT(details, IsEmpty());
    import(u"alpha"_s);
    manager.showSpecCoverage({{u"1"_s, u"test 7"_s}, {u"9"_s, u"test 8"_s}}, alpha);
    ASSERT_EQ(details.size(), 1U);
    auto *detail = as<SpecPDFViewController>(details.front());
    EXPECT_TRUE(detail->showsReferenceCoverage());
    ASSERT_TRUE(detail->referenceCoverage());
    EXPECT_EQ(detail->referenceCoverage()->back().reference, u"test 8"_s);
    EXPECT_THAT(detail->entry(), IsNull());
}
