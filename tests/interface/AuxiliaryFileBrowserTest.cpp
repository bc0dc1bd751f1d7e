// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/files/AuxiliaryFileArrayController.h>
#include <Tavrin/interface/files/AuxiliaryFileBrowserController.h>
#include <Tavrin/interface/files/AuxiliaryFileTableCellView.h>
#include <Tavrin/interface/files/AuxiliaryFileTableColorTransformer.h>
#include <Tavrin/interface/files/FileDropOverlay.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/interface/toolkit/SegmentedControl.h>
#include <Tavrin/manager/TavrinConstants.h>
#include <Tavrin/platform/NotificationCenter.h>

#include "SharedManagerFixture.h"

namespace
{

using Rows = AuxiliaryFileArrayController;

/// The browser in a window.
class Browser : public SharedManagerFixture
{
protected:
    void show()
    {
        controller = AuxiliaryFileBrowserController::standard();
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(controller->view());
        window.resize(560, 360);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        table = controller->tableView();
        segments = window.findChild<SegmentedControl *>();
        overlay = window.findChild<FileDropOverlay *>();
    }

    QString text(int row, int column) const
    {
        return controller->arrayController()->index(row, column).data().toString();
    }
    /// "name | status", for each row.
    QStringList rows() const
    {
        QStringList result;
        for (int row = 0; row < int(controller->auxiliaryFiles().size()); ++row)
            result += text(row, Rows::NameColumn) + u" | "_s + text(row, Rows::StatusColumn);
        return result;
    }
    QPushButton *viewButton(int row) const
    {
        const QWidget *cell =
            table->indexWidget(controller->arrayController()->index(row, Rows::ViewColumn));
        return cell ? cell->findChild<QPushButton *>() : nullptr;
    }
    QPoint place(int row) const
    {
        return table->visualRect(controller->arrayController()->index(row, 0)).center();
    }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, place(row));
    }
    std::vector<int> selected() const
    {
        std::vector<int> result;
        for (const QModelIndex &index : table->selectionModel()->selectedRows())
            result.push_back(index.row());
        std::sort(result.begin(), result.end());
        return result;
    }
    QToolButton *removeButton() const { return segments->segment(1); }

    /// Whether it was accepted.
    bool dragIn(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent event(place(0), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        event.ignore();
        QApplication::sendEvent(table->viewport(), &event);
        return event.isAccepted();
    }
    bool drop(const QList<QUrl> &urls)
    {
        if (!dragIn(urls))
            return false;
        QMimeData data;
        data.setUrls(urls);
        QDropEvent event(place(0), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        event.ignore();
        QApplication::sendEvent(table->viewport(), &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction);
        return event.isAccepted();
    }
    static void dragOut(QWidget &from)
    {
        QDragLeaveEvent event;
        QApplication::sendEvent(&from, &event);
    }

    void waitForImport()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !controller->isImporting(); }));
    }
    /// The alert on the screen; null if there is none.
    Sheet *alert() const
    {
        const auto sheets = window.findChildren<Sheet *>();
        const auto it = std::find_if(sheets.begin(), sheets.end(),
                                     [](const Sheet *sheet) { return sheet->isVisible(); });
        return it == sheets.end() ? nullptr : *it;
    }

    QWidget window;
    std::shared_ptr<AuxiliaryFileBrowserController> controller;
    QTableView *table = nullptr;
    SegmentedControl *segments = nullptr;
    FileDropOverlay *overlay = nullptr;
};

QString unmatched(const QString &name)
{
    return name + u" does not match any supported specifications."_s;
}

} // namespace

TEST_F(Browser, TellsTheStateOfEachRow)
{
    show();
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(controller->title(), u"Specifications"_s);
    EXPECT_EQ(window.findChild<QLabel *>(u"instructionLabel"_s)->text(),
              u"Import a supported specification to look up reference topics inline:"_s);
    EXPECT_FALSE(overlay->hint().isEmpty());

    manager.setAuxiliaryFiles({files.url(u"stray.pdf"_s)});
    addSpecification(u"alpha"_s);
    addSpecification(u"beta"_s);
    manager.registerSpecification(Specification::make<Specification>());
    manager.setPrimarySpecification(specification(u"beta"_s));
    import(u"beta"_s);
    EXPECT_THAT(rows(), ElementsAre(u"The alpha | Not Loaded"_s, u"The beta (latest) | "_s,
                                    u"stray.pdf | Unrecognized"_s));
    EXPECT_THAT(viewButton(0), IsNull());
    EXPECT_THAT(viewButton(1), NotNull());
    EXPECT_EQ(viewButton(1)->accessibleName(), u"View The beta"_s);
    EXPECT_THAT(viewButton(2), IsNull());
    EXPECT_TRUE(overlay->hint().isEmpty());

    click(0);
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_FALSE(removeButton()->isEnabled());
    click(1);
    click(2, Qt::ControlModifier);
    EXPECT_THAT(selected(), ElementsAre(1, 2));
    EXPECT_TRUE(removeButton()->isEnabled());
    LogCapture log("tavrin");
    EXPECT_FALSE(controller->tableViewShouldSelectRow(3));
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Couldn't get auxiliary file to validate selection"_s));
}

