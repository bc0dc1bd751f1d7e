// SPDX-License-Identifier: Apache-2.0
// The token field by itself: typing, completion, keys and history.
#include <QDialog>

#include "TokenFieldFixture.h"

namespace
{

using TokenFieldTest = TokenFieldFixture;

} // namespace

TEST_F(TokenFieldTest, MakesTokensOfTextOnReturnAndOnTokenizingCharacters)
{
    field->setTokenizingCharacters(u",;"_s);
    QSignalSpy finished(field, &TokenField::editingFinished);
    type(u" Oslo, nowhere;,; "_s);
    EXPECT_THAT(value(), ElementsAre(city(2), u"nowhere"_s));
    EXPECT_EQ(shown(), QStringList({u"<Oslo>"_s, u"nowhere"_s}));
    type(u"Paris"_s);
    EXPECT_EQ(field->tokenCount(), 2);
    EXPECT_THAT(value(), ElementsAre(city(2), u"nowhere"_s, city(0))) << "typed text counts";
    press(Qt::Key_Return);
    EXPECT_EQ(field->tokenCount(), 3);
    EXPECT_EQ(finished.count(), 1);
    field->setObjectValue(QStringList{u"a"_s, u"b"_s});
    EXPECT_THAT(value(), ElementsAre(u"a"_s, u"b"_s));
    field->setObjectValue(42);
    EXPECT_THAT(value(), ElementsAre(42));
    field->setObjectValue({});
    EXPECT_THAT(value(), IsEmpty());
}

TEST_F(TokenFieldTest, ConfirmsTextWhenTheFocusLeavesButNotForMenusAndWindows)
{
    type(u"Oslo"_s);
    QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(field, &toMenu);
    QFocusEvent toWindow(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(field, &toWindow);
    EXPECT_EQ(field->tokenCount(), 0);
    QTest::qWait(1);
    field->completer().hide();
    QTest::keyClick(field, Qt::Key_Tab);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_EQ(field->tokenCount(), 1);
}

TEST_F(TokenFieldTest, LeavesReturnToTheWindowWhenThereIsNothingToConfirm)
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *inner = new TokenField(&dialog);
    auto *ok = new QPushButton(u"OK"_s, &dialog);
    ok->setDefault(true);
    layout->addWidget(inner);
    layout->addWidget(ok);
    dialog.show();
    inner->setFocus();
    QSignalSpy clicked(ok, &QPushButton::clicked);
    QTest::keyClicks(inner, u"text"_s);
    QTest::keyClick(inner, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 0);
    QTest::keyClick(inner, Qt::Key_Return);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(inner->tokenCount(), 1);
}

// Completion

TEST_F(TokenFieldTest, OffersCompletionsWhileTypingWithNonePreselected)
{
    type(u"pa"_s);
    ASSERT_TRUE(waitForList());
    EXPECT_EQ(list()->model()->rowCount(), 2);
    EXPECT_FALSE(list()->currentIndex().isValid());
    EXPECT_TRUE(field->hasFocus()) << "typing goes on";
    QTest::keyClick(list(), Qt::Key_D);
    EXPECT_EQ(text(), u"pad"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return list()->model()->rowCount() == 1; }));
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_TRUE(list()->currentIndex().isValid());
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_FALSE(field->completer().isShown());
    EXPECT_THAT(value(), ElementsAre(city(1)));
    EXPECT_EQ(field->tokenCount(), 1);
}

TEST_F(TokenFieldTest, TakesAChoiceByTabAndByTheMouseAndNoneByEscape)
{
    type(u"pa"_s);
    ASSERT_TRUE(waitForList());
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Tab);
    EXPECT_THAT(value(), ElementsAre(city(0)));
    EXPECT_TRUE(field->hasFocus());
    type(u"o"_s);
    ASSERT_TRUE(waitForList());
    QTest::keyClick(list(), Qt::Key_Escape);
    EXPECT_FALSE(field->completer().isShown());
    EXPECT_EQ(field->editor().completionPrefix(), u"o"_s);
    type(u"s"_s);
    ASSERT_TRUE(waitForList());
    const QRect row = list()->visualRect(list()->model()->index(0, 0));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_THAT(value(), ElementsAre(city(0), city(2)));
}

TEST_F(TokenFieldTest, OffersWithoutTextOnlyWhenAsked)
{
    type(u"x"_s);
    press(Qt::Key_Backspace);
    QTest::qWait(20);
    EXPECT_FALSE(cities->asked.contains(QString()));
    EXPECT_FALSE(field->completer().isShown());
    press(Qt::Key_Down);
    EXPECT_TRUE(field->completer().isShown());
    EXPECT_EQ(list()->model()->rowCount(), 3);
    field->completer().hide();
    cities->selectedIndex = 1;
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(list()->currentIndex().row(), 1);
    cities->names.clear();
    field->complete();
    EXPECT_FALSE(field->completer().isShown());
    // Return with nothing chosen confirms what was typed.
    cities->names = {u"Paris"_s};
    cities->selectedIndex = -1;
    type(u"par"_s);
    ASSERT_TRUE(waitForList());
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_FALSE(field->completer().isShown());
    EXPECT_THAT(value(), ElementsAre(u"par"_s));
}

