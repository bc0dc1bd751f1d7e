// SPDX-License-Identifier: Apache-2.0
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QTest>
#include <QTreeWidget>

#include <support/Test.h>

#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/summary/SpecErrorViewController.h>
#include <reader/files/ReaderLibrary.h>
#include <reader/lookup/EntryPalette.h>
#include <reader/lookup/LookupField.h>
#include <reader/lookup/SuggestionModel.h>
#include <reader/panes/ControllerPane.h>
#include <reader/window/ReaderWindow.h>

#include "ReaderFixture.h"

namespace Tavrin::Testing
{

using Reader::ReaderWindow;

class ReaderWindowTest : public ReaderFixture
{
};

TEST_F(ReaderWindowTest, ShowsSummaryAndDocumentOfWhatIsLookedUp)
{
    openAll();
    for (const QString &text : {u"2"_s, u"§ 2"_s, u"Clause 2"_s, u"spec://2/manual/1"_s}) {
        window.lookUp(u"1"_s);
        type(text);
        QTest::keyClick(&window.lookupField(), Qt::Key_Return);
        EXPECT_EQ(summaryLabel(), u"2"_s) << text.toStdString();
        EXPECT_EQ(detailLabel(), u"2"_s) << text.toStdString();
    }
    const auto opened = detail();
    window.lookUp(u"3"_s);
    EXPECT_EQ(detail(), opened) << "the document stays open";
    EXPECT_EQ(manager.currentDetailViewController(), opened) << "and no other was made for it";
    EXPECT_EQ(detailLabel(), u"3"_s);
    EXPECT_THAT(window.windowTitle().toStdString(), HasSubstr("The Manual"));
}

TEST_F(ReaderWindowTest, StaysAtAFigureThatTheOutlineDoesNotHave)
{
    openAll();
    window.lookUp(u"3"_s);
    window.lookUp(u"Fig. 1"_s);
    QTest::qWait(50);
    EXPECT_EQ(summaryLabel(), u"Figure 1"_s);
    EXPECT_EQ(detailLabel(), u"Figure 1"_s);
    const auto shown = std::dynamic_pointer_cast<SpecPDFViewController>(detail());
    ASSERT_TRUE(shown);
    const auto &view = shown->viewer()->pdfView();
    const auto page = view.document()->page(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.isFullyDrawn(); }));
    const double top = view.convertFromPage({100, 500}, *page).y();
    EXPECT_GE(top, -1) << "the figure's top can be seen";
    EXPECT_LT(top, view.viewport()->height() / 2.0);
}

TEST_F(ReaderWindowTest, SaysWhenThereIsNothing)
{
    openAll();
    for (const QString &text : {u"§ 9"_s, u"nonsense"_s, u"spec://2/manual/1/5/3"_s, u"🙂"_s}) {
        window.lookUp(text);
        EXPECT_FALSE(window.summaryPane().controller()) << text.toStdString();
        const auto labels = window.summaryPane().findChildren<QLabel *>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return label->isVisible() && label->text().contains(text);
        })) << text.toStdString();
    }
}

TEST_F(ReaderWindowTest, OffersEntriesWhileOneTypes)
{
    openAll();
    type(u"limits"_s);
    ASSERT_EQ(window.lookupField().suggestions().rowCount(), 2);
    QWidget *popup = QApplication::activePopupWidget();
    ASSERT_TRUE(popup);
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Down);
    const QString second = window.lookupField()
                               .suggestions()
                               .entry(window.lookupField().suggestions().index(1))
                               ->label();
    QTest::keyClick(popup, Qt::Key_Return);
    EXPECT_EQ(summaryLabel(), second);
    EXPECT_EQ(detailLabel(), second);
    type(u"word2"_s);
    const auto &suggestions = window.lookupField().suggestions();
    ASSERT_EQ(suggestions.rowCount(), 1);
    EXPECT_EQ(suggestions.index(0).data(Reader::SuggestionModel::ReasonRole), u"keyword word2"_s);
}

TEST_F(ReaderWindowTest, JumpsFromThePalette)
{
    openAll();
    window.lookupField().setFocus();
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
    ASSERT_TRUE(window.entryPalette().isVisible());
    QTest::keyClicks(window.focusWidget(), u"limits"_s);
    QTest::keyClick(window.focusWidget(), Qt::Key_Down);
    QTest::keyClick(window.focusWidget(), Qt::Key_Up);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(window.entryPalette().isVisible());
    EXPECT_THAT(summaryLabel().toStdString(), testing::AnyOf("2", "3"));
    EXPECT_EQ(detailLabel(), summaryLabel());

    window.lookupField().setFocus();
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(window.entryPalette().isVisible()) << "nothing is chosen";
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window.entryPalette().isVisible());
    EXPECT_EQ(window.focusWidget(), &window.lookupField());
}

