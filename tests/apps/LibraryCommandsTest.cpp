// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <support/MapBuilder.h>

#include "DraftedManual.h"

namespace
{

/// What is asked of maps: lookup, search, similar, list.
class LibraryCommands : public DraftedManual
{
protected:
    static QJsonObject first(const QJsonArray &array) { return array.at(0).toObject(); }

    /// The one entry of the one reference that was looked up.
    static QJsonObject entryOf(const ProgramRun &run)
    {
        return first(first(run.array())[u"entries"_s].toArray());
    }

    static QStringList labels(const QJsonArray &entries)
    {
        QStringList result;
        for (const auto &entry : entries)
            result.append(entry.toObject()[u"label"_s].toString());
        return result;
    }

    static void expectLastHeading(const QJsonObject &entry)
    {
        EXPECT_EQ(entry[u"label"_s], u"3.2"_s);
        EXPECT_EQ(entry[u"kind"_s], u"section"_s);
        EXPECT_EQ(entry[u"index"_s].toArray(), (QJsonArray{3, 2}));
        EXPECT_EQ(entry[u"title"_s], u"Things to do last"_s);
        EXPECT_EQ(entry[u"specification"_s], u"engine"_s);
        EXPECT_EQ(entry[u"url"_s], u"spec://3.2/engine/7"_s);
        EXPECT_EQ(entry[u"page"_s], lastHeadingPage);
        EXPECT_EQ(entry[u"x"_s], 72);
        // On the top of the heading, which is set in 13 points.
        EXPECT_GE(entry[u"y"_s].toDouble(), lastHeadingBaseline + 9);
        EXPECT_LE(entry[u"y"_s].toDouble(), lastHeadingBaseline + 16);
    }
};

} // namespace

TEST_F(LibraryCommands, LookUpAPlaceByLabelURLAndReference)
{
    for (const QString &reference :
         {u"3.2"_s, u"spec://3.2/engine/7"_s, u"spec://3.2/*/*"_s, u"spec://3.2"_s, u"§ 3.2"_s}) {
        SCOPED_TRACE(reference.toStdString());
        const ProgramRun run = runBound(u"lookup"_s, {u"--json"_s, reference});
        EXPECT_EQ(run.exitCode, 0);
        expectLastHeading(entryOf(run));
    }
    const ProgramRun text = runBound(u"lookup"_s, {u"3.2"_s});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_THAT(text.output, Begins(u"Section 3.2  Things to do last\n    page 4 at 72, "_s));
    EXPECT_TRUE(text.output.contains(u"Engine\n    spec://3.2/engine/7\n"_s));
}

