// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QDir>

#include <support/Corpus.h>

#include "DraftedManual.h"

namespace
{

class EnhanceCommands : public DraftedManual
{
protected:
    static ProgramRun enhance(const QString &output, const QStringList &options = {})
    {
        return runTavrin(QStringList{u"enhance"_s, map(), pdf(), u"-o"_s, files().path(output)} +
                         options);
    }

    static std::string textOf(const QString &name) { return files().read(name).toStdString(); }
};

} // namespace

TEST_F(EnhanceCommands, WriteAMapThatHoldsAgainstThePDF)
{
    const ProgramRun run = enhance(u"whole.xml"_s);
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_THAT(run.output.toStdString(),
                AllOf(HasSubstr("Extracting keywords..."), HasSubstr("Computing related items..."),
                      HasSubstr("9 entries: 9 linked, 0 without a place; "),
                      Not(HasSubstr("\x1b"))));
    EXPECT_FALSE(run.errors.contains(u'\x1b')) << "standard error is no terminal";
    EXPECT_THAT(textOf(u"whole.xml"_s), HasSubstr("<keywords>"));
    const ProgramRun check =
        runTavrin({u"check"_s, files().path(u"whole.xml"_s), u"--pdf"_s, pdf()});
    EXPECT_EQ(check.exitCode, 0) << check.output.toStdString();
}

TEST_F(EnhanceCommands, WriteTheSameMapEachTime)
{
    enhance(u"first.xml"_s);
    enhance(u"second.xml"_s);
    EXPECT_EQ(textOf(u"first.xml"_s), textOf(u"second.xml"_s));
    EXPECT_NE(textOf(u"first.xml"_s), "");
}

TEST_F(EnhanceCommands, TuneWhatIsFound)
{
    EXPECT_EQ(enhance(u"none.xml"_s, {u"--keywords"_s, u"0"_s, u"--related"_s, u"0"_s}).exitCode,
              0);
    EXPECT_THAT(textOf(u"none.xml"_s), Not(HasSubstr("<item>")));
    const ProgramRun markers =
        enhance(u"marked.xml"_s, {u"--required-marker="_s, u"--type-marker"_s, u"s.=section"_s});
    EXPECT_EQ(markers.exitCode, 0) << markers.errors.toStdString();
    for (const QStringList &wrong : {QStringList{u"--type-marker"_s, u"s.=part"_s},
                                     {u"--keywords"_s, u"-1"_s},
                                     {u"--pruning"_s, u"2"_s},
                                     {u"--title-weight"_s, u"much"_s}})
        EXPECT_EQ(enhance(u"wrong.xml"_s, wrong).exitCode, 2) << wrong.join(u' ').toStdString();
    EXPECT_EQ(runTavrin({u"enhance"_s, map(), pdf()}).exitCode, 2);
    EXPECT_EQ(runTavrin({u"enhance"_s, map(), u"no.pdf"_s, u"-o"_s, u"x.xml"_s}).exitCode, 2);
}

TEST_F(EnhanceCommands, ApproximateWithoutDestinations)
{
    const ProgramRun run = enhance(u"approximated.xml"_s, {u"--approximate"_s});
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_THAT(run.output.toStdString(),
                AllOf(HasSubstr("Inferring links from outline and layout-breaking regions..."),
                      HasSubstr("9 linked")));
}

TEST_F(EnhanceCommands, DrawTheGraph)
{
    enhance(u"graph.xml"_s, {u"--pruning"_s, u"0"_s});
    const QString path = files().path(u"graph.xml"_s);
    const ProgramRun dot = runTavrin({u"graph"_s, path, u"--dot"_s});
    EXPECT_EQ(dot.exitCode, 0) << dot.errors.toStdString();
    EXPECT_THAT(dot.output.toStdString(), AllOf(testing::StartsWith("digraph related {"),
                                                HasSubstr(" -> "), HasSubstr("Things to do last")));
    const ProgramRun html = runTavrin({u"graph"_s, path, u"--html"_s});
    EXPECT_EQ(html.exitCode, 0);
    EXPECT_THAT(html.output.toStdString(),
                AllOf(HasSubstr("<!DOCTYPE html>"), HasSubstr("Things to do last"),
                      Not(HasSubstr("@GRAPH@")), Not(HasSubstr("http://")),
                      Not(HasSubstr("https://"))));
    EXPECT_EQ(runTavrin({u"graph"_s, map(), u"--dot"_s}).exitCode, 1);
    EXPECT_EQ(runTavrin({u"graph"_s, path, u"--dot"_s, u"--html"_s}).exitCode, 2);
}

TEST(SampleMaps, HoldAgainstTheirDocuments)
{
    const QDir samples(QStringLiteral(TAVRIN_SAMPLES));
    const QStringList maps = samples.entryList({u"*.xml"_s});
    EXPECT_EQ(maps.size(), 3);
    for (const QString &map : maps) {
        QStringList arguments{u"check"_s, samples.filePath(map)};
        const auto pdf = corpusFile(QString(map).replace(u".xml"_s, u".pdf"_s));
        if (pdf)
            arguments << u"--pdf"_s << *pdf;
        const ProgramRun run = runTavrin(arguments);
        EXPECT_EQ(run.exitCode, 0) << run.output.toStdString() << run.errors.toStdString();
    }
}
