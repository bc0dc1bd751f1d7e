// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <gmock/gmock.h>

#include <support/MapBuilder.h>
#include <support/TemporaryFiles.h>

#include "Program.h"

using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    for (auto all =
             QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
         all.hasNext();)
        found += all.next().captured(1);
    return found;
}

QString manual(const QString &path)
{
    QFile file(QStringLiteral(TAVRIN_MANUALS "/") + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// What a shell prints that has read its completion of `tavrin` and runs a script.
QStringList shell(const QStringList &command, const QString &directory)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, QFileInfo(QStringLiteral(TAVRIN_PROGRAM)).path() + u':' +
                                      environment.value(u"PATH"_s));
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.start(command.constFirst(), command.mid(1));
    EXPECT_TRUE(process.waitForFinished(20000));
    EXPECT_EQ(process.readAllStandardError(), "");
    return QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

/// What bash offers for a line, the last word being what is typed.
QStringList bash(const QStringList &words, const QString &directory)
{
    const QString script =
        u"source '%1/bash-completion/completions/tavrin'; COMP_WORDS=(\"$@\"); "
        "COMP_CWORD=$(($# - 1)); _tavrin; printf '%s\\n' \"${COMPREPLY[@]}\""_s.arg(
            QStringLiteral(TAVRIN_MANUALS));
    return shell(QStringList{u"bash"_s, u"-c"_s, script, u"bash"_s} + words, directory);
}

} // namespace

TEST(Manuals, TellWhatHelpTells)
{
    const QString bashTable = manual(u"bash-completion/completions/tavrin"_s);
    const QString zsh = manual(u"zsh/site-functions/_tavrin"_s);
    const QString fish = manual(u"fish/vendor_completions.d/tavrin.fish"_s);
    const QStringList commands = matches(runTavrin({u"--help"_s}).output, u"^  ([a-z]+)  "_s);
    ASSERT_GE(commands.size(), 16);
    for (const QString &command : commands) {
        const QString page = manual(u"man/man1/tavrin-%1.1"_s.arg(command)).remove(u'\\');
        const QString inBash =
            bashTable.section(u"    %1)\n"_s.arg(command), 1).section(u";;"_s, 0, 0);
        const QString inZsh = zsh.section(u"    %1)\n"_s.arg(command), 1).section(u";;"_s, 0, 0);
        const QString inFish = matches(fish, u"(.*_from %1'.*)$"_s.arg(command)).join(u'\n');
        const QStringList options =
            matches(runTavrin({command, u"--help"_s}).output, u"^  (?:-., )?--([a-z-]+)"_s);
        EXPECT_GE(options.size(), 1) << command.toStdString();
        for (const QString &option : options) {
            const std::string trace = (command + u" --"_s + option).toStdString();
            EXPECT_TRUE(page.contains(u"fB--%1fR"_s.arg(option))) << trace;
            EXPECT_TRUE(inBash.contains(u"--%1:"_s.arg(option))) << trace;
            EXPECT_TRUE(inZsh.contains(QRegularExpression(u"--%1=?\\["_s.arg(option)))) << trace;
            EXPECT_TRUE(inFish.contains(u"-l %1 "_s.arg(option))) << trace;
        }
    }
}

TEST(Manuals, CompleteByKind)
{
    const TemporaryFiles files;
    MapBuilder map(u"engine"_s, u"7"_s);
    map.title(u"Engine"_s)
        .entry({.label = u"Figure 1.1"_s, .type = u"figure"_s, .index = u"1,1"_s, .name = u"A"_s})
        .entry({.label = u"4.2"_s, .index = u"4.2"_s, .name = u"B"_s});
    map.write(files, u"maps/engine.xml"_s);
    files.write(u"maps/engine.dtd"_s, MapBuilder::grammar());
    files.write(u"a b.PDF"_s, "");
    const auto offers = [&](const QStringList &words) {
        return bash(QStringList{u"tavrin"_s} + words, files.path());
    };
    using testing::ElementsAre;
    using testing::UnorderedElementsAre;
    EXPECT_THAT(offers({u"dr"_s}), ElementsAre(u"draft"_s));
    EXPECT_THAT(offers({u"audit"_s, u"--fo"_s}), ElementsAre(u"--format"_s));
    EXPECT_THAT(offers({u"audit"_s, u"--format"_s, u"="_s, u"j"_s}),
                ElementsAre(u"json"_s, u"junit"_s));
    EXPECT_THAT(offers({u"draft"_s, u""_s}), UnorderedElementsAre(u"a b.PDF"_s, u"maps"_s));
    EXPECT_THAT(offers({u"check"_s, u"--pdf"_s, u"a b.PDF"_s, u"maps/"_s}),
                ElementsAre(u"maps/engine.xml"_s));
    EXPECT_THAT(offers({u"lookup"_s, u"--maps"_s, u"maps"_s, u"4.2"_s, u"Figure\\ 1"_s}),
                ElementsAre(u"Figure 1.1"_s));
    if (!QStandardPaths::findExecutable(u"fish"_s).isEmpty()) {
        const auto fish =
            shell({u"fish"_s, u"--no-config"_s, u"-c"_s,
                   u"source '%1/fish/vendor_completions.d/tavrin.fish'; complete -C "
                   "'tavrin lookup --maps maps 4'"_s.arg(QStringLiteral(TAVRIN_MANUALS))},
                  files.path());
        EXPECT_THAT(fish, testing::Contains(u"4.2\tSection 4.2  B"_s));
    }
    if (!QStandardPaths::findExecutable(u"zsh"_s).isEmpty()) {
        EXPECT_THAT(
            shell({u"zsh"_s, u"-n"_s, QStringLiteral(TAVRIN_MANUALS "/zsh/site-functions/_tavrin")},
                  files.path()),
            testing::IsEmpty());
    }
}
