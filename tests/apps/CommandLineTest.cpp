// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/platform/TavrinVersion.h>
#include <support/HostilePDF.h>
#include <support/MapBuilder.h>
#include <support/TemporaryFiles.h>

#include "Program.h"

namespace
{

const QStringList commands{u"draft"_s,   u"check"_s,    u"lookup"_s,  u"show"_s,
                           u"at"_s,      u"search"_s,   u"similar"_s, u"list"_s,
                           u"inspect"_s, u"accuracy"_s, u"enhance"_s, u"graph"_s,
                           u"import"_s,  u"files"_s,    u"forget"_s,  u"audit"_s};

void expectRefused(const QStringList &arguments, const QString &fault)
{
    SCOPED_TRACE(arguments.join(u' ').toStdString());
    expectRefusal(runTavrin(arguments), fault);
}

QString writeGoodMap(const TemporaryFiles &files, const QString &name)
{
    MapBuilder map(u"engine"_s, u"7"_s);
    map.title(u"Engine"_s).entry({.label = u"1"_s, .index = u"1"_s, .name = u"Scope"_s});
    map.write(files, name);
    files.write(QString(name).replace(u".xml"_s, u".dtd"_s), MapBuilder::grammar());
    return files.path(name);
}

} // namespace

TEST(CommandLine, ExplainsItself)
{
    const ProgramRun overview = runTavrin({u"--help"_s});
    EXPECT_EQ(overview.exitCode, 0);
    EXPECT_EQ(runTavrin({u"help"_s}).output, overview.output);
    for (const QString &command : commands) {
        EXPECT_TRUE(overview.output.contains(u"\n  "_s + command + u' ')) << command.toStdString();
        const ProgramRun help = runTavrin({command, u"--help"_s});
        EXPECT_EQ(help.exitCode, 0) << command.toStdString();
        EXPECT_THAT(help.output, Begins(u"Usage: tavrin "_s + command + u' '));
        EXPECT_THAT(help.output, Holds(u"--help"_s));
        EXPECT_TRUE(help.errors.isEmpty()) << help.errors.toStdString();
        EXPECT_EQ(runTavrin({u"help"_s, command}).output, help.output);
    }
    const ProgramRun version = runTavrin({u"--version"_s});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.output, u"tavrin %1\n"_s.arg(Tavrin::TavrinVersionString));
    EXPECT_TRUE(Tavrin::TavrinVersionString.startsWith(
        QString::number(Tavrin::TavrinVersionNumber, 'f', 1) + u'.'));
}

TEST(CommandLine, RefusesWhatItDoesNotKnow)
{
    expectRefused({}, u"no command"_s);
    expectRefused({u"explode"_s}, u"explode"_s);
    expectRefused({u"help"_s, u"explode"_s}, u"explode"_s);
    for (const QString &command : commands)
        expectRefused({command, u"--explode"_s}, u"tavrin %1 --help"_s.arg(command));
    expectRefused({u"lookup"_s, u"--maps"_s}, u"maps"_s);
    for (const QString &command : {u"lookup"_s, u"search"_s, u"similar"_s})
        expectRefused({command, u"4.2"_s}, u"--maps DIR"_s);
    expectRefused({u"list"_s}, u"--maps DIR"_s);
    expectRefused({u"import"_s}, u"nothing"_s);
    expectRefused({u"forget"_s}, u"nothing"_s);
    expectRefused({u"files"_s, u"a.pdf"_s}, u"no arguments"_s);
}

TEST(CommandLine, WantsTheArgumentsOfACommand)
{
    const TemporaryFiles files;
    writeGoodMap(files, u"a.xml"_s);
    for (const QString &command : {u"lookup"_s, u"search"_s, u"similar"_s})
        expectRefused({command, u"--maps"_s, files.path()}, u"nothing"_s);
    expectRefused({u"search"_s, u"--maps"_s, files.path(), u" "_s}, u"nothing"_s);
    expectRefused({u"search"_s, u"--maps"_s, files.path(), u"--limit"_s, u"few"_s, u"x"_s},
                  u"--limit few"_s);
    expectRefused({u"similar"_s, u"--maps"_s, files.path(), u"--count"_s, u"0"_s, u"x"_s},
                  u"--count 0"_s);
    expectRefused({u"list"_s, u"--maps"_s, files.path(), u"--type"_s, u"poem"_s}, u"poem"_s);
    for (const QString &command : {u"draft"_s, u"check"_s, u"inspect"_s}) {
        expectRefused({command}, u"one "_s);
        expectRefused({command, u"a"_s, u"b"_s}, u"one "_s);
    }
}

TEST(CommandLine, RefusesBrokenFilesByName)
{
    const TemporaryFiles files;
    const QString noPDF = files.path(u"text.pdf"_s);
    files.write(u"text.pdf"_s, "this is text");
    files.write(u"cut.pdf"_s, HostilePDF::withoutPages());
    const QString good = writeGoodMap(files, u"maps/good.xml"_s);
    const QStringList withMaps{u"--maps"_s, files.path(u"maps"_s)};

    for (const QString &command : {u"draft"_s, u"check"_s, u"inspect"_s})
        expectRefused({command, files.path(u"none"_s)}, u"none: "_s);
    for (const QString &command : {u"draft"_s, u"check"_s, u"inspect"_s})
        expectRefused({command, noPDF}, u"text.pdf:"_s);
    for (const QString &pdf : {noPDF, files.path(u"none.pdf"_s)}) {
        expectRefused(QStringList{u"lookup"_s} + withMaps + QStringList{u"--pdf"_s, pdf, u"1"_s},
                      pdf + u": "_s);
        EXPECT_EQ(runTavrin({u"check"_s, good, u"--dtd"_s, files.path(u"maps/good.dtd"_s),
                             u"--pdf"_s, pdf})
                      .exitCode,
                  2);
    }
    expectRefused({u"check"_s, good}, u"good.xml: The map names no DTD"_s);
    expectRefused({u"check"_s, good, u"--dtd"_s, files.path(u"none.dtd"_s)}, u"none.dtd: "_s);
    expectRefused({u"list"_s, u"--maps"_s, files.path(u"none"_s)}, u"none: "_s);
    expectRefused({u"list"_s, u"--maps"_s, files.path()}, u"no map"_s);
    expectRefused({u"draft"_s, noPDF, u"-o"_s, files.path(u"none/map.xml"_s)}, u"text.pdf"_s);
}

TEST(CommandLine, RefusesBrokenMapsByNameAndLine)
{
    const TemporaryFiles files;
    const QString map = writeGoodMap(files, u"maps/engine.xml"_s);
    const QByteArray good = files.read(u"maps/engine.xml"_s);
    const QString dtd = files.path(u"maps/engine.dtd"_s);
    const std::pair<QByteArray, QByteArray> faults[] = {
        {"</spec>", ""},                            // not well-formed
        {"<entry ", "<poem/><entry "},              // not what the DTD allows
        {"type=\"section\"", "type=\"paragraph\""}, // nor this
    };
    for (const auto &[from, to] : faults) {
        QByteArray broken = good;
        broken.replace(from, to);
        ASSERT_NE(broken, good) << from.constData();
        files.write(u"maps/engine.xml"_s, broken);
        expectRefused({u"check"_s, map, u"--dtd"_s, dtd}, u"engine.xml:"_s);
        expectRefused({u"lookup"_s, u"--maps"_s, files.path(u"maps"_s), u"1"_s}, u"engine.xml:"_s);
    }
}
