// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QFile>
#include <QProcess>

#include "DraftedManual.h"

namespace
{

class AuditCommand : public DraftedManual
{
protected:
    static QString writeReferences(const QByteArray &text)
    {
        files().write(u"refs.txt"_s, text);
        return files().path(u"refs.txt"_s);
    }
    static ProgramRun audit(const QByteArray &text, const QStringList &options)
    {
        return runTavrin(
            QStringList{u"audit"_s, writeReferences(text), u"--map"_s, map(), u"--pdf"_s, pdf()} +
            options);
    }
};

} // namespace

TEST_F(AuditCommand, SumsUpOnTheTerminal)
{
    const ProgramRun run = audit("# two\nREQ-1\t§ 1.2\n3\n", {});
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_EQ(run.output, u"Engine\n"
                          "Entries cited: 2, references: 2, unknown: 0\n"
                          "Coverage: 3 of 6 covered, 50.0 %\n"
                          "    50.0 %        1/2  1 Scope of the engine\n"
                          "     0.0 %        0/2  2 Valves and springs\n"
                          "   100.0 %        2/2  3 Maintenance\n"_s);
    EXPECT_TRUE(run.errors.isEmpty()) << run.errors.toStdString();
}

TEST_F(AuditCommand, NamesUnknownReferencesWithFileAndLine)
{
    const ProgramRun run = audit("1.1\nREQ-2\t1.7\n", {});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors,
              u"tavrin: %1:2: 1.7 is unknown (REQ-2); nearest: 1.2  Things to do last\n"_s.arg(
                  files().path(u"refs.txt"_s)));
}

TEST_F(AuditCommand, FailsForDemandsThatAreNotMet)
{
    EXPECT_EQ(audit("1.1\n1.2\n", {u"--require"_s, u"1.*"_s}).exitCode, 0);
    const ProgramRun missing = audit("1\n1.1\n", {u"--require"_s, u"1.*"_s});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_THAT(missing.output, Holds(u"Required 1.*: 1 of 2 entries cited\n"
                                      "    1.2  Things to do last\n"_s));
    EXPECT_EQ(audit("1.1\n", {u"--require"_s, u"9*"_s}).exitCode, 1);
    EXPECT_EQ(audit("1\n2\n", {u"--min-coverage"_s, u"66.6"_s}).exitCode, 0);
    EXPECT_EQ(audit("1\n2\n", {u"--min-coverage"_s, u"67"_s}).exitCode, 1);
    const ProgramRun piped =
        audit("1.1\n", {u"--min-coverage"_s, u"90"_s, u"--format"_s, u"junit"_s});
    EXPECT_EQ(piped.exitCode, 1);
    EXPECT_TRUE(piped.output.startsWith(u"<?xml"_s)) << "the report stands alone";
    EXPECT_THAT(piped.errors, Holds(u"Required coverage: 90 %, reached: 16.6 %"_s));
}

TEST_F(AuditCommand, WritesEveryFormat)
{
    const std::pair<QString, QByteArray> formats[] = {{u"rtf"_s, "{\\rtf1"},
                                                      {u"html"_s, "<!DOCTYPE html>"},
                                                      {u"csv"_s, "status,reference"},
                                                      {u"json"_s, "{"},
                                                      {u"junit"_s, "<?xml"}};
    for (const auto &[format, beginning] : formats) {
        const QString out = files().path(u"report."_s + format);
        const ProgramRun toFile = audit("1.1\n", {u"-o"_s, out});
        EXPECT_EQ(toFile.exitCode, 0) << toFile.errors.toStdString();
        const QByteArray report = files().read(u"report."_s + format);
        EXPECT_TRUE(report.startsWith(beginning)) << format.toStdString();
        EXPECT_TRUE(report.contains("1.1"));
        const ProgramRun toOutput = audit("1.1\n", {u"--format"_s, format, u"-o"_s, u"-"_s});
        EXPECT_EQ(toOutput.output, QString::fromUtf8(report)) << format.toStdString();
    }
    const ProgramRun json = audit("1.1\n", {u"--format"_s, u"json"_s});
    EXPECT_EQ(json.object()[u"coverage"_s].toObject()[u"cited"_s], 1);
}

TEST_F(AuditCommand, ReadsStandardInputAndNeedsNoPDF)
{
    for (const QStringList &given : {QStringList(), QStringList{u"-"_s}}) {
        QProcess process;
        process.start(QStringLiteral(TAVRIN_PROGRAM),
                      QStringList{u"audit"_s, u"--map"_s, map()} + given);
        process.write("2.1 # piped\n2.9\n");
        process.closeWriteChannel();
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 1);
        EXPECT_TRUE(process.readAllStandardOutput().contains(
            "Entries cited: 1, references: 2, unknown: 1"));
        EXPECT_TRUE(process.readAllStandardError().startsWith("tavrin: -:2: 2.9 is unknown"));
    }
}

TEST_F(AuditCommand, RefusesWhatItCannotUnderstand)
{
    const QString refs = writeReferences("1.1\n");
    const QString out = files().path(u"none/report.html"_s);
    expectRefusal(audit("1.1\n\nREQ\t\n", {}), u"refs.txt:3: no reference"_s);
    expectRefusal(audit("spec://1.1/*/*/5/2\n", {}), u"refs.txt:1: "_s);
    expectRefusal(audit("# nothing\n", {}), u"nothing to audit"_s);
    expectRefusal(audit("1.1\n", {u"--format"_s, u"pdf"_s}), u"--format pdf"_s);
    expectRefusal(audit("1.1\n", {u"-o"_s, files().path(u"report"_s)}), u"say --format"_s);
    expectRefusal(audit("1.1\n", {u"--min-coverage"_s, u"101"_s}), u"--min-coverage"_s);
    expectRefusal(audit("1.1\n", {u"-o"_s, out}), u"report.html: "_s);
    expectRefusal(runTavrin({u"audit"_s, refs}), u"--map MAP.xml"_s);
    expectRefusal(runTavrin({u"audit"_s, files().path(u"none.txt"_s), u"--map"_s, map()}),
                  u"none.txt: "_s);
    EXPECT_FALSE(QFile::exists(out));
}
