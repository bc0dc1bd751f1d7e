// SPDX-License-Identifier: Apache-2.0
// References to specification entries as tokens.
#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QMenu>

#include <thread>

#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <Tavrin/interface/toolkit/Popover.h>

#include "CitingFixture.h"

namespace
{

class SpecEntryTokenFieldTest : public CitingFixture
{
protected:
    QStringList shown() const
    {
        QStringList result;
        for (const Token &token : field->editor().content().tokens())
            result += token.displayString;
        return result;
    }
    bool hasMenu(const QString &reference) const { return delegate->hasMenu(reference); }
    QStringList completions(const QString &text) const { return delegate->completions(text).texts; }
    static QStringList labelsOf(const std::vector<std::shared_ptr<SpecificationEntry>> &entries)
    {
        QStringList result;
        for (const auto &entry : entries)
            result += entry->label();
        return result;
    }
};

} // namespace

TEST_F(SpecEntryTokenFieldTest, CompletesWhatIsTypedToSpecURLs)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s, u"Scope of tests"_s, u"Terms"_s});
    QTest::keyClicks(field, u"scope"_s);
    auto &completer = field->completer();
    ASSERT_TRUE(QTest::qWaitFor([&completer] { return completer.isShown(); }));
    EXPECT_FALSE(completer.list()->currentIndex().isValid());
    EXPECT_EQ(completer.list()->model()->rowCount(), 2);
    QTest::keyClick(completer.list(), Qt::Key_Down);
    QTest::keyClick(completer.list(), Qt::Key_Return);
    EXPECT_THAT(value(), ElementsAre(u"spec://1/A/4"_s));
    EXPECT_THAT(shown(), ElementsAre(u"Section 1: Scope (R4)"_s));
    delegate->setConstrainsURLsToSourceSpec(false);
    EXPECT_EQ(delegate->representedObject(u"Section 3: Terms (R4)"_s), u"spec://3/A/*"_s);
    EXPECT_EQ(delegate->completions(u"terms"_s).selectedIndex, -1);
}

TEST_F(SpecEntryTokenFieldTest, WritesNoBracketsForAnEmptyRevision)
{
    addPlain(u"A"_s, QString(), {u"Scope"_s});
    EXPECT_THAT(completions(u"scope"_s), ElementsAre(u"Section 1: Scope"_s));
    EXPECT_EQ(delegate->displayString(u"1"_s), u"Section 1: Scope"_s);
    EXPECT_EQ(delegate->editingString(u"1"_s), u"Section 1: Scope"_s);
    EXPECT_TRUE(delegate->displayString(7).isNull());
}

TEST_F(SpecEntryTokenFieldTest, KeepsWhatNobodyKnows)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s});
    QTest::keyClicks(field, u"see the annex"_s);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_THAT(value(), ElementsAre(u"see the annex"_s));
    EXPECT_FALSE(hasMenu(u"see the annex"_s));
    EXPECT_TRUE(hasMenu(u"spec://1/A/4"_s));
    EXPECT_FALSE(delegate->hasMenu(7));
    field->setObjectValue(QStringList{u"spec://1/A/4"_s, u"see the annex"_s, u"1"_s});
    EXPECT_THAT(labelsOf(delegate->selectedEntries()), ElementsAre(u"1"_s, u"1"_s));
    manager.setDetailViewControllerDisplayBlock({});
    EXPECT_FALSE(hasMenu(u"spec://1/A/4"_s)) << "no host that shows details";
}

TEST_F(SpecEntryTokenFieldTest, FollowsWhatIsLoaded)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s});
    field->setObjectValue(QStringList{u"spec://1/A/4"_s});
    EXPECT_THAT(shown(), ElementsAre(u"Section 1: Scope (R4)"_s));
    manager.setSpecifications({});
    addSpecification(u"file"_s);
    EXPECT_THAT(shown(), ElementsAre(u"Section 1: Scope (R4)"_s)) << "nobody was told";
    import(u"file"_s);
    EXPECT_THAT(shown(), ElementsAre(u"spec://1/A/4"_s));
    EXPECT_FALSE(hasMenu(u"spec://1/A/4"_s));
    EXPECT_THAT(value(), ElementsAre(u"spec://1/A/4"_s));
}

