// SPDX-License-Identifier: Apache-2.0
#include <QAbstractItemView>
#include <QFormLayout>
#include <QLineEdit>
#include <QMenu>

#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <interface/CitingFixture.h>

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A host's form with references, and the sheet to choose one in.
class Scene : public Staged<CitingFixture>
{
public:
    explicit Scene(Studio &studio) : m_studio(studio)
    {
        window->hide();
        addPlain(u"Protocol"_s, u"4"_s,
                 {u"Scope"_s, u"Terms and definitions"_s, u"Connection establishment"_s,
                  u"Connection release"_s, u"Flow control"_s,
                  u"Behaviour of a receiver that has lost the connection to a sender while a "
                  "transfer of several parts was under way"_s});
        auto *rows = new QFormLayout(&m_form);
        auto *title = new QLineEdit(u"Close the connection on a bad checksum"_s, &m_form);
        field = new TokenField(&m_form);
        field->setPlaceholderText(u"Type a number or a title"_s);
        rows->addRow(u"Requirement:"_s, title);
        rows->addRow(u"References:"_s, field);
        rows->addRow(u"Owner:"_s, new QLineEdit(u"Communications"_s, &m_form));
        delegate = SpecEntryTokenFieldDelegate::make(*field);
        m_form.resize(520, 320);
        m_form.show();
        title->setFocus();
        QTest::qWait(10);
    }
    ~Scene() override { delegate.reset(); }

    void takeFields()
    {
        shoot(u"citing-empty"_s);
        field->setObjectValue(QStringList{
            u"spec://1/Protocol/4"_s, u"spec://3/Protocol/4"_s, u"see the annex"_s,
            u"spec://5/Protocol/4"_s, u"spec://6/Protocol/4"_s, u"\u05E1\u05E2\u05D9\u05E3 4"_s});
        shoot(u"citing-tokens"_s);
        field->setFocus();
        field->selectToken(1);
        shoot(u"citing-selected"_s);
        QTest::keyClick(field, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(field, u"see also clause 4"_s);
        field->completer().hide();
        shoot(u"citing-focus"_s);
        for (int word = 0; word < 2; ++word)
            QTest::keyClick(field, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
        shoot(u"citing-text-selected"_s);
        field->setEnabled(false);
        shoot(u"citing-disabled"_s);
        field->setEnabled(true);
        takeCompletion();
        takeMenu();
        QStringList many;
        for (int i = 0; i < 30; ++i)
            many += u"spec://%1/Protocol/4"_s.arg(i % 6 + 1);
        field->setObjectValue(many);
        field->editor().select(30, 30);
        shoot(u"citing-many"_s);
        field->setObjectValue({});
    }
    void takeSheets()
    {
        manager.setSpecifications({});
        addSpecification(u"Handbook"_s);
        delegate->insertTokenFromSpecEntryBrowser();
        shootSheet(u"citing-sheet-prompt"_s);
        manager.setSpecifications({});
        const auto book = m_studio.bindSample(manager);
        m_form.resize(1000, 700);
        delegate->insertTokenFromSpecEntryBrowser();
        shootSheet(u"citing-sheet-none"_s);
        const QString url = book->generateURL(*book->entry(u"2.3"_s), true, true);
        delegate->menu(url)->actions().at(0)->trigger();
        shootSheet(u"citing-sheet-entry"_s);
    }

private:
    void shoot(const QString &name) { m_studio.shoot(m_form, name); }
    void takeCompletion()
    {
        field->setObjectValue(QStringList{u"spec://1/Protocol/4"_s});
        field->setFocus();
        QTest::keyClick(field, Qt::Key_End);
        QTest::keyClicks(field, u"conn"_s);
        if (!Studio::waitFor([this] { return field->completer().isShown(); }))
            return;
        QTest::keyClick(field->completer().list(), Qt::Key_Down);
        m_studio.shoot(m_form, u"citing-completion"_s, *field->completer().list());
        field->completer().hide();
    }
    void takeMenu()
    {
        field->setObjectValue(QStringList{u"spec://1/Protocol/4"_s, u"spec://3/Protocol/4"_s});
        field->selectToken(1);
        // The field grows first.
        QTest::qWait(10);
        field->showTokenMenu(1);
        m_studio.shoot(m_form, u"citing-menu"_s, delegate->tokenMenu());
        delegate->tokenMenu().hide();
    }
    void shootSheet(const QString &name)
    {
        QTest::qWait(50);
        m_studio.shoot(*sheet(), name);
        sheet()->reject();
    }

    Studio &m_studio;
    QWidget m_form;
};

} // namespace

void takeCitingPictures(Studio &studio)
{
    Scene scene(studio);
    scene.takeFields();
    scene.takeSheets();
}

} // namespace Tavrin::Testing