TEST_F(Browser, DrawsRowsThatCannotBeSelectedInGray)
{
    addSpecification(u"alpha"_s);
    manager.setAuxiliaryFiles({files.url(u"stray.pdf"_s)});
    show();
    using Transformer = AuxiliaryFileTableColorTransformer;
    const QPalette palette = table->palette();
    const QColor text = Transformer::transformedValue(true, palette);
    const QColor gray = Transformer::transformedValue(false, palette);
    const QColor lightGray = Transformer::transformedValue({}, palette);
    EXPECT_EQ(text, palette.color(QPalette::Text));
    EXPECT_LT(text.lightness(), gray.lightness());
    EXPECT_LT(gray.lightness(), lightGray.lightness());
    const auto darkest = [this](int row) {
        const QImage cell = table->viewport()
                                ->grab(table->visualRect(
                                    controller->arrayController()->index(row, Rows::StatusColumn)))
                                .toImage();
        int lightness = 255;
        for (int y = 0; y < cell.height(); ++y) {
            for (int x = 0; x < cell.width(); ++x)
                lightness = std::min(lightness, cell.pixelColor(x, y).lightness());
        }
        return lightness;
    };
    EXPECT_NEAR(darkest(0), gray.lightness(), 30);
    EXPECT_NEAR(darkest(1), text.lightness(), 30);
    EXPECT_TRUE(AuxiliaryFileTableCellView::fileName(nullptr).isEmpty());
}

TEST_F(Browser, ImportsWhatThePanelChose)
{
    addSpecification(u"alpha"_s);
    addSpecification(u"beta"_s);
    writeDocument(u"alpha"_s, u"documents/alpha.pdf"_s);
    files.write(u"documents/notes.txt"_s, "notes");
    show();
    QTest::mouseClick(segments->segment(0), Qt::LeftButton);
    auto *panel = window.findChild<QFileDialog *>();
    ASSERT_THAT(panel, NotNull());
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->windowModality(), Qt::WindowModal);
    EXPECT_EQ(panel->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(panel->windowTitle(), u"Choose a specification file to import."_s);
    EXPECT_THAT(panel->nameFilters(), ElementsAre(u"Specifications (*.pdf)"_s));
    panel->setDirectory(files.path(u"documents"_s));
    panel->findChild<QLineEdit *>()->setText(u"alpha.pdf"_s);
    // The panel lists the folder on a thread of its own.
    auto *open = panel->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
    ASSERT_TRUE(QTest::qWaitFor([open] { return open->isEnabled(); }));

    // The sheet is there, and was drawn, before the file holds up everything else.
    bool sheetWasShown = false;
    const auto observation = NotificationCenter::shared().observe(
        TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, &manager,
        [&](const QString &, const void *) {
            const auto *sheet = window.findChild<ProgressSheet *>();
            sheetWasShown = sheet && sheet->isVisible() && !panel->isVisible() &&
                            sheet->messageText() == u"Importing…"_s;
        });
    QSignalSpy finished(controller.get(), &AuxiliaryFileBrowserController::importFinished);
    QTest::mouseClick(open, Qt::LeftButton);
    ASSERT_TRUE(finished.wait());
    EXPECT_TRUE(sheetWasShown);
    EXPECT_THAT(alert(), IsNull());
    EXPECT_THAT(rows(), ElementsAre(u"The alpha (latest) | "_s, u"The beta | Not Loaded"_s));
    EXPECT_THAT(controller->auxiliaryFiles().front()->urls(),
                ElementsAre(manager.auxiliaryFiles().front()));
}

TEST_F(Browser, ShowsNoPanelWithoutAWindow)
{
    addSpecification(u"alpha"_s);
    const auto alone = AuxiliaryFileBrowserController::standard();
    alone->view();
    alone->segmentedControlButtonPressed(0);
    EXPECT_THAT(alone->view()->findChild<QFileDialog *>(), IsNull());
    QSignalSpy finished(alone.get(), &AuxiliaryFileBrowserController::importFinished);
    LogCapture log("tavrin");
    alone->importFiles(
        {writeDocument(u"alpha"_s, u"a.pdf"_s), writeDocument(u"gamma"_s, u"g.pdf"_s)});
    EXPECT_TRUE(finished.wait());
    EXPECT_TRUE(specification(u"alpha"_s)->areFileRequirementsSatisfied());
    EXPECT_THAT(alone->view()->findChild<Sheet *>(), IsNull());
    EXPECT_TRUE(log.takeMessages().contains(unmatched(u"g.pdf"_s)));
}