TEST_F(LibraryCommands, LookUpWithoutThePDFTellsNoPlace)
{
    const ProgramRun run = runWithMap(u"lookup"_s, {u"--json"_s, u"3.2"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(entryOf(run)[u"title"_s], u"Things to do last"_s);
    EXPECT_FALSE(entryOf(run).contains(u"page"_s));
    EXPECT_TRUE(runWithMap(u"lookup"_s, {u"3.2"_s}).output.contains(u"no PDF bound"_s));
}

TEST_F(LibraryCommands, LookUpReportsWhatIsUnknownAndGoesOn)
{
    const ProgramRun run = runBound(u"lookup"_s, {u"--json"_s, u"1.1"_s, u"9.9"_s, u"3.2"_s});
    EXPECT_EQ(run.exitCode, 1);
    const QJsonArray references = run.array();
    ASSERT_EQ(references.size(), 3);
    EXPECT_EQ(references[1].toObject()[u"reference"_s], u"9.9"_s);
    EXPECT_TRUE(references[1].toObject()[u"entries"_s].toArray().isEmpty());
    EXPECT_FALSE(references[2].toObject()[u"entries"_s].toArray().isEmpty());

    const ProgramRun text = runBound(u"lookup"_s, {u"9.9"_s, u"spec://1.1/engine/8"_s});
    EXPECT_EQ(text.exitCode, 1);
    EXPECT_TRUE(text.output.isEmpty());
    EXPECT_EQ(text.errors, u"tavrin: 9.9: unknown\ntavrin: spec://1.1/engine/8: unknown\n"_s);
}

TEST_F(LibraryCommands, LookUpRangesOfEntriesAndOfLines)
{
    const ProgramRun range = runBound(u"lookup"_s, {u"--json"_s, u"Sections 1.1-2.1"_s});
    EXPECT_EQ(labels(first(range.array())[u"entries"_s].toArray()),
              (QStringList{u"1.1"_s, u"1.2"_s, u"2.1"_s}));

    const QString url = u"spec://3.2/engine/7/2/5"_s;
    const QJsonObject part = entryOf(runBound(u"lookup"_s, {u"--json"_s, url}));
    EXPECT_EQ(part[u"url"_s], url);
    EXPECT_EQ(part[u"lineRange"_s].toArray(), (QJsonArray{2, 5}));
    EXPECT_TRUE(runBound(u"lookup"_s, {url})
                    .output.startsWith(u"Section 3.2, lines 3 to 5  Things to do last\n"_s));

    for (const QString &lines : {u"5/2"_s, u"-1/2"_s, u"x/2"_s, u"1/"_s, u"1/99999999999"_s}) {
        SCOPED_TRACE(lines.toStdString());
        const ProgramRun run = runBound(u"lookup"_s, {u"1.1"_s, u"spec://3.2/engine/7/"_s + lines});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.output.isEmpty());
        EXPECT_THAT(run.errors, Holds(u"\"%1\" is no range of lines"_s.arg(lines)));
        EXPECT_EQ(runBound(u"show"_s, {u"spec://3.2/engine/7/"_s + lines}).exitCode, 2);
    }
}

TEST_F(LibraryCommands, ShowTheTextOfAnEntryAndOfItsLines)
{
    const ProgramRun section = runBound(u"show"_s, {u"2.1"_s});
    EXPECT_EQ(section.exitCode, 0) << section.errors.toStdString();
    EXPECT_TRUE(section.output.contains(u"Section 2.1 Things to do first"_s));
    EXPECT_THAT(section.output, Holds(u"at height 448,"_s));
    EXPECT_FALSE(section.output.contains(u"at height 590,"_s)) << "text of the chapter above";
    EXPECT_FALSE(section.output.contains(u"at height 360,"_s)) << "text of the next section";
    const ProgramRun lines = runBound(u"show"_s, {u"spec://2.1/engine/7/0/1"_s});
    EXPECT_EQ(lines.exitCode, 0);
    EXPECT_LT(lines.output.size(), section.output.size());
    EXPECT_EQ(runBound(u"show"_s, {u"Section 2.1"_s}).output, section.output);
    EXPECT_EQ(runBound(u"show"_s, {u"9.9"_s}).exitCode, 1);
    EXPECT_EQ(runBound(u"show"_s, {u"2.1-2.2"_s}).exitCode, 2) << "not one entry";
    EXPECT_EQ(runBound(u"show"_s, {u"2.1"_s, u"--image"_s, files().path(u"x.png"_s)}).exitCode, 2)
        << "a section has no picture";
}

TEST_F(LibraryCommands, TellWhichEntryIsAtAPoint)
{
    const auto at = [](const QString &page, const QString &y) {
        return runWithMap(u"at"_s,
                          {pdf(), u"--page"_s, page, u"--x"_s, u"90"_s, u"--y"_s, y, u"--json"_s});
    };
    expectLastHeading(at(u"4"_s, u"300"_s).object());
    EXPECT_EQ(at(u"4"_s, u"430"_s).object()[u"label"_s], u"3.1"_s);
    EXPECT_EQ(at(u"1"_s, u"600"_s).exitCode, 1) << "the title page has no entry";
    EXPECT_EQ(at(u"5"_s, u"300"_s).exitCode, 1) << "there is no such page";
    EXPECT_EQ(at(u"4"_s, u"high"_s).exitCode, 2);
}

TEST_F(LibraryCommands, RefuseAPDFThatNoMapRecognises)
{
    PDFBuilder other;
    other.addPage().text(72, 600, u"Another manual"_s);
    files().write(u"other.pdf"_s, other.build());
    const ProgramRun run =
        runWithMap(u"lookup"_s, {u"--pdf"_s, files().path(u"other.pdf"_s), u"1.1"_s});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.errors, Holds(u"other.pdf"_s));
}

