// SPDX-License-Identifier: Apache-2.0
#include <QAbstractItemView>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>

#include <Tavrin/interface/citing/SpecEntrySelectionViewController.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenEditor.h>
#include <interface/CitingFixture.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// A host's form with references, and the sheet to choose one in.
class Scene : public CitingFixture
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
        auto *form = new QFormLayout(&m_form);
        auto *title = new QLineEdit(u"Close the connection on a bad checksum"_s, &m_form);
        m_field = new TokenField(&m_form);
        m_field->setPlaceholderText(u"Type a number or a title"_s);
        form->addRow(u"Requirement:"_s, title);
        form->addRow(u"References:"_s, m_field);
        form->addRow(u"Owner:"_s, new QLineEdit(u"Communications"_s, &m_form));
        m_delegate = SpecEntryTokenFieldDelegate::make(*m_field);
        m_form.resize(520, 320);
        m_form.show();
        title->setFocus();
        QTest::qWait(10);
    }

    void takeFields()
    {
        m_studio.shoot(m_form, u"citing-empty"_s);
        m_field->setObjectValue(QStringList{
            u"spec://1/Protocol/4"_s, u"spec://3/Protocol/4"_s, u"see the annex"_s,
            u"spec://5/Protocol/4"_s, u"spec://6/Protocol/4"_s, u"\u05E1\u05E2\u05D9\u05E3 4"_s});
        m_studio.shoot(m_form, u"citing-tokens"_s);
        m_field->setFocus();
        m_field->selectToken(1);
        m_studio.shoot(m_form, u"citing-selected"_s);
        QTest::keyClick(m_field, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(m_field, u"see also clause 4"_s);
        m_field->completer().hide();
        m_studio.shoot(m_form, u"citing-focus"_s);
        QTest::keyClick(m_field, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
        QTest::keyClick(m_field, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
        m_studio.shoot(m_form, u"citing-text-selected"_s);
        m_field->setEnabled(false);
        m_studio.shoot(m_form, u"citing-disabled"_s);
        m_field->setEnabled(true);
        takeCompletion();
        takeMenu();
        takeMany();
    }
    void takeSheets()
    {
        manager.setSpecifications({});
        addSpecification(u"Handbook"_s);
        m_delegate->insertTokenFromSpecEntryBrowser();
        shootSheet(u"citing-sheet-prompt"_s);
        manager.setSpecifications({});
        const auto book = m_studio.bindSample(manager, u"slepc"_s);
        m_form.resize(1000, 700);
        m_delegate->insertTokenFromSpecEntryBrowser();
        shootSheet(u"citing-sheet-none"_s);
        for (const auto &entry : book->entries()) {
            if (entry->number() != u"2.3"_s)
                continue;
            m_delegate->menu(book->generateURL(*entry, true, true))->actions().at(0)->trigger();
            break;
        }
        shootSheet(u"citing-sheet-entry"_s);
    }

private:
    void TestBody() override {}

    /// Form and list in one picture; on the screen the list is a window.
    void shootWith(QWidget &popup, const QString &name)
    {
        QTest::qWait(60);
        QPixmap picture = m_form.grab();
        QPainter painter(&picture);
        painter.drawPixmap(m_form.mapFromGlobal(popup.mapToGlobal(QPoint())), popup.grab());
        painter.end();
        QLabel whole;
        whole.setPixmap(picture);
        whole.adjustSize();
        whole.show();
        m_studio.shoot(whole, name);
    }
    void takeCompletion()
    {
        m_field->setObjectValue(QStringList{u"spec://1/Protocol/4"_s});
        m_field->setFocus();
        QTest::keyClick(m_field, Qt::Key_End);
        QTest::keyClicks(m_field, u"conn"_s);
        if (!Studio::waitFor([this] { return m_field->completer().isShown(); }))
            return;
        QTest::keyClick(m_field->completer().list(), Qt::Key_Down);
        shootWith(*m_field->completer().list(), u"citing-completion"_s);
        m_field->completer().hide();
    }
    void takeMenu()
    {
        m_field->setObjectValue(QStringList{u"spec://1/Protocol/4"_s, u"spec://3/Protocol/4"_s});
        m_field->selectToken(1);
        // The field grows first.
        QTest::qWait(10);
        m_field->showTokenMenu(1);
        shootWith(m_delegate->tokenMenu(), u"citing-menu"_s);
        m_delegate->tokenMenu().hide();
    }
    void takeMany()
    {
        QStringList many;
        for (int i = 0; i < 30; ++i)
            many += u"spec://%1/Protocol/4"_s.arg(i % 6 + 1);
        m_field->setObjectValue(many);
        m_field->editor().select(30, 30);
        m_studio.shoot(m_form, u"citing-many"_s);
        m_field->setObjectValue({});
    }
    void shootSheet(const QString &name)
    {
        auto *sheet = qobject_cast<Sheet *>(m_delegate->specBrowserWindow());
        QTest::qWait(50);
        if (auto *view = sheet->findChild<EntryHighlightPDFView *>())
            Studio::waitFor([view] { return view->isFullyDrawn(); });
        m_studio.shoot(*sheet, name);
        sheet->reject();
    }

    Studio &m_studio;
    QWidget m_form;
    TokenField *m_field = nullptr;
    std::shared_ptr<SpecEntryTokenFieldDelegate> m_delegate;
};

} // namespace

void takeCitingPictures(Studio &studio)
{
    Scene scene(studio);
    scene.takeFields();
    scene.takeSheets();
}

} // namespace Tavrin::Testing
