// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <sys/resource.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <csignal>
#include <memory>
#include <thread>
#include <vector>

#include <support/SampleDocument.h>
#include <support/TemporaryFiles.h>

#include "Program.h"

namespace
{

/// What users do with imported files: import, files, forget; and what the other commands find.
class StoreCommands : public testing::Test
{
protected:
    StoreCommands()
    {
        environment.insert(u"XDG_DATA_HOME"_s, files.path(u"data"_s));
        writeMap(u"alpha"_s, u"maps/alpha"_s);
        files.write(u"report.pdf"_s, sampleDocument(u"alpha"_s));
    }

    void writeMap(const QString &word, const QString &path) const
    {
        sampleMap(word).write(files, path + u".xml"_s);
        files.write(path + u".dtd"_s, MapBuilder::grammar());
    }

    ProgramRun run(const QStringList &arguments) const { return runTavrin(arguments, environment); }
    ProgramRun runWithMaps(const QString &command, const QStringList &arguments) const
    {
        return run(QStringList{command, u"--maps"_s, files.path(u"maps"_s)} + arguments);
    }
    std::unique_ptr<QProcess> start(const QStringList &arguments) const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(QStringLiteral(TAVRIN_PROGRAM), arguments);
        return process;
    }

    QString storePath() const { return files.path(u"data/tavrin/tavrin"_s); }
    /// Everything that lies in the store, or only what has a hidden name.
    QStringList storeContents() const
    {
        return QDir(storePath()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QStringList leftovers() const { return storeContents().filter(QRegularExpression(u"^\\."_s)); }

    /// Whether all files of the store but hidden ones have this content.
    bool allStoredAre(const QByteArray &content) const
    {
        const QStringList names = QDir(storePath()).entryList(QDir::Files);
        return std::all_of(names.begin(), names.end(), [&](const QString &name) {
            return files.read(u"data/tavrin/tavrin/"_s + name) == content;
        });
    }

    TemporaryFiles files;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

QJsonObject first(const QJsonArray &array)
{
    return array.at(0).toObject();
}

} // namespace

TEST_F(StoreCommands, ImportOnceFindAlways)
{
    const QString report = files.path(u"report.pdf"_s);
    EXPECT_EQ(run({u"files"_s}).output, u"nothing imported\n"_s);
    EXPECT_FALSE(QDir(files.path(u"data"_s)).exists());
    const QJsonObject copy = first(runWithMaps(u"import"_s, {u"--json"_s, report}).array());
    EXPECT_EQ(copy[u"name"_s], u"report.pdf"_s);
    EXPECT_EQ(copy[u"path"_s], storePath() + u"/report.pdf"_s);
    EXPECT_EQ(copy[u"specification"_s], u"alpha"_s);
    EXPECT_EQ(copy[u"bytes"_s], sampleDocument(u"alpha"_s).size());
    EXPECT_EQ(first(runWithMaps(u"files"_s, {u"--json"_s}).array()), copy);
    EXPECT_EQ(runWithMaps(u"files"_s, {}).output,
              u"report.pdf\n    The alpha  ·  alpha, 1\n    "_s + storePath() + u"/report.pdf\n"_s);
    EXPECT_EQ(run({u"files"_s}).output, u"report.pdf\n    "_s + storePath() + u"/report.pdf\n"_s);

    const ProgramRun again = runWithMaps(u"import"_s, {u"--json"_s, report});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_EQ(first(again.array()), copy) << "importing again changes nothing";
    EXPECT_EQ(storeContents(), QStringList{u"report.pdf"_s});

    ASSERT_TRUE(QFile::remove(report));
    const QJsonArray found = runWithMaps(u"lookup"_s, {u"--json"_s, u"1"_s}).array();
    EXPECT_EQ(first(first(found)[u"entries"_s].toArray())[u"page"_s], 0);
    EXPECT_TRUE(runWithMaps(u"list"_s, {}).output.contains(u"PDF of 1 pages bound"_s));
    EXPECT_EQ(first(runWithMaps(u"search"_s, {u"--json"_s, u"scope"_s}).array())[u"page"_s], 0);
    EXPECT_TRUE(runWithMaps(u"show"_s, {u"1"_s}).output.contains(u"1 Scope"_s));
    const QStringList point{u"--x"_s, u"80"_s, u"--y"_s, u"490"_s, u"--json"_s};
    EXPECT_EQ(runWithMaps(u"at"_s, point).object()[u"label"_s], u"1"_s);
}

TEST_F(StoreCommands, PreferThePDFOfTheCommandLine)
{
    const QString report = files.path(u"report.pdf"_s);
    ASSERT_EQ(runWithMaps(u"import"_s, {report}).exitCode, 0);
    files.write(u"data/tavrin/tavrin/report.pdf"_s, "broken since");
    const ProgramRun broken = runWithMaps(u"lookup"_s, {u"1"_s});
    EXPECT_EQ(broken.exitCode, 0);
    EXPECT_THAT(broken.output, Holds(u"no PDF bound"_s));
    const ProgramRun named = runWithMaps(u"lookup"_s, {u"--pdf"_s, report, u"1"_s});
    EXPECT_EQ(named.exitCode, 0);
    EXPECT_THAT(named.output, Holds(u"page 1 at 72, 512"_s));
    EXPECT_TRUE(named.errors.isEmpty()) << named.errors.toStdString();
    EXPECT_EQ(storeContents(), QStringList{u"report.pdf"_s}) << "and import nothing";

    ASSERT_EQ(run({u"forget"_s, u"report.pdf"_s}).exitCode, 0);
    for (const QStringList &arguments :
         {QStringList{u"lookup"_s, u"1"_s}, QStringList{u"show"_s, u"1"_s}, QStringList{u"list"_s},
          QStringList{u"search"_s, u"scope"_s}}) {
        QDir(files.path(u"data"_s)).removeRecursively();
        EXPECT_EQ(runWithMaps(arguments.first(), QStringList{u"--pdf"_s, report} + arguments.mid(1))
                      .exitCode,
                  0);
        EXPECT_FALSE(QDir(files.path(u"data"_s)).exists()) << "reading leaves no trace";
    }
    const ProgramRun unbound = runWithMaps(u"at"_s, {u"--x"_s, u"1"_s, u"--y"_s, u"1"_s});
    EXPECT_EQ(unbound.exitCode, 2);
    EXPECT_THAT(unbound.errors, Holds(u"no PDF is bound"_s));
}

TEST_F(StoreCommands, SayWhatIsNotImported)
{
    const QString report = files.path(u"report.pdf"_s);
    const QString other = files.path(u"other.pdf"_s);
    files.write(u"other.pdf"_s, sampleDocument(u"beta"_s));
    const ProgramRun mixed = runWithMaps(u"import"_s, {other, report});
    EXPECT_EQ(mixed.exitCode, 1);
    EXPECT_EQ(mixed.errors,
              u"tavrin: %1: no map that still wants a PDF recognises it\n"_s.arg(other));
    EXPECT_EQ(storeContents(), QStringList{u"report.pdf"_s}) << "the rest is";

    files.write(u"broken.pdf"_s, "no PDF");
    ASSERT_EQ(run({u"forget"_s, u"report.pdf"_s}).exitCode, 0);
    for (const QString &path :
         {files.path(u"broken.pdf"_s), files.path(u"none.pdf"_s), files.path(u"maps"_s)}) {
        const ProgramRun bad = runWithMaps(u"import"_s, {report, path});
        EXPECT_EQ(bad.exitCode, 2);
        EXPECT_TRUE(bad.output.isEmpty());
        EXPECT_THAT(bad.errors, Holds(path));
        EXPECT_TRUE(storeContents().isEmpty()) << "nothing is copied before all are sound";
    }
}

TEST_F(StoreCommands, ForgetByNameAndByPath)
{
    const QString report = files.path(u"report.pdf"_s);
    for (const QString &name : {u"report.pdf"_s, storePath() + u"/report.pdf"_s}) {
        ASSERT_EQ(runWithMaps(u"import"_s, {report}).exitCode, 0);
        const ProgramRun gone = run({u"forget"_s, u"none.pdf"_s, name});
        EXPECT_EQ(gone.exitCode, 1);
        EXPECT_EQ(gone.output, storePath() + u"/report.pdf: deleted\n"_s);
        EXPECT_EQ(gone.errors, u"tavrin: none.pdf: was not imported\n"_s);
        EXPECT_TRUE(storeContents().isEmpty());
        EXPECT_TRUE(QFile::exists(report));
    }
    EXPECT_EQ(run({u"forget"_s, report}).exitCode, 1) << "the original is not in the store";
    ASSERT_EQ(runWithMaps(u"import"_s, {report}).exitCode, 0);
    EXPECT_EQ(first(run({u"forget"_s, u"--json"_s, u"report.pdf"_s}).array())[u"name"_s],
              u"report.pdf"_s);
}

TEST_F(StoreCommands, SurviveBeingKilledAtAnyPoint)
{
    const QByteArray content = sampleDocument(u"alpha"_s, 24 << 20);
    files.write(u"report.pdf"_s, content);
    const QStringList import{u"import"_s, u"--maps"_s, files.path(u"maps"_s),
                             files.path(u"report.pdf"_s)};
    QElapsedTimer timer;
    timer.start();
    ASSERT_EQ(run(import).exitCode, 0);
    const auto whole = static_cast<int>(timer.elapsed()) + 1;
    ASSERT_TRUE(allStoredAre(content));
    int caught = 0;
    for (int round = 0; round < 24; ++round) {
        run({u"forget"_s, u"report.pdf"_s});
        ASSERT_TRUE(storeContents().isEmpty()) << "a start cleans up";
        const auto process = start(import);
        ASSERT_TRUE(process->waitForStarted());
        if (round % 2 == 0) {
            std::this_thread::sleep_for(
                std::chrono::milliseconds(QRandomGenerator::global()->bounded(whole)));
        } else {
            while (storeContents().isEmpty() && !process->waitForFinished(0)) {
            }
        }
        process->kill();
        process->waitForFinished();
        ASSERT_TRUE(allStoredAre(content)) << "whole or not at all";
        caught += static_cast<int>(!leftovers().isEmpty());
    }
    EXPECT_GT(caught, 0) << "no run was caught in the middle, so this proves nothing";
}

TEST_F(StoreCommands, ImportFromSeveralProcessesAtOnce)
{
    constexpr int count = 8;
    std::vector<QByteArray> contents;
    for (int number = 0; number < count; ++number) {
        const QString word = u"word%1"_s.arg(number);
        writeMap(word, u"%1/maps/map"_s.arg(number));
        contents.push_back(sampleDocument(word, 1 << 20));
        files.write(u"%1/report.pdf"_s.arg(number), contents.back());
    }
    std::vector<std::unique_ptr<QProcess>> processes;
    processes.reserve(count);
    for (int number = 0; number < count; ++number) {
        processes.push_back(start({u"import"_s, u"--maps"_s, files.path(u"%1/maps"_s.arg(number)),
                                   files.path(u"%1/report.pdf"_s.arg(number))}));
    }
    for (const auto &process : processes) {
        ASSERT_TRUE(process->waitForFinished(60000));
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().constData();
    }
    std::vector<QByteArray> stored;
    stored.reserve(count);
    for (const QString &name : storeContents())
        stored.push_back(files.read(u"data/tavrin/tavrin/"_s + name));
    EXPECT_TRUE(storeContents().contains(u"report.pdf"_s));
    EXPECT_TRUE(storeContents().contains(u"report_7.pdf"_s));
    std::sort(stored.begin(), stored.end());
    std::sort(contents.begin(), contents.end());
    EXPECT_TRUE(stored == contents) << "each is there once and whole";
}

TEST_F(StoreCommands, SayThatThereIsNoRoom)
{
    files.write(u"report.pdf"_s, sampleDocument(u"alpha"_s, 1 << 20));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([] {
        const rlimit limit{1 << 16, 1 << 16};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_IGN);
    });
    process.start(QStringLiteral(TAVRIN_PROGRAM),
                  {u"import"_s, u"--maps"_s, files.path(u"maps"_s), files.path(u"report.pdf"_s)});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(process.readAllStandardOutput().isEmpty());
    const QByteArray errors = process.readAllStandardError();
    EXPECT_THAT(errors, Holds("File too large"));
    EXPECT_THAT(errors, Ends("report.pdf: not imported\n"));
    EXPECT_TRUE(storeContents().isEmpty());
}