TEST_F(LibraryCommands, SearchSaysWhyEachHitMatched)
{
    const ProgramRun run = runBound(u"search"_s, {u"--json"_s, u"things"_s, u"last"_s});
    EXPECT_EQ(run.exitCode, 0);
    const QJsonArray hits = run.array();
    EXPECT_EQ(labels(hits), (QStringList{u"1.2"_s, u"2.2"_s, u"3.2"_s}));
    EXPECT_EQ(first(hits)[u"matched"_s], u"title"_s);
    EXPECT_EQ(first(hits)[u"page"_s], 1);
    EXPECT_EQ(first(runBound(u"search"_s, {u"--json"_s, u"3.2"_s}).array())[u"matched"_s],
              u"number"_s);
    // One argument of several words is the same as several arguments.
    EXPECT_EQ(runBound(u"search"_s, {u"--json"_s, u"things last"_s}).output, run.output);
    EXPECT_EQ(runBound(u"search"_s, {u"--whole"_s, u"things last"_s}).exitCode, 1);
    EXPECT_EQ(runBound(u"search"_s, {u"--case-sensitive"_s, u"things"_s}).exitCode, 1);
}

TEST_F(LibraryCommands, SearchCountsItsHits)
{
    const ProgramRun all = runBound(u"search"_s, {u"things"_s});
    EXPECT_THAT(all.output, Ends(u"\n6 hits\n"_s));
    const ProgramRun some = runBound(u"search"_s, {u"--limit"_s, u"2"_s, u"things"_s});
    EXPECT_THAT(some.output, Ends(u"\n2 of 6 hits; --limit 0 shows all\n"_s));
    EXPECT_EQ(
        runBound(u"search"_s, {u"--limit"_s, u"2"_s, u"--json"_s, u"things"_s}).array().size(), 2);
    const ProgramRun none = runBound(u"search"_s, {u"dragons"_s});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_EQ(none.output, u"nothing found\n"_s);
    EXPECT_TRUE(runBound(u"search"_s, {u"--json"_s, u"dragons"_s}).array().isEmpty());
}

TEST_F(LibraryCommands, SimilarShowsOnlyWhatSharesAWord)
{
    const ProgramRun run =
        runBound(u"similar"_s, {u"--json"_s, u"The springs and valves of an engine"_s});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(labels(run.array()), (QStringList{u"2"_s, u"1"_s}));
    EXPECT_EQ(first(run.array())[u"shared"_s].toArray(),
              (QJsonArray{u"springs"_s, u"and"_s, u"valves"_s}));
    EXPECT_EQ(runBound(u"similar"_s, {u"--json"_s, u"--count"_s, u"1"_s, u"engine springs"_s})
                  .array()
                  .size(),
              1);
    EXPECT_EQ(runBound(u"similar"_s, {u"dragons"_s}).exitCode, 1);
}

TEST_F(LibraryCommands, ListNamesSpecificationsAndEntriesInOrder)
{
    const QJsonObject plain = first(runWithMap(u"list"_s, {u"--json"_s}).array());
    EXPECT_EQ(plain[u"identifier"_s], u"engine"_s);
    EXPECT_EQ(plain[u"revision"_s], u"7"_s);
    EXPECT_EQ(plain[u"entryCount"_s], 9);
    EXPECT_FALSE(plain.contains(u"entries"_s));

    const QJsonObject full = first(runBound(u"list"_s, {u"--json"_s, u"--entries"_s}).array());
    EXPECT_EQ(labels(full[u"entries"_s].toArray()),
              (QStringList{u"1"_s, u"1.1"_s, u"1.2"_s, u"2"_s, u"2.1"_s, u"2.2"_s, u"3"_s, u"3.1"_s,
                           u"3.2"_s}));
    expectLastHeading(full[u"entries"_s].toArray().at(8).toObject());

    const QJsonObject chapters =
        first(runBound(u"list"_s, {u"--json"_s, u"--type"_s, u"chapter"_s}).array());
    EXPECT_EQ(labels(chapters[u"entries"_s].toArray()), (QStringList{u"1"_s, u"2"_s, u"3"_s}));

    EXPECT_EQ(runBound(u"list"_s, {}).output,
              u"Engine\n    engine, revision 7, 9 entries, PDF of 4 pages bound\n"_s);
}