TEST_F(Browser, TakesDroppedFilesOfAllowedTypes)
{
    addSpecification(u"alpha"_s);
    show();
    const QUrl document = writeDocument(u"alpha"_s, u"a.pdf"_s);
    const QUrl text = files.write(u"notes.txt"_s, "notes");
    files.write(u"folder.pdf/inside.txt"_s, "a folder");
    EXPECT_FALSE(dragIn({text}));
    EXPECT_FALSE(dragIn({files.url()}));
    EXPECT_FALSE(dragIn({files.url(u"folder.pdf"_s)}));
    EXPECT_FALSE(dragIn({QUrl(u"https://example.org/a.pdf"_s)}));
    EXPECT_FALSE(dragIn({}));
    EXPECT_FALSE(overlay->isHighlighted());

    EXPECT_TRUE(dragIn({text, document}));
    EXPECT_TRUE(overlay->isHighlighted());
    dragOut(*controller->view());
    EXPECT_FALSE(overlay->isHighlighted());

    EXPECT_TRUE(drop({text, document}));
    EXPECT_FALSE(overlay->isHighlighted());
    waitForImport();
    EXPECT_THAT(rows(), ElementsAre(u"The alpha (latest) | "_s));
    EXPECT_THAT(alert(), IsNull()) << "the other file wasn't tried";

    controller->setAllowedFileTypes({u"txt"_s});
    EXPECT_FALSE(dragIn({document}));
    EXPECT_TRUE(drop({text}));
    waitForImport();
    ASSERT_THAT(alert(), NotNull());
    EXPECT_EQ(alert()->messageText(), unmatched(u"notes.txt"_s));
    EXPECT_EQ(alert()->informativeText(), u"Try another file."_s);
}

TEST_F(Browser, TellsAllFailuresOfAnImportAtOnce)
{
    addSpecification(u"alpha"_s);
    show();
    EXPECT_TRUE(drop({writeDocument(u"gamma"_s, u"g.pdf"_s), files.write(u"broken.pdf"_s, "no PDF"),
                      writeDocument(u"alpha"_s, u"a.pdf"_s)}));
    waitForImport();
    ASSERT_THAT(alert(), NotNull());
    EXPECT_EQ(alert()->messageText(), u"Import Errors"_s);
    EXPECT_EQ(alert()->informativeText(),
              unmatched(u"g.pdf"_s) + u"\n\nbroken.pdf is not a PDF."_s);
    EXPECT_THAT(rows(), ElementsAre(u"The alpha (latest) | "_s)) << "the third got through";
    EXPECT_EQ(manager.auxiliaryFiles().size(), 1U);
    QTest::keyClick(alert(), Qt::Key_Escape);
    EXPECT_THAT(alert(), IsNull());
}

TEST_F(Browser, EndsAnImportWithItself)
{
    addSpecification(u"alpha"_s);
    show();
    const QUrl document = writeDocument(u"alpha"_s, u"a.pdf"_s);
    controller->importFiles({document, document});
    const QPointer<ProgressSheet> sheet = window.findChild<ProgressSheet *>();
    ASSERT_FALSE(sheet.isNull());
    controller.reset();
    QTest::qWait(50);
    EXPECT_TRUE(sheet.isNull() || !sheet->isVisible());
    EXPECT_FALSE(specification(u"alpha"_s)->areFileRequirementsSatisfied());
}

TEST_F(Browser, RemovesTheFilesOfSelectedRows)
{
    manager.setAuxiliaryFiles({files.url(u"stray.pdf"_s)});
    addSpecification(u"alpha"_s);
    addSpecification(u"beta"_s);
    const QUrl stored = import(u"alpha"_s);
    import(u"beta"_s);
    show();
    // Removed while it is on show: what shows it goes on to do so, or follows.
    manager.showDetailViewController(specification(u"alpha"_s));
    details.front()->view()->show();

    click(0);
    QTest::mouseClick(removeButton(), Qt::LeftButton);
    EXPECT_THAT(rows(), ElementsAre(u"The alpha (latest) | Not Loaded"_s, u"The beta | "_s,
                                    u"stray.pdf | Unrecognized"_s));
    EXPECT_FALSE(QFile::exists(stored.toLocalFile()));
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_FALSE(removeButton()->isEnabled());
    QCoreApplication::processEvents();
    EXPECT_TRUE(details.front()->view()->isVisible());

    click(1);
    click(2, Qt::ControlModifier);
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_THAT(rows(),
                ElementsAre(u"The alpha (latest) | Not Loaded"_s, u"The beta | Not Loaded"_s));
    EXPECT_THAT(manager.auxiliaryFiles(), IsEmpty());
    EXPECT_FALSE(overlay->hint().isEmpty());
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_THAT(alert(), IsNull()) << "nothing is selected";
}

