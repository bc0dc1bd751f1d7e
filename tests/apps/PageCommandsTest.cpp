// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QFile>
#include <QImage>

#include "DraftedManual.h"

namespace
{

/// What is asked of a PDF: draft, check, inspect.
class PageCommands : public DraftedManual
{
protected:
    /// The drafted map with a text in place of another.
    static QString changedMap(const QByteArray &from, const QByteArray &to)
    {
        QByteArray text = files().read(u"maps/manual.xml"_s);
        EXPECT_EQ(text.count(from), 1) << from.constData();
        files().write(u"changed.xml"_s, text.replace(from, to));
        return files().path(u"changed.xml"_s);
    }
};

} // namespace

TEST_F(PageCommands, DraftWritesTheSameMapWhereverItGoes)
{
    const QString again = files().path(u"again.xml"_s);
    const QStringList told{u"--id"_s, u"engine"_s,  u"--revision"_s,
                           u"7"_s,    u"--title"_s, u"Engine"_s};
    const ProgramRun toFile = runTavrin(QStringList{u"draft"_s, pdf(), u"-o"_s, again} + told);
    EXPECT_EQ(toFile.exitCode, 0);
    EXPECT_EQ(toFile.output, again + u": Engine, 9 entries\n"_s);
    EXPECT_EQ(files().read(u"again.xml"_s), files().read(u"maps/manual.xml"_s));
    const ProgramRun toOutput = runTavrin(QStringList{u"draft"_s, pdf()} + told);
    EXPECT_EQ(toOutput.output.toUtf8(), files().read(u"maps/manual.xml"_s));
}

TEST_F(PageCommands, DraftOfADocumentWithoutHeadingsWritesNothing)
{
    PDFBuilder blank;
    blank.addPage();
    files().write(u"blank.pdf"_s, blank.build());
    const QString map = files().path(u"blank.xml"_s);
    const ProgramRun run = runTavrin({u"draft"_s, files().path(u"blank.pdf"_s), u"-o"_s, map});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, Holds(u"no headings found"_s));
    EXPECT_FALSE(QFile::exists(map));
}

TEST_F(PageCommands, CheckFindsEverythingOfADraftInPlace)
{
    const ProgramRun run = runTavrin({u"check"_s, map(), u"--pdf"_s, pdf()});
    EXPECT_EQ(run.exitCode, 0) << run.output.toStdString() << run.errors.toStdString();
    EXPECT_EQ(run.output, u"Engine: valid, 9 entries\n"
                          "9 entries, 9 with a place, 9 with their title printed there\n"_s);
    const QJsonObject json =
        runTavrin({u"check"_s, map(), u"--pdf"_s, pdf(), u"--json"_s}).object();
    EXPECT_EQ(json[u"identifier"_s], u"engine"_s);
    EXPECT_EQ(json[u"recognised"_s], true);
    EXPECT_EQ(json[u"entryCount"_s], 9);
    EXPECT_EQ(json[u"placed"_s], 9);
    EXPECT_EQ(json[u"titled"_s], 9);
    EXPECT_TRUE(json[u"faults"_s].toArray().isEmpty());

    const QJsonObject alone = runTavrin({u"check"_s, map(), u"--json"_s}).object();
    EXPECT_EQ(alone[u"entryCount"_s], 9);
    EXPECT_FALSE(alone.contains(u"placed"_s)) << "nothing is said of a PDF that was not given";
}

TEST_F(PageCommands, CheckTellsWhichEntriesAreAtFault)
{
    const QString wrongTitle = changedMap("<name>Maintenance</name>", "<name>Dragons</name>");
    const ProgramRun title = runTavrin({u"check"_s, wrongTitle, u"--pdf"_s, pdf()});
    EXPECT_EQ(title.exitCode, 1);
    EXPECT_THAT(title.output, Holds(u"title not on the page  Chapter 3  Dragons"_s));

    const QString noPlace = changedMap("<internal>destination:3,72,6", "<internal>nowhere:3,72,6");
    const QJsonObject json =
        runTavrin({u"check"_s, noPlace, u"--pdf"_s, pdf(), u"--json"_s}).object();
    EXPECT_EQ(json[u"placed"_s], 8);
    ASSERT_EQ(json[u"faults"_s].toArray().size(), 1);
    const QJsonObject fault = json[u"faults"_s].toArray().at(0).toObject();
    EXPECT_EQ(fault[u"label"_s], u"3"_s);
    EXPECT_EQ(fault[u"fault"_s], u"no place"_s);
}

