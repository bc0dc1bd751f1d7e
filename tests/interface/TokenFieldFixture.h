// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <support/Test.h>

#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/interface/tokens/TokenFieldDelegate.h>

namespace Tavrin::Testing
{

/// Cities by number: 1 is shown as "<Paris>" and edited as "Paris". Those with a name have a menu.
class Cities : public TokenFieldDelegate
{
public:
    Completions completions(const QString &substring) override
    {
        asked += substring;
        Completions result;
        result.selectedIndex = selectedIndex;
        for (const QString &name : names) {
            if (name.startsWith(substring, Qt::CaseInsensitive))
                result.texts += name;
        }
        return result;
    }
    QVariant representedObject(const QString &editingString) override
    {
        const auto index = names.indexOf(editingString);
        return index < 0 ? QVariant(editingString) : QVariant(static_cast<qlonglong>(index));
    }
    QString displayString(const QVariant &object) override
    {
        const QString name = nameOf(object);
        return name.isNull() ? name : u'<' + name + u'>';
    }
    QString editingString(const QVariant &object) override { return nameOf(object); }
    bool hasMenu(const QVariant &object) override { return !nameOf(object).isNull(); }
    QMenu *menu(const QVariant &object) override
    {
        menuObject = object;
        return &cityMenu;
    }

    QStringList names = {u"Paris"_s, u"Padua"_s, u"Oslo"_s};
    int selectedIndex = -1;
    QStringList asked;
    QMenu cityMenu;
    QVariant menuObject;

private:
    QString nameOf(const QVariant &object) const
    {
        return object.metaType().id() == QMetaType::LongLong ? names.value(object.toInt())
                                                             : QString();
    }
};

class TokenFieldFixture : public testing::Test
{
protected:
    TokenFieldFixture()
    {
        auto *layout = new QVBoxLayout(&window);
        field = new TokenField(&window);
        other = new QPushButton(u"Other"_s, &window);
        layout->addWidget(field);
        layout->addWidget(other);
        layout->addStretch();
        window.resize(420, 300);
        field->setDelegate(cities);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }
    ~TokenFieldFixture() override { QApplication::clipboard()->clear(); }

    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(field, key, modifiers);
    }
    static QVariant city(qlonglong number) { return number; }
    QVariantList value() const { return field->objectValue().toList(); }
    QString text() const { return field->editor().content().text(); }
    QStringList shown() const
    {
        QStringList result;
        for (const Token &token : field->editor().content().tokens())
            result += token.displayString;
        return result;
    }
    QAbstractItemView *list() const { return field->completer().list(); }
    bool waitForList() const
    {
        return QTest::qWaitFor([this] { return field->completer().isShown(); }, 1'000);
    }
    void click(const QPoint &place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(field->viewport(), Qt::LeftButton, modifiers, place);
    }

    QWidget window;
    TokenField *field = nullptr;
    QPushButton *other = nullptr;
    std::shared_ptr<Cities> cities = std::make_shared<Cities>();
};

} // namespace Tavrin::Testing