TEST_F(SpecEntryTokenFieldTest, SearchesTheFirstSpecificationThatHasItsFiles)
{
    EXPECT_THAT(completions(u"scope"_s), IsEmpty()) << "none at all";
    addSpecification(u"first"_s);
    EXPECT_THAT(completions(u"scope"_s), ElementsAre(u"Section 1: Scope (R1)"_s))
        << "the only one, though its file is missing";
    addSpecification(u"second"_s);
    addPlain(u"third"_s, u"3"_s, {u"Scope"_s});
    EXPECT_EQ(manager.primarySpecification(), specification(u"first"_s));
    EXPECT_THAT(completions(u"scope"_s), ElementsAre(u"Section 1: Scope (R3)"_s));
    import(u"second"_s);
    EXPECT_THAT(completions(u"scope"_s), ElementsAre(u"Section 1: Scope (R1)"_s));
    manager.setPrimarySpecification(specification(u"third"_s));
    EXPECT_THAT(completions(u"scope"_s), ElementsAre(u"Section 1: Scope (R3)"_s));
}

// Initial suggestions

TEST_F(SpecEntryTokenFieldTest, OffersInitialSuggestionsThatResolve)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s, u"Terms"_s});
    QElapsedTimer timer;
    timer.start();
    EXPECT_THAT(completions(QString()), IsEmpty());
    EXPECT_LT(timer.elapsed(), 200) << "at once";
    delegate->setInitialSuggestions(QStringList{u"2"_s, u"gone"_s, u"spec://1/A/4"_s});
    EXPECT_THAT(completions(QString()),
                ElementsAre(u"Section 2: Terms (R4)"_s, u"Section 1: Scope (R4)"_s));
    manager.setSpecifications({});
    EXPECT_THAT(completions(QString()), IsEmpty());
}

TEST_F(SpecEntryTokenFieldTest, WaitsForInitialSuggestionsNoLongerThanAsked)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s});
    delegate->setWaitForInitialSuggestions(true);
    QElapsedTimer timer;
    timer.start();
    EXPECT_THAT(completions(QString()), IsEmpty());
    EXPECT_GE(timer.elapsed(), SpecEntryTokenFieldDelegate::initialSuggestionTimeout);
    {
        std::jthread host([this] {
            QThread::msleep(30);
            delegate->setInitialSuggestions(QStringList{u"1"_s});
        });
        timer.restart();
        EXPECT_THAT(completions(QString()), ElementsAre(u"Section 1: Scope (R4)"_s));
        EXPECT_LT(timer.elapsed(), 900);
    }
    delegate->setInitialSuggestions({});
    {
        std::jthread host([this] {
            QThread::msleep(30);
            delegate->setWaitForInitialSuggestions(false);
        });
        timer.restart();
        EXPECT_THAT(completions(QString()), IsEmpty());
        EXPECT_LT(timer.elapsed(), 900);
        EXPECT_GE(timer.elapsed(), 25);
    }
}

// Operations

TEST_F(SpecEntryTokenFieldTest, ChangesTheListOfTheField)
{
    delegate->insert(u"a"_s);
    delegate->insert(u"b"_s);
    delegate->insert(u"a"_s);
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"b"_s, u"a"_s));
    delegate->replaceToken(1, u"c"_s);
    delegate->replaceToken(3, u"beyond"_s);
    delegate->replaceToken(-1, u"beyond"_s);
    delegate->replaceToken(u"c"_s, u"d"_s);
    delegate->replaceToken(u"unknown"_s, u"e"_s);
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"d"_s, u"a"_s));
    delegate->deleteToken(u"a"_s);
    delegate->deleteToken(u"unknown"_s);
    EXPECT_THAT(value(), ElementsAre(u"d"_s, u"a"_s));
    field->undo();
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"d"_s, u"a"_s));
}