TEST_F(ReaderWindowTest, RemembersPlaces)
{
    openAll();
    for (const QString &label : {u"1"_s, u"3"_s, u"1"_s})
        window.lookUp(label);
    EXPECT_EQ(recentPlaces(), QStringList({u"Section 1 Scope"_s, u"Section 3 Further Limits"_s}));
    window.lookUp(u"2"_s);
    auto *list = window.findChild<QListView *>(u"recentPlaces"_s);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(2, 0));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(summaryLabel(), u"3"_s);

    window.close();
    const ReaderWindow next(manager);
    const auto *nextList = next.findChild<QListView *>(u"recentPlaces"_s);
    EXPECT_EQ(nextList->model()->index(0, 0).data(), u"Section 3 Further Limits"_s);
    EXPECT_EQ(ReaderWindow::rememberedMaps(), QStringList{files.path(u"maps"_s)});
}

TEST_F(ReaderWindowTest, TakesSettingsOfOthersForNone)
{
    QSettings settings;
    settings.setValue(u"Reader.RecentPlaces"_s,
                      QStringList{u"no URL"_s, u"spec://1/manual/1/5/3"_s, u"spec://1/manual/*"_s,
                                  u"spec://"_s + QString(100'000, u'x')});
    settings.setValue(u"Reader.Window"_s, u"garbage"_s);
    settings.setValue(u"Reader.Splitter"_s, 5);
    settings.setValue(u"Reader.Maps"_s, u"/nowhere"_s);
    ReaderWindow next(manager);
    next.show();
    EXPECT_EQ(next.findChild<QListView *>(u"recentPlaces"_s)->model()->rowCount(), 1);
    EXPECT_GT(next.width(), 400);
    EXPECT_LT(next.width(), next.screen()->availableGeometry().width());
    EXPECT_GT(next.detailPane().width(), 100);
}

TEST_F(ReaderWindowTest, AsksForAMissingFileAndGoesOnWhenItIsDropped)
{
    openMaps();
    window.lookUp(u"2"_s);
    EXPECT_EQ(summaryLabel(), u"2"_s) << "the map knows it";
    EXPECT_TRUE(
        std::dynamic_pointer_cast<SpecErrorViewController>(window.detailPane().controller()));

    QMimeData data;
    data.setUrls({document});
    QDragEnterEvent enter({400, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({400, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    EXPECT_TRUE(QTest::qWaitFor([this] { return detail() != nullptr; }));
    EXPECT_EQ(detailLabel(), u"2"_s);
}

TEST_F(ReaderWindowTest, ReadsANamedFileBeforeItsImportedCopy)
{
    openMaps();
    const QUrl copy = manager.registerAuxiliaryFile(document);
    ASSERT_NE(copy, document);
    manager.setSpecifications({});
    ReaderWindow next(manager);
    next.offerFiles({document.toLocalFile()});
    next.openMaps({files.path(u"maps"_s)});
    next.bindFiles({document.toLocalFile()});
    EXPECT_FALSE(next.findChild<Sheet *>()) << "nothing is complained of";
    EXPECT_EQ(manager.primarySpecification()->auxiliaryFileRequirements().front()->fileURL,
              document);
    manager.unregisterAuxiliaryFile(copy);
}

TEST_F(ReaderWindowTest, RefusesWhatIsNoPDF)
{
    openMaps();
    QMimeData data;
    data.setUrls({files.write(u"notes.txt"_s, "text"), QUrl(u"https://example.org/a.pdf"_s)});
    QDragEnterEvent enter({400, 300}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_FALSE(enter.isAccepted());
    window.importFiles({files.write(u"other.pdf"_s, "no PDF at all")});
    EXPECT_TRUE(QTest::qWaitFor([this] { return !complaint().isEmpty(); }));
}

TEST_F(ReaderWindowTest, CopiesEntriesInThreeForms)
{
    openAll();
    window.lookUp(u"2"_s);
    const auto copied = [] {
        const QMimeData &data = *QGuiApplication::clipboard()->mimeData();
        EXPECT_TRUE(data.hasHtml() && data.hasUrls());
        return data.text().toStdString();
    };
    auto *list = window.findChild<QListView *>(u"recentPlaces"_s);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(copied(), HasSubstr("Limits of Use"));
    QTest::keyClick(&window, Qt::Key_K, Qt::ControlModifier);
    QTest::keyClicks(window.focusWidget(), u"scope"_s);
    QTest::keyClick(window.focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(copied(), HasSubstr("spec://1/manual"));
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(copied(), HasSubstr("spec://2/manual"));
}

/// Keys that count while the document has the focus, with what they are for.
TEST_F(ReaderWindowTest, NoTwoShortcutsMeet)
{
    openAll();
    window.lookUp(u"2"_s);
    QHash<QKeySequence, QString> taken;
    const auto take = [&](const QKeySequence &keys, const QString &name) {
        EXPECT_FALSE(taken.contains(keys))
            << keys.toString().toStdString() << ": " << taken.value(keys).toStdString() << " and "
            << name.toStdString();
        taken.insert(keys, name);
    };
    for (const auto *action : window.findChildren<QAction *>()) {
        for (const QKeySequence &keys : action->shortcuts()) {
            if (action->shortcutContext() != Qt::WidgetShortcut)
                take(keys, action->text());
        }
    }
    for (const auto *shortcut : window.findChildren<QShortcut *>()) {
        if (shortcut->context() != Qt::WidgetShortcut)
            take(shortcut->key(), u"shortcut"_s);
    }
    EXPECT_TRUE(taken.contains(u"Ctrl+K"_s));
    EXPECT_TRUE(taken.contains(u"Ctrl+F"_s)) << "those of the document are there";

    QTest::keyClick(&window, Qt::Key_F1);
    const auto *list = window.findChild<QTreeWidget *>();
    ASSERT_TRUE(list);
    const auto isListed = [list](const QString &name) {
        return !list->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).isEmpty();
    };
    EXPECT_TRUE(isListed(u"Look Up"_s));
    EXPECT_TRUE(isListed(u"Find"_s));
    EXPECT_TRUE(isListed(u"Copy"_s));
}

TEST_F(ReaderWindowTest, LeadsRoundItsParts)
{
    openAll();
    window.lookUp(u"2"_s);
    window.lookupField().setFocus();
    const auto isIn = [this](const QWidget &part) {
        return part.isAncestorOf(window.focusWidget()) || &part == window.focusWidget();
    };
    const auto &parts = detail()->childViewControllers();
    int visited = 0;
    bool wasInSidebar = false;
    bool wasInDocument = false;
    do {
        QTest::keyClick(window.focusWidget(), Qt::Key_F6);
        wasInSidebar = wasInSidebar || isIn(*parts.front()->view());
        wasInDocument = wasInDocument || isIn(*parts.back()->view());
    } while (!isIn(window.lookupField()) && ++visited < 10);
    EXPECT_TRUE(wasInSidebar && wasInDocument);
    EXPECT_TRUE(isIn(window.lookupField()));
    QTest::keyClick(window.focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(isIn(*parts.back()->view()));
}

TEST_F(ReaderWindowTest, ShowsTheNextDocumentAsTheLast)
{
    openAll();
    window.lookUp(u"2"_s);
    const auto command = [](const ReaderWindow &shown, const QString &name) {
        return shown.detailPane().controller()->view()->findChild<QAction *>(name);
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return command(window, u"fitPage"_s)->isEnabled(); }));
    command(window, u"fitPage"_s)->trigger();
    command(window, u"invertedPages"_s)->trigger();
    ReaderWindow next(manager);
    next.show();
    next.lookUp(u"1"_s);
    EXPECT_TRUE(command(next, u"invertedPages"_s)->isChecked());
    EXPECT_TRUE(QTest::qWaitFor([&] { return command(next, u"fitPage"_s)->isChecked(); }));
}

TEST_F(ReaderWindowTest, AsksForFilesWhereTheLastOnesWere)
{
    openMaps();
    window.library().chooseFiles();
    auto *dialog = window.findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(document.toLocalFile());
    static_cast<QDialog *>(dialog)->accept();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window.library().chooseFiles();
    dialog = window.findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->directory(), QDir(files.path()));
}

TEST_F(ReaderWindowTest, NamesWhatIsWrongWithAMap)
{
    files.write(u"maps/zebra.xml"_s, "<spec");
    openMaps();
    EXPECT_THAT(complaint().toStdString(), HasSubstr("zebra.xml"));
    EXPECT_EQ(manager.specifications().size(), 1U) << "the maps before it stay";
    window.lookUp(u"2"_s);
    EXPECT_EQ(summaryLabel(), u"2"_s);
}

} // namespace Tavrin::Testing
