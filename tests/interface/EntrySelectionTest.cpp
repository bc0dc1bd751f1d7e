// SPDX-License-Identifier: Apache-2.0
// Choosing an entry in the sheet, and what the token field makes of the choice.
#include <QComboBox>
#include <QLabel>
#include <QMenu>

#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>

#include "CitingFixture.h"

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace
{

class Listener : public SpecEntrySelectionViewControllerDelegate
{
public:
    void specEntrySelectionViewController(SpecEntrySelectionViewController &, int result) override
    {
        results.push_back(result);
    }
    std::vector<int> results;
};

class EntrySelectionTest : public CitingFixture
{
protected:
    using Controller = SpecEntrySelectionViewController;

    std::shared_ptr<Controller> load(const std::shared_ptr<SpecificationEntry> &entry = nullptr)
    {
        auto controller = std::make_shared<Controller>(entry);
        controller->view()->resize(800, 600);
        controller->view()->show();
        controller->setDelegate(listener);
        return controller;
    }
    template <class T>
    static T &part(QWidget &view, const QString &name)
    {
        return *view.findChild<T *>(name);
    }
    static QComboBox &popUp(Controller &controller)
    {
        return part<QComboBox>(*controller.view(), u"specificationPopUp"_s);
    }
    static void choose(QComboBox &popUp, int index)
    {
        popUp.setCurrentIndex(index);
        Q_EMIT popUp.activated(index);
    }
    static QString label(Controller &controller)
    {
        return part<QLabel>(*controller.view(), u"selectedEntryLabel"_s).text();
    }
    static QPushButton &button(QWidget &view, const QString &name)
    {
        return part<QPushButton>(view, name);
    }
    /// As the detail view tells of what the reader chose.
    static void pick(Controller &controller, const QString &entryLabel)
    {
        const auto &detail = controller.currentDetailController();
        detail->delegate()->specDetailViewController(*detail,
                                                     detail->specification()->entry(entryLabel));
    }

    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

} // namespace

TEST_F(EntrySelectionTest, ShowsThePrimarySpecificationAndWhatIsChosenInIt)
{
    addSpecification(u"first"_s);
    import(u"first"_s);
    addSpecification(u"second"_s);
    const auto controller = load();
    ASSERT_TRUE(controller->currentDetailController());
    EXPECT_EQ(controller->currentDetailController()->specification(), specification(u"first"_s));
    EXPECT_TRUE(controller->currentDetailController()->allowsEntrySelection());
    EXPECT_FALSE(controller->controlsHidden());
    EXPECT_FALSE(controller->selectButtonEnabled());
    EXPECT_FALSE(button(*controller->view(), u"selectButton"_s).isEnabled());
    EXPECT_EQ(label(*controller), u"No selected entry"_s);
    EXPECT_THAT(controller->availableSpecifications(), ElementsAre(specification(u"first"_s)));
    pick(*controller, u"1"_s);
    EXPECT_EQ(label(*controller), u"Selected entry: Section 1 Scope"_s);
    EXPECT_TRUE(button(*controller->view(), u"selectButton"_s).isEnabled());
    button(*controller->view(), u"selectButton"_s).click();
    EXPECT_THAT(listener->results, ElementsAre(1));
}

TEST_F(EntrySelectionTest, BeginsWithTheGivenEntryAndChangesSpecification)
{
    for (const QString &word : {u"first"_s, u"second"_s}) {
        addSpecification(word);
        import(word);
    }
    const auto entry = specification(u"second"_s)->entry(u"1"_s);
    const auto controller = load(entry);
    EXPECT_EQ(controller->selectedSpecification(), specification(u"second"_s));
    EXPECT_EQ(controller->currentDetailController()->entry(), entry);
    EXPECT_EQ(popUp(*controller).currentText(), u"The second"_s);
    EXPECT_TRUE(controller->selectButtonEnabled());
    const auto former = controller->currentDetailController();
    choose(popUp(*controller), 1);
    EXPECT_EQ(controller->currentDetailController(), former) << "it is there already";
    EXPECT_EQ(controller->selectedEntry(), entry);
    choose(popUp(*controller), 0);
    EXPECT_EQ(controller->currentDetailController()->specification(), specification(u"first"_s));
    EXPECT_EQ(controller->selectedEntry(), nullptr);
    EXPECT_EQ(former->delegate(), nullptr);
    EXPECT_EQ(label(*controller), u"No selected entry"_s);
    button(*controller->view(), u"cancelButton"_s).click();
    EXPECT_THAT(listener->results, ElementsAre(0));
}

TEST_F(EntrySelectionTest, TellsApartSpecificationsOfOneTitle)
{
    for (const QString &revision : {u"1"_s, u"2"_s}) {
        MapBuilder map(u"S"_s + revision, revision);
        map.title(u"Same"_s).entry({.label = u"1"_s, .index = u"1"_s, .name = u"Scope"_s});
        manager.registerSpecification(map.write(files, u"maps/%1.xml"_s.arg(revision)),
                                      files.url(u"spec.dtd"_s));
    }
    const auto controller = load();
    EXPECT_EQ(popUp(*controller).itemText(0), u"Same (R1)"_s);
    EXPECT_EQ(popUp(*controller).itemText(1), u"Same (R2)"_s);
}

TEST_F(EntrySelectionTest, PromptsForAMissingFileAndChangesWhenItArrives)
{
    addSpecification(u"first"_s);
    const auto controller = load();
    EXPECT_EQ(controller->currentDetailController(), nullptr);
    EXPECT_TRUE(controller->controlsHidden());
    EXPECT_FALSE(button(*controller->view(), u"selectButton"_s).isVisible());
    EXPECT_FALSE(button(*controller->view(), u"cancelButton"_s).isVisible());
    EXPECT_FALSE(popUp(*controller).isVisible());
    QPushButton &prompt = button(*controller->view(), u"button"_s);
    EXPECT_EQ(prompt.text(), u"Import Specs"_s);
    // The prompt goes while its own button is at work.
    manager.setAuxiliaryFileBrowserDisplayBlock(
        [this](const ViewControllerPtr &) { import(u"first"_s); });
    QTest::mouseClick(&prompt, Qt::LeftButton);
    ASSERT_TRUE(controller->currentDetailController());
    EXPECT_FALSE(controller->controlsHidden());
    EXPECT_TRUE(button(*controller->view(), u"cancelButton"_s).isVisible());
    EXPECT_EQ(popUp(*controller).currentText(), u"The first"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(controller->view()->findChild<QPushButton *>(u"button"_s), nullptr);
}

TEST_F(EntrySelectionTest, PromptsForASpecificationWithoutDetailView)
{
    addPlain(u"plain"_s, u"1"_s, {u"Scope"_s});
    const auto controller = load();
    EXPECT_TRUE(controller->controlsHidden());
    EXPECT_TRUE(popUp(*controller).isVisible()) << "it counts as available";
    addSpecification(u"first"_s);
    import(u"first"_s);
    EXPECT_EQ(popUp(*controller).count(), 2);
    choose(popUp(*controller), 1);
    EXPECT_FALSE(controller->controlsHidden());
}

TEST_F(EntrySelectionTest, GoesToAnotherSpecificationWhenTheFileIsTakenAway)
{
    addSpecification(u"first"_s);
    const QUrl first = import(u"first"_s);
    addSpecification(u"second"_s);
    const QUrl second = import(u"second"_s);
    const auto controller = load(specification(u"first"_s)->entry(u"1"_s));
    manager.unregisterAuxiliaryFile(first);
    ASSERT_TRUE(controller->currentDetailController());
    EXPECT_EQ(controller->currentDetailController()->specification(), specification(u"second"_s));
    EXPECT_EQ(controller->selectedEntry(), nullptr);
    manager.unregisterAuxiliaryFile(second);
    EXPECT_TRUE(controller->controlsHidden());
    EXPECT_EQ(controller->currentDetailController(), nullptr);
}

// With the token field

TEST_F(EntrySelectionTest, InsertsWhatTheReaderClicksOnAndGivesTheFocusBack)
{
    addSpecification(u"first"_s);
    import(u"first"_s);
    field->setObjectValue(QStringList{u"a"_s});
    delegate->insertTokenFromSpecEntryBrowser();
    ASSERT_TRUE(sheet());
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    delegate->insertTokenFromSpecEntryBrowser();
    EXPECT_EQ(window->findChildren<Sheet *>().size(), 1) << "one at a time";
    QPushButton &select = button(*sheet(), u"selectButton"_s);
    EXPECT_FALSE(select.isEnabled());
    auto &view = *sheet()->findChild<EntryHighlightPDFView *>();
    ASSERT_TRUE(QTest::qWaitFor([&view] { return view.isFullyDrawn(); }));
    const QPointF heading = view.convertFromPage({80, 503}, *view.document()->page(0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, heading.toPoint());
    ASSERT_TRUE(QTest::qWaitFor([&select] { return select.isEnabled(); }));
    select.click();
    EXPECT_EQ(delegate->specBrowserWindow(), nullptr);
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"spec://1/first/1"_s));
    EXPECT_EQ(window->focusWidget(), field);
}

TEST_F(EntrySelectionTest, InsertsNothingWhenCancelled)
{
    addSpecification(u"first"_s);
    import(u"first"_s);
    field->setObjectValue(QStringList{u"a"_s});
    delegate->insertTokenFromSpecEntryBrowser();
    const QPointer<Sheet> shown = sheet();
    button(*shown, u"cancelButton"_s).click();
    EXPECT_EQ(delegate->specBrowserWindow(), nullptr);
    EXPECT_THAT(value(), ElementsAre(u"a"_s));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(shown.isNull());
}

TEST_F(EntrySelectionTest, ReplacesATokenByWhatIsChosen)
{
    addSpecification(u"first"_s);
    import(u"first"_s);
    field->setObjectValue(QStringList{u"a"_s, u"1"_s});
    delegate->menu(u"1"_s)->actions().at(0)->trigger();
    ASSERT_TRUE(sheet());
    QPushButton &select = button(*sheet(), u"selectButton"_s);
    EXPECT_TRUE(select.isEnabled()) << "the token's entry is chosen already";
    select.click();
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"spec://1/first/1"_s));
    delegate->menu(u"spec://1/first/1"_s)->actions().at(0)->trigger();
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_EQ(delegate->specBrowserWindow(), nullptr);
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"spec://1/first/1"_s));
    window->hide();
    delegate->insertTokenFromSpecEntryBrowser();
    EXPECT_EQ(delegate->specBrowserWindow(), nullptr) << "no window to be over";
}

TEST_F(EntrySelectionTest, TellsItsDelegateOnceWhicheverWayASheetEnds)
{
    addSpecification(u"first"_s);
    for (const bool byEscape : {true, false}) {
        if (!byEscape)
            import(u"first"_s);
        const auto controller = std::make_shared<Controller>();
        controller->setDelegate(listener);
        const QPointer<Sheet> host = new Sheet(*window);
        host->setAccessoryView(std::unique_ptr<QWidget>(controller->view()));
        host->begin();
        QCoreApplication::processEvents();
        if (byEscape)
            QTest::keyClick(host, Qt::Key_Escape);
        else
            button(*controller->view(), u"cancelButton"_s).click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(host.isNull());
    }
    EXPECT_THAT(listener->results, ElementsAre(0, 0));
}
