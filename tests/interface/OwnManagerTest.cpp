// SPDX-License-Identifier: Apache-2.0
#include <QTableView>

#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>
#include <Tavrin/interface/citing/SpecEntryTokenFieldDelegate.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/manager/TavrinConstants.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/NotificationCenter.h>
#include <support/FinishTasks.h>

#include "SharedManagerFixture.h"

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

/// A host with a manager of its own, which knows the specification "own" and displays its views;
/// the shared manager knows nothing, and what it displays is taken for a fault.
class OwnManager : public SharedManagerFixture
{
protected:
    OwnManager()
    {
        own->registerSpecification(sampleMap(u"own"_s).write(files, u"maps/own.xml"_s),
                                   files.url(u"spec.dtd"_s));
        own->registerAuxiliaryFile(writeDocument(u"own"_s, u"own.pdf"_s));
        own->setDetailViewControllerDisplayBlock(
            [this](const ViewControllerPtr &view) { shown.push_back(view); });
    }
    void TearDown() override
    {
        EXPECT_THAT(details, IsEmpty());
        shown.clear();
        finishTasks(backgroundPool());
        QCoreApplication::sendPostedEvents();
        SharedManagerFixture::TearDown();
    }

    std::shared_ptr<PDFSpecification> specification() const
    {
        return std::dynamic_pointer_cast<PDFSpecification>(own->primarySpecification());
    }
    /// Another one comes to lie where one's own was, and something changes there.
    void endManager()
    {
        NotificationCenter::shared().post(
            TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, &own.emplace());
    }

    std::optional<SpecificationManager> own{std::in_place};
    std::vector<ViewControllerPtr> shown;
};

TEST_F(OwnManager, DisplaysTheLinksOfItsSummaries)
{
    const auto summary =
        std::dynamic_pointer_cast<SpecEntrySummaryViewController>(own->summaryLookup(u"1"_s));
    ASSERT_TRUE(summary);
    summary->summaryCellClickedLink(u"1"_s);
    EXPECT_THAT(shown, SizeIs(1));
    SpecEntrySummaryViewController made(specification()->entry(u"1"_s), nullptr, *own);
    made.summaryCellClickedLink(u"1"_s);
    EXPECT_THAT(shown, SizeIs(2));
    const auto kept = specification();
    endManager();
    made.summaryCellClickedLink(u"1"_s);
    EXPECT_THAT(shown, SizeIs(2));
}

TEST_F(OwnManager, HasItsFilesInItsTable)
{
    const auto table =
        std::dynamic_pointer_cast<AuxiliaryFileBrowserController>(own->auxiliaryFileBrowser());
    ASSERT_TRUE(table);
    table->view();
    ASSERT_THAT(table->auxiliaryFiles(), SizeIs(1));
    EXPECT_EQ(table->auxiliaryFiles().front()->spec(), specification());
    table->viewButtonPressed(0);
    EXPECT_THAT(shown, SizeIs(1));
    own->unregisterAuxiliaryFile(own->auxiliaryFiles().front());
    EXPECT_THAT(table->auxiliaryFiles().front()->urls(), IsEmpty());
    QSignalSpy finished(table.get(), &AuxiliaryFileBrowserController::importFinished);
    table->importFiles({files.url(u"own.pdf"_s)});
    EXPECT_TRUE(finished.wait());
    EXPECT_THAT(own->auxiliaryFiles(), SizeIs(1));
    EXPECT_THAT(manager.auxiliaryFiles(), IsEmpty());

    table->importFiles({files.url(u"own.pdf"_s)});
    endManager();
    EXPECT_TRUE(finished.wait());
    EXPECT_THAT(table->auxiliaryFiles(), SizeIs(1)) << "what was shown stays";
    table->viewButtonPressed(0);
    table->tableView()->selectAll();
    table->segmentedControlButtonPressed(1);
    EXPECT_THAT(shown, SizeIs(1));
}

TEST_F(OwnManager, IsCitedInItsFields)
{
    TokenField field;
    const auto delegate = SpecEntryTokenFieldDelegate::make(field, *own);
    const QStringList offered = delegate->completions(u"Scope"_s).texts;
    ASSERT_FALSE(offered.isEmpty());
    delegate->insert(delegate->representedObject(offered.front()).toString());
    EXPECT_THAT(delegate->selectedEntries(), SizeIs(1));
    EXPECT_TRUE(delegate->hasMenu(u"1"_s));
    const auto choice = std::make_shared<SpecEntrySelectionViewController>(nullptr, *own);
    choice->view();
    EXPECT_EQ(choice->selectedSpecification(), specification());
    EXPECT_THAT(choice->availableSpecifications(), SizeIs(1));
    EXPECT_TRUE(choice->currentDetailController());

    endManager();
    EXPECT_TRUE(delegate->completions(u"Scope"_s).texts.isEmpty());
    EXPECT_THAT(delegate->selectedEntries(), IsEmpty());
    EXPECT_FALSE(delegate->hasMenu(u"1"_s));
    EXPECT_TRUE(choice->currentDetailController());
}

TEST_F(OwnManager, OpensWhatItsAuditsShow)
{
    const auto audit = std::make_shared<SpecAuditBrowserController>(
        QStringList{u"1"_s}, specification(), QStringList(),
        SpecAuditBrowserController::Components(), nullptr, *own);
    QSignalSpy audited(audit.get(), &SpecAuditBrowserController::audited);
    audit->view()->resize(1'000, 600);
    audit->view()->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !audited.isEmpty(); }));
    QCoreApplication::processEvents();
    const auto open = [&table = *audit->tableView()] {
        const QPoint place = table.visualRect(table.model()->index(0, 0)).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
    };
    open();
    EXPECT_THAT(shown, SizeIs(1));
    endManager();
    open();
    EXPECT_THAT(shown, SizeIs(1));
}

TEST_F(OwnManager, KeepsItsDetailViewsFromThoseOfOthers)
{
    own->showDetailViewController(u"1"_s);
    const auto detail = std::dynamic_pointer_cast<SpecPDFViewController>(shown.at(0));
    ASSERT_TRUE(detail);
    // The same map once more, and another object for it.
    manager.registerSpecification(files.url(u"maps/own.xml"_s), files.url(u"spec.dtd"_s));
    manager.unregisterAuxiliaryFile(manager.registerAuxiliaryFile(files.url(u"own.pdf"_s)));
    EXPECT_EQ(detail->specification(), specification());
    own->unregisterAuxiliaryFile(own->auxiliaryFiles().front());
    EXPECT_EQ(detail->specification(), specification()) << "its own successor is followed";
}

} // namespace
