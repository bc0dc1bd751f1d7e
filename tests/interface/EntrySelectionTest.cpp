// SPDX-License-Identifier: Apache-2.0
// Choosing an entry in the sheet, and what the token field makes of the choice.
#include <QComboBox>
#include <QLabel>
#include <QMenu>

#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>

#include "CitingFixture.h"

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

    void load(const std::shared_ptr<SpecificationEntry> &entry = nullptr)
    {
        controller = std::make_shared<Controller>(entry);
        controller->view()->resize(800, 600);
        controller->view()->show();
        controller->setDelegate(listener);
    }
    const auto &detail() const { return controller->currentDetailController(); }
    template <class T>
    static T &part(QWidget &view, const QString &name)
    {
        return *view.findChild<T *>(name);
    }
    QComboBox &popUp() const
    {
        return part<QComboBox>(*controller->view(), u"specificationPopUp"_s);
    }
    void choose(int index) const
    {
        popUp().setCurrentIndex(index);
        Q_EMIT popUp().activated(index);
    }
    QString label() const
    {
        return part<QLabel>(*controller->view(), u"selectedEntryLabel"_s).text();
    }
    QPushButton &button(const QString &name) const { return button(*controller->view(), name); }
    static QPushButton &button(QWidget &view, const QString &name)
    {
        return part<QPushButton>(view, name);
    }
    /// As the detail view tells of what the reader chose.
    void pick(const QString &entryLabel) const
    {
        const auto &view = *detail();
        view.delegate()->specDetailViewController(*detail(),
                                                  view.specification()->entry(entryLabel));
    }

    std::shared_ptr<Controller> controller;
    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

} // namespace

TEST_F(EntrySelectionTest, ShowsThePrimarySpecificationAndWhatIsChosenInIt)
{
    addImported(u"first"_s);
    addSpecification(u"second"_s);
    load();
    ASSERT_TRUE(detail());
    EXPECT_EQ(detail()->specification(), specification(u"first"_s));
    EXPECT_TRUE(detail()->allowsEntrySelection());
    EXPECT_FALSE(controller->controlsHidden());
    EXPECT_FALSE(controller->selectButtonEnabled());
    EXPECT_FALSE(button(u"selectButton"_s).isEnabled());
    EXPECT_EQ(label(), u"No selected entry"_s);
    EXPECT_THAT(controller->availableSpecifications(), ElementsAre(specification(u"first"_s)));
    pick(u"1"_s);
    EXPECT_EQ(label(), u"Selected entry: Section 1 Scope"_s);
    EXPECT_TRUE(button(u"selectButton"_s).isEnabled());
    button(u"selectButton"_s).click();
    EXPECT_THAT(listener->results, ElementsAre(1));
}

TEST_F(EntrySelectionTest, BeginsWithTheGivenEntryAndChangesSpecification)
{
    for (const QString &word : {u"first"_s, u"second"_s}) {
        addImported(word);
    }
    const auto entry = specification(u"second"_s)->entry(u"1"_s);
    load(entry);
    EXPECT_EQ(controller->selectedSpecification(), specification(u"second"_s));
    EXPECT_EQ(detail()->entry(), entry);
    EXPECT_EQ(popUp().currentText(), u"The second"_s);
    EXPECT_TRUE(controller->selectButtonEnabled());
    const auto former = detail();
    choose(1);
    EXPECT_EQ(detail(), former) << "it is there already";
    EXPECT_EQ(controller->selectedEntry(), entry);
    choose(0);
    EXPECT_EQ(detail()->specification(), specification(u"first"_s));
    EXPECT_EQ(controller->selectedEntry(), nullptr);
    EXPECT_EQ(former->delegate(), nullptr);
    EXPECT_EQ(label(), u"No selected entry"_s);
    button(u"cancelButton"_s).click();
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
    load();
    EXPECT_EQ(popUp().itemText(0), u"Same (R1)"_s);
    EXPECT_EQ(popUp().itemText(1), u"Same (R2)"_s);
}

TEST_F(EntrySelectionTest, PromptsForAMissingFileAndChangesWhenItArrives)
{
    addSpecification(u"first"_s);
    load();
    EXPECT_EQ(detail(), nullptr);
    EXPECT_TRUE(controller->controlsHidden());
    EXPECT_FALSE(button(u"selectButton"_s).isVisible());
    EXPECT_FALSE(button(u"cancelButton"_s).isVisible());
    EXPECT_FALSE(popUp().isVisible());
    QPushButton &prompt = button(u"button"_s);
    EXPECT_EQ(prompt.text(), u"Import Specs"_s);
    // The prompt goes while its own button is at work.
    manager.setAuxiliaryFileBrowserDisplayBlock(
        [this](const ViewControllerPtr &) { import(u"first"_s); });
    QTest::mouseClick(&prompt, Qt::LeftButton);
    ASSERT_TRUE(detail());
    EXPECT_FALSE(controller->controlsHidden());
    EXPECT_TRUE(button(u"cancelButton"_s).isVisible());
    EXPECT_EQ(popUp().currentText(), u"The first"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(controller->view()->findChild<QPushButton *>(u"button"_s), nullptr);
}

TEST_F(EntrySelectionTest, PromptsForASpecificationWithoutDetailView)
{
    addPlain(u"plain"_s, u"1"_s, {u"Scope"_s});
    load();
    EXPECT_TRUE(controller->controlsHidden());
    EXPECT_TRUE(popUp().isVisible()) << "it counts as available";
    addImported(u"first"_s);
    EXPECT_EQ(popUp().count(), 2);
    choose(1);
    EXPECT_FALSE(controller->controlsHidden());
}

TEST_F(EntrySelectionTest, GoesToAnotherSpecificationWhenTheFileIsTakenAway)
{
    addSpecification(u"first"_s);
    const QUrl first = import(u"first"_s);
    addSpecification(u"second"_s);
    const QUrl second = import(u"second"_s);
    load(specification(u"first"_s)->entry(u"1"_s));
    manager.unregisterAuxiliaryFile(first);
    ASSERT_TRUE(detail());
    EXPECT_EQ(detail()->specification(), specification(u"second"_s));
    EXPECT_EQ(controller->selectedEntry(), nullptr);
    manager.unregisterAuxiliaryFile(second);
    EXPECT_TRUE(controller->controlsHidden());
    EXPECT_EQ(detail(), nullptr);
}

// With the token field

TEST_F(EntrySelectionTest, InsertsWhatTheReaderClicksOnAndGivesTheFocusBack)
{
    addImported(u"first"_s);
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

TEST_F(EntrySelectionTest, ReplacesATokenByWhatIsChosen)
{
    addImported(u"first"_s);
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
        controller = std::make_shared<Controller>();
        controller->setDelegate(listener);
        const QPointer<Sheet> host = new Sheet(*window);
        host->setAccessoryView(std::unique_ptr<QWidget>(controller->view()));
        host->begin();
        QCoreApplication::processEvents();
        if (byEscape)
            QTest::keyClick(host, Qt::Key_Escape);
        else
            button(u"cancelButton"_s).click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(host.isNull());
    }
    EXPECT_THAT(listener->results, ElementsAre(0, 0));
}