TEST_F(LibraryCommands, ShowLettersOfAppendicesAndParts)
{
    MapBuilder map(u"letters"_s, u"1"_s);
    map.title(u"Letters"_s);
    const std::pair<QString, QString> rows[] = {{u"A.3"_s, u"9.3"_s},
                                                {u"III.B"_s, u"3.2"_s},
                                                {u"Part II"_s, u"0.2"_s},
                                                {u"pipeline"_s, u"4.5"_s}};
    for (const auto &[label, index] : rows)
        map.entry({.label = label, .index = index, .name = u"T"_s});
    map.write(files(), u"letters/letters.xml"_s);
    files().write(u"letters/letters.dtd"_s, MapBuilder::grammar());
    const ProgramRun run =
        runTavrin({u"list"_s, u"--entries"_s, u"--maps"_s, files().path(u"letters"_s)});
    EXPECT_EQ(run.output.section(u'\n', 2),
              u"    Part II  T\n    Section III.B  T\n    Section 4.5  T\n    Section A.3  T\n"_s);
}

TEST_F(LibraryCommands, SpeakTheLanguageOfTheLocaleButNotInData)
{
    const auto run = [](const QStringList &arguments, const QString &locale,
                        const QString &language = {}) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LC_ALL"_s, locale);
        environment.insert(u"LANGUAGE"_s, language);
        return runTavrin(arguments + QStringList{u"--maps"_s, files().path(u"maps"_s)} +
                             QStringList{u"--pdf"_s, pdf()},
                         environment);
    };
    const QStringList lookup{u"lookup"_s, u"Abschnitt 3.2"_s};
    const ProgramRun german = run(lookup, u"de_DE.UTF-8"_s);
    EXPECT_THAT(german.output, Begins(u"Abschnitt 3.2  Things to do last\n    Seite 4 bei 72, "_s));
    EXPECT_EQ(run({u"lookup"_s, u"9.9"_s}, u"de_DE.UTF-8"_s).errors, u"tavrin: 9.9: unbekannt\n"_s);
    EXPECT_EQ(run({u"search"_s, u"things"_s}, u"de_AT.UTF-8"_s).output.section(u'\n', -2, -2),
              u"6 Treffer"_s);
    EXPECT_EQ(run(lookup, u"C.UTF-8"_s, u"de"_s).exitCode, 1) << "no German without its locale";
    EXPECT_EQ(run({u"search"_s, u"--json"_s, u"things"_s}, u"de_DE.UTF-8"_s).output,
              runBound(u"search"_s, {u"--json"_s, u"things"_s}).output);
}

TEST_F(LibraryCommands, PrintNoEscapeCodesIntoAPipe)
{
    // A terminal that has colours changes nothing, as long as the output does not go there.
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TERM"_s, u"xterm-256color"_s);
    environment.insert(u"COLORTERM"_s, u"truecolor"_s);
    environment.remove(u"NO_COLOR"_s);
    const QStringList library{u"--maps"_s, files().path(u"maps"_s), u"--pdf"_s, pdf()};
    for (const QStringList &arguments : {QStringList{u"lookup"_s, u"3.2"_s, u"9.9"_s} + library,
                                         QStringList{u"list"_s, u"--entries"_s} + library,
                                         QStringList{u"search"_s, u"things"_s} + library,
                                         QStringList{u"check"_s, map(), u"--pdf"_s, pdf()},
                                         QStringList{u"inspect"_s, pdf(), u"--page"_s, u"2"_s}}) {
        const ProgramRun run = runTavrin(arguments, environment);
        EXPECT_FALSE(run.output.isEmpty());
        EXPECT_FALSE(run.output.contains(u'\x1b')) << arguments.join(u' ').toStdString();
        EXPECT_FALSE(run.errors.contains(u'\x1b')) << arguments.join(u' ').toStdString();
    }
}