TEST_F(PageCommands, CheckSaysThatThePDFIsAnother)
{
    const QString map = changedMap("verifier=\"Engine", "verifier=\"Ship");
    const ProgramRun run = runTavrin({u"check"_s, map, u"--pdf"_s, pdf(), u"--json"_s});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.errors, Holds(u"verifier"_s));
    EXPECT_EQ(run.object()[u"recognised"_s], false);
    EXPECT_EQ(run.object()[u"placed"_s], 9) << "the places are checked all the same";
}

TEST_F(PageCommands, InspectTellsWhatIsOnAPage)
{
    const ProgramRun run = runTavrin({u"inspect"_s, pdf(), u"--page"_s, u"4"_s, u"--json"_s});
    EXPECT_EQ(run.exitCode, 0);
    const QJsonObject page = run.object();
    EXPECT_EQ(page[u"page"_s], 3);
    EXPECT_EQ(page[u"mediaBox"_s].toArray(), (QJsonArray{0, 0, 612, 792}));
    QStringList lines;
    for (const auto &line : page[u"lines"_s].toArray())
        lines.append(line.toObject()[u"text"_s].toString());
    EXPECT_TRUE(lines.contains(u"3.2 Things to do last"_s)) << lines.join(u'\n').toStdString();
    const QJsonArray outline = page[u"outline"_s].toArray();
    ASSERT_EQ(outline.size(), 3);
    EXPECT_EQ(outline[0].toObject()[u"name"_s], u"Maintenance"_s);
    EXPECT_EQ(outline[0].toObject()[u"y"_s], 680);
    EXPECT_TRUE(
        runTavrin({u"inspect"_s, pdf(), u"--page"_s, u"4"_s}).output.startsWith(u"page 4 of 4,"_s));
}

TEST_F(PageCommands, InspectWantsAPageOfTheDocument)
{
    const ProgramRun beyond = runTavrin({u"inspect"_s, pdf(), u"--page"_s, u"5"_s});
    EXPECT_EQ(beyond.exitCode, 1);
    EXPECT_EQ(beyond.errors, u"tavrin: no page 5; the document has 4\n"_s);
    for (const QString &page : {u"0"_s, u"-1"_s, u"two"_s, u"1.5"_s, u"99999999999"_s}) {
        const ProgramRun run = runTavrin({u"inspect"_s, pdf(), u"--page="_s + page});
        EXPECT_EQ(run.exitCode, 2) << page.toStdString();
        EXPECT_THAT(run.errors, Holds(u"--page "_s + page));
    }
    EXPECT_EQ(runTavrin({u"inspect"_s, pdf(), u"--scale"_s, u"huge"_s}).exitCode, 2);
}

TEST_F(PageCommands, InspectDrawsThePageInItsSize)
{
    const QString png = files().path(u"page.png"_s);
    const ProgramRun run = runTavrin(
        {u"inspect"_s, pdf(), u"--page"_s, u"2"_s, u"--png"_s, png, u"--scale"_s, u"1"_s});
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    const QImage image(png);
    EXPECT_EQ(image.size(), QSize(612, 792));
    EXPECT_EQ(image.pixelColor(5, 785), QColor(Qt::white)) << "a corner where nothing is printed";
    EXPECT_NE(image.pixelColor(100, 792 - 652), QColor(Qt::white)) << "a framed heading";
    EXPECT_EQ(
        runTavrin({u"inspect"_s, pdf(), u"--png"_s, files().path(u"none/page.png"_s)}).exitCode, 2);
}

TEST_F(PageCommands, InspectComplainsOfNothingThatIsInOrder)
{
    PDFBuilder plain;
    plain.addPage().text(72, 600, u"No destination has a name here"_s);
    files().write(u"plain.pdf"_s, plain.build());
    QProcessEnvironment noSession = QProcessEnvironment::systemEnvironment();
    noSession.remove(u"XDG_RUNTIME_DIR"_s);
    const ProgramRun run = runTavrin(
        {u"inspect"_s, files().path(u"plain.pdf"_s), u"--png"_s, files().path(u"plain.png"_s)},
        noSession);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, QString());
}