// Keys and selection

TEST_F(TokenFieldTest, ArrowKeysSelectATokenOnTheWayAcross)
{
    field->setObjectValue(QVariantList{city(0), city(1)});
    press(Qt::Key_Home);
    press(Qt::Key_Right);
    EXPECT_EQ(field->editor().selectedToken(), 0);
    press(Qt::Key_Right);
    EXPECT_FALSE(field->editor().hasSelection());
    EXPECT_EQ(field->editor().cursor(), 1);
    press(Qt::Key_Left);
    EXPECT_EQ(field->editor().selectedToken(), 0);
    press(Qt::Key_Left);
    EXPECT_EQ(field->editor().cursor(), 0);
    press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(field->editor().selection(), (TextRange{0, 2}));
    press(Qt::Key_Delete);
    EXPECT_THAT(value(), IsEmpty());
    field->setLayoutDirection(Qt::RightToLeft);
    field->setObjectValue(QVariantList{city(0), city(1)});
    EXPECT_GT(field->tokenRect(0).left(), field->tokenRect(1).right());
    press(Qt::Key_Right);
    EXPECT_EQ(field->editor().selectedToken(), 1) << "to the right is back";
}

TEST_F(TokenFieldTest, DeletesTokensAndCharactersAsTheReaderSeesThem)
{
    // A family of three in one picture, a flag, and a letter with two marks.
    const QString seen[] = {u"\U0001F468‍\U0001F469‍\U0001F467"_s, u"\U0001F1E9\U0001F1EA"_s,
                            u"e\u0301\u0323"_s};
    for (const QString &character : seen) {
        field->setObjectValue(QVariantList{city(0)});
        field->editor().insertTypedText(character + u'x' + character);
        press(Qt::Key_Backspace);
        EXPECT_EQ(field->editor().completionPrefix(), character + u'x');
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        EXPECT_EQ(field->editor().cursor(), 1);
        press(Qt::Key_Delete);
        EXPECT_EQ(text().mid(1), u"x"_s);
        press(Qt::Key_Backspace);
        EXPECT_EQ(text(), u"x"_s) << "the token went";
    }
    // A mark that follows a token is no part of it.
    field->setObjectValue(QVariantList{city(0)});
    field->editor().insertTypedText(u"\u0301"_s);
    press(Qt::Key_Backspace);
    EXPECT_THAT(value(), ElementsAre(city(0)));
    field->editor().insertTypedText(u"one two"_s);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(field->editor().completionPrefix(), u"one "_s);
}

TEST_F(TokenFieldTest, UndoesTypingInOneGoAndTokensOneByOne)
{
    type(u"Oslo"_s);
    press(Qt::Key_Return);
    type(u"ab"_s);
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    EXPECT_THAT(value(), IsEmpty());
    field->undo();
    EXPECT_THAT(value(), ElementsAre(city(2)));
    field->undo();
    EXPECT_EQ(field->editor().completionPrefix(), u"ab"_s);
    field->undo();
    EXPECT_EQ(field->editor().completionPrefix(), QString());
    field->undo();
    EXPECT_EQ(text(), u"Oslo"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(text().isEmpty());
    for (int i = 0; i < 5; ++i)
        field->redo();
    EXPECT_THAT(value(), IsEmpty());
    field->setObjectValue(QStringList{u"new"_s});
    field->undo();
    EXPECT_THAT(value(), ElementsAre(u"new"_s)) << "what the host set stays";
    field->editObjectValue(QStringList{u"other"_s});
    field->undo();
    EXPECT_THAT(value(), ElementsAre(u"new"_s));
}

TEST_F(TokenFieldTest, EditsATokenAsText)
{
    field->setObjectValue(QVariantList{city(0), city(1)});
    QTest::mouseDClick(field->viewport(), Qt::LeftButton, {},
                       field->tokenRect(0).center() - QPoint(8, 0));
    EXPECT_EQ(text().left(5), u"Paris"_s);
    type(u"Oslo"_s);
    press(Qt::Key_Return);
    EXPECT_THAT(value(), ElementsAre(city(2), city(1)));
    field->selectToken(1);
    press(Qt::Key_F2);
    EXPECT_EQ(text().mid(1), u"Padua"_s);
    EXPECT_THAT(value(), ElementsAre(city(2), city(1)));
}