TEST_F(SpecEntryTokenFieldTest, LogsAndLeavesAValueThatItCannotRead)
{
    field->setObjectValue(QVariantList{u"a"_s, 7});
    LogCapture log("tavrin.interface");
    delegate->insert(u"b"_s);
    delegate->replaceToken(0, u"b"_s);
    delegate->replaceToken(u"a"_s, u"b"_s);
    delegate->deleteToken(u"a"_s);
    const QStringList lines = log.takeMessages();
    ASSERT_EQ(lines.size(), 4);
    for (const QString &line : lines) {
        EXPECT_TRUE(line.startsWith(u"Couldn't get token field's object value: "_s))
            << qPrintable(line);
        EXPECT_TRUE(line.contains(u'7'));
    }
    EXPECT_EQ(field->objectValue().toList(), QVariantList({u"a"_s, 7}));
    EXPECT_THAT(delegate->selectedEntries(), IsEmpty());
    delegate->setTokenField(nullptr);
    delegate->insert(u"b"_s);
    EXPECT_EQ(log.takeMessages().size(), 1) << "no field";
}

TEST_F(SpecEntryTokenFieldTest, SeparatesTokensAsTheHostWants)
{
    field->editor().insertTypedText(u"a\u2028b,c\n"_s);
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"b,c"_s)) << "every kind of line end";
    const auto plain = SpecEntryTokenFieldDelegate::make();
    EXPECT_EQ(plain->tokenSeparators(), u"\n"_s);
    plain->setTokenSeparators(u",;"_s);
    plain->setTokenField(field);
    EXPECT_EQ(field->delegate(), plain);
    EXPECT_EQ(field->tokenizingCharacters(), u",;"_s);
    plain->setTokenField(nullptr);
    EXPECT_EQ(field->delegate(), nullptr);
}

TEST_F(SpecEntryTokenFieldTest, ReadsThousandsOfPastedReferencesInOneGo)
{
    QStringList titles;
    for (int i = 0; i < 2'000; ++i)
        titles += u"Title %1"_s.arg(i);
    addPlain(u"A"_s, u"4"_s, titles);
    QStringList lines;
    for (int i = 0; i < 10'000; ++i)
        lines += u"Section %1: Title %2 (R4)"_s.arg(i % 2'000 + 1).arg(i % 2'000);
    lines += u"unknown"_s;
    QElapsedTimer timer;
    timer.start();
    field->editor().insertPastedText(lines.join(u'\n'));
    RecordProperty("pasted", static_cast<int>(timer.elapsed()));
    EXPECT_LT(timer.elapsed(), 10'000);
    EXPECT_EQ(value().size(), 10'001);
    EXPECT_EQ(value().at(2'001), u"spec://2/A/4"_s);
    EXPECT_EQ(value().last(), u"unknown"_s);
}

// Menu

TEST_F(SpecEntryTokenFieldTest, HasOneMenuForAllTokens)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s, u"Terms"_s});
    field->setObjectValue(QStringList{u"1"_s, u"2"_s});
    QMenu *menu = delegate->menu(u"1"_s);
    EXPECT_EQ(menu, delegate->menu(u"2"_s));
    QStringList titles;
    for (const QAction *action : menu->actions()) {
        titles += action->text();
        EXPECT_TRUE(action->shortcut().isEmpty());
    }
    EXPECT_EQ(titles, QStringList({u"Edit…"_s, u"Preview"_s, u"Delete"_s}));
    field->showTokenMenu(1);
    EXPECT_TRUE(menu->isVisible());
    menu->actions().at(2)->trigger();
    EXPECT_THAT(value(), ElementsAre(u"1"_s));
    menu->hide();
    field->undo();
    EXPECT_THAT(value(), ElementsAre(u"1"_s, u"2"_s));
}

TEST_F(SpecEntryTokenFieldTest, PreviewsAReferenceBelowTheField)
{
    addPlain(u"A"_s, u"4"_s, {u"Scope"_s});
    field->setObjectValue(QStringList{u"1"_s});
    delegate->menu(u"1"_s)->actions().at(1)->trigger();
    const QPointer<Popover> popover = window->findChild<Popover *>();
    ASSERT_TRUE(popover);
    const auto *summary = dynamic_cast<SpecEntrySummaryViewController *>(popover->viewController());
    ASSERT_TRUE(summary);
    EXPECT_GE(popover->viewController()->view()->mapTo(window.get(), QPoint()).y(),
              field->geometry().bottom());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(popover.isNull());
}
