// SPDX-License-Identifier: Apache-2.0
#include <QListView>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/interface/tokens/TokenCompleter.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <reader/citing/CitationModel.h>
#include <reader/citing/CitationWindow.h>
#include <reader/panes/ControllerPane.h>
#include <reader/panes/ControllerWindow.h>

#include "ReaderFixture.h"

namespace Tavrin::Testing
{

using Reader::Citation;
using Reader::CitationDocument;
using Reader::CitationWindow;

class CitationTest : public ReaderFixture
{
protected:
    CitationTest() { openAll(); }

    static void pressSheetButton(const QWidget &over, const QString &title)
    {
        for (auto *button : over.findChildren<QPushButton *>()) {
            if (button->text() == title && button->window() != &over)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    static QString listed(const CitationWindow &form)
    {
        return citations(form).front().text + u": "_s +
               citations(form).front().references.join(u" | "_s);
    }
    static std::vector<Citation> citations(const CitationWindow &form)
    {
        return form.citations().document().citations;
    }
};

TEST_F(CitationTest, CitesEntriesAndSurvivesSavingAndReloading)
{
    const QString path = files.path(u"work.json"_s);
    QPointer<CitationWindow> form = window.openCitations();
    QTest::keyClicks(form->focusWidget(), u"The pump stops."_s);
    form->tokenField().setFocus();
    QTest::keyClicks(form->tokenField().viewport(), u"Further Limits"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form->tokenField().completer().isShown(); }));
    QTest::keyClick(form->tokenField().completer().list(), Qt::Key_Down);
    QTest::keyClick(form->tokenField().completer().list(), Qt::Key_Return);
    QTest::keyClicks(form->tokenField().viewport(), u"what nobody knows"_s);
    QTest::keyClick(form->tokenField().viewport(), Qt::Key_Return);
    const QString cited = u"The pump stops.: spec://3/manual/1 | what nobody knows"_s;
    EXPECT_EQ(listed(*form).toStdString(), cited.toStdString());
    EXPECT_TRUE(form->isWindowModified());
    ASSERT_TRUE(form->save(path));
    EXPECT_FALSE(form->isWindowModified());
    form->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form);

    form = window.openCitations(path);
    EXPECT_EQ(listed(*form).toStdString(), cited.toStdString());
    EXPECT_EQ(form->tokenField().objectValue().toList().size(), 2);
    EXPECT_FALSE(form->isWindowModified());
}

TEST_F(CitationTest, KeepsAnyTextThatReferencesCanHold)
{
    const QString path = files.path(u"work.json"_s);
    const CitationDocument work{
        {{u"two\nlines \"quoted\" 🙂"_s, {u"e\u0301\n\"x\""_s, QString(10'000, u'y')}}, {}}};
    work.write(path);
    EXPECT_EQ(CitationDocument::read(path), work);
    const QPointer<CitationWindow> form = window.openCitations(path);
    EXPECT_EQ(citations(*form).size(), 2U);
}

TEST_F(CitationTest, TellsWhatIsWrongWithAFileAndKeepsWhatIsThere)
{
    QPointer<CitationWindow> form = window.openCitations();
    QTest::keyClicks(&form->textField(), u"Mine."_s);
    for (const QByteArray &content : {QByteArray("{"), QByteArray("[]"), QByteArray("\xff\xfe"),
                                      QByteArray(R"({"citations":5})")}) {
        const QString path = files.write(u"broken.json"_s, content).toLocalFile();
        form->open(path);
        const auto sheets = form->findChildren<Sheet *>();
        ASSERT_FALSE(sheets.isEmpty()) << content.constData();
        EXPECT_THAT(sheets.back()->informativeText().toStdString(), HasSubstr("broken.json"));
        sheets.back()->end(0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(citations(*form).front().text, u"Mine."_s);
    }
    EXPECT_FALSE(form->save(files.path(u"no/such/folder.json"_s)));
    EXPECT_TRUE(form->isWindowModified()) << "nothing is lost";
}

TEST_F(CitationTest, AsksBeforeChangesAreLost)
{
    QPointer<CitationWindow> form = window.openCitations();
    QTest::keyClicks(&form->textField(), u"Mine."_s);
    form->close();
    ASSERT_TRUE(form && form->isVisible());
    pressSheetButton(*form, u"Cancel"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(form && form->isVisible());
    form->close();
    pressSheetButton(*form, u"Don't Save"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form && form->isVisible());
}

TEST_F(CitationTest, AsksBeforeTheReaderCloses)
{
    QPointer<CitationWindow> form = window.openCitations();
    form->tokenField().setFocus();
    QTest::keyClicks(form->tokenField().viewport(), u"not yet a token"_s);
    window.close();
    EXPECT_TRUE(window.isVisible()) << "there is still something to stay in";
    pressSheetButton(*form, u"Cancel"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(form && form->isVisible());
    EXPECT_EQ(citations(*form).front().references, QStringList{u"not yet a token"_s});
    window.close();
    pressSheetButton(*form, u"Don't Save"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(form);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(CitationTest, AuditsWhatIsCited)
{
    const auto form = window.openCitations();
    form->citations().setDocument({{{u"First."_s, {u"spec://2/manual/1"_s, u"§ 1"_s}},
                                    {u"Second."_s, {u"unknown thing"_s}}}});
    Q_EMIT form->auditRequested(form->references());
    auto *shown = window.findChild<Reader::ControllerWindow *>(u"Audit"_s);
    ASSERT_TRUE(shown);
    const auto browser = std::dynamic_pointer_cast<SpecAuditBrowserController>(shown->controller());
    ASSERT_TRUE(browser);
    EXPECT_EQ(browser->labels(), QStringList({u"2"_s, u"1"_s, u"unknown thing"_s}));
    EXPECT_EQ(browser->customComponents().front(), QStringList{u"First."_s});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !browser->entryDict().empty(); }));

    Q_EMIT form->coverageRequested(form->references());
    const auto detail =
        std::dynamic_pointer_cast<SpecDetailViewController>(window.detailPane().controller());
    ASSERT_TRUE(detail);
    EXPECT_EQ(detail->referenceCoverage()->size(), 3U);
    ASSERT_TRUE(detail->entry());
    EXPECT_EQ(detail->entry()->label(), u"2"_s) << "one begins to read at the first mark";
}

TEST_F(CitationTest, AuditsAFileOfReferences)
{
    window.auditFile(files.write(u"refs.txt"_s, "REQ-1\t§ 2\n1-3\n").toLocalFile());
    auto *shown = window.findChild<Reader::ControllerWindow *>(u"Audit"_s);
    ASSERT_TRUE(shown);
    const auto browser = std::dynamic_pointer_cast<SpecAuditBrowserController>(shown->controller());
    EXPECT_EQ(browser->labels(), QStringList({u"2"_s, u"1"_s, u"2"_s, u"3"_s}));
    window.auditFile(files.path(u"absent.txt"_s));
    EXPECT_THAT(complaint().toStdString(), HasSubstr("absent.txt"));
}

TEST_F(CitationTest, SaysThatThereIsNothingToAudit)
{
    window.audit({{u"unknown"_s, {}}});
    EXPECT_FALSE(window.findChild<Reader::ControllerWindow *>(u"Audit"_s));
    EXPECT_FALSE(complaint().isEmpty());
}

} // namespace Tavrin::Testing