TEST_F(Browser, OpensRowsByButtonDoubleClickAndKey)
{
    manager.setAuxiliaryFiles({files.url(u"stray.pdf"_s)});
    addSpecification(u"alpha"_s);
    addImported(u"beta"_s);
    show();
    QTest::mouseClick(viewButton(1), Qt::LeftButton);
    click(1);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place(1));
    QTest::keyClick(table, Qt::Key_Return);
    ASSERT_EQ(details.size(), 3U);
    for (const auto &detail : details) {
        const auto *shown = qobject_cast<SpecPDFViewController *>(detail.get());
        ASSERT_THAT(shown, NotNull());
        EXPECT_EQ(shown->specification(), specification(u"beta"_s));
        EXPECT_THAT(shown->entry(), IsNull());
    }
    QTest::keyClick(table, Qt::Key_Up);
    EXPECT_EQ(table->currentIndex().row(), 0) << "it can be read, if not selected";
    QTest::keyClick(table, Qt::Key_Enter);
    EXPECT_THAT(details.back(), NotNull());
    EXPECT_EQ(details.size(), 4U) << "a prompt";

    LogCapture log("tavrin");
    controller->tableViewRowDoubleClicked(2);
    controller->viewButtonPressed(7);
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"No loaded spec with this URL"_s, u"Couldn't get auxiliary file"_s));
    EXPECT_EQ(details.size(), 4U);
}

TEST_F(Browser, KeepsTheSelectionWhenFilesCome)
{
    manager.setAuxiliaryFiles({files.url(u"stray.pdf"_s), files.url(u"other.pdf"_s)});
    addSpecification(u"alpha"_s);
    addImported(u"beta"_s);
    show();
    click(1);
    click(3, Qt::ControlModifier);
    const auto gone = manager.auxiliaryFiles().front();
    manager.unregisterAuxiliaryFile(gone);
    import(u"alpha"_s);
    EXPECT_THAT(rows(), ElementsAre(u"The alpha (latest) | "_s, u"The beta | "_s,
                                    u"other.pdf | Unrecognized"_s));
    EXPECT_THAT(selected(), ElementsAre(1, 2));
}

TEST_F(Browser, HoldsAViewOfTheHosts)
{
    controller = AuxiliaryFileBrowserController::standard();
    auto first = std::make_unique<QLabel>(u"First"_s);
    const QPointer<QLabel> former = first.get();
    controller->setAccessoryView(std::move(first));
    controller->setInstructionText(u"Get the manual."_s);
    EXPECT_FALSE(controller->isViewLoaded());
    QWidget *view = controller->view();
    view->show();
    EXPECT_TRUE(former->isVisible());
    EXPECT_EQ(former->parentWidget(), controller->accessoryContainerView());
    controller->setAccessoryView(std::make_unique<QLabel>(u"Second"_s));
    EXPECT_TRUE(former.isNull());
    EXPECT_EQ(controller->accessoryView()->parentWidget(), controller->accessoryContainerView());
    controller->setInstructionText({});
    EXPECT_TRUE(view->findChild<QLabel *>(u"instructionLabel"_s)->isHidden());
    controller->setAccessoryView(nullptr);
    EXPECT_FALSE(controller->accessoryContainerView()->isVisible());
}

TEST_F(Browser, IsUsedByTheKeyboardAlone)
{
    addSpecification(u"alpha"_s);
    addSpecification(u"beta"_s);
    import(u"alpha"_s);
    import(u"beta"_s);
    show();
    table->setFocus(Qt::TabFocusReason);
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_THAT(selected(), ElementsAre(1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(segments->segment(0)->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(specification(u"beta"_s)->areFileRequirementsSatisfied());
    EXPECT_TRUE(segments->segment(0)->hasFocus()) << "nothing is left to remove";
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Insert);
    auto *panel = window.findChild<QFileDialog *>();
    ASSERT_THAT(panel, NotNull());
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(controller->isImporting());
    EXPECT_FALSE(table->accessibleName().isEmpty());
}
