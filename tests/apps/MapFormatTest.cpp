// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QFile>

#include <stdexcept>

#include <support/MapBuilder.h>

#include "DraftedManual.h"

namespace
{

/// The whole map that docs/map-format.md shows, and the document that it describes.
class MapFormat : public DraftedManual
{
protected:
    MapFormat()
    {
        PDFBuilder builder = manual();
        builder.addPage()
            .text(72, 700, u"A  Drawings"_s, {Font::HelveticaBold, 18})
            .stroke({{100, 450}, {300, 150}})
            .text(72, 410, u"Figure 4-1  Section of a valve"_s);
        builder.namedDestination("appendix.A", Dest::xyz(4, 72, 720));
        files().write(u"shown/manual.pdf"_s, builder.build());
        files().write(u"shown/spec.dtd"_s, MapBuilder::grammar());
        write(example());
    }

    static QByteArray example()
    {
        QFile page(QStringLiteral(TAVRIN_DOCS "/map-format.md"));
        if (!page.open(QIODevice::ReadOnly))
            throw std::runtime_error("docs/map-format.md can't be read");
        const QByteArray text = page.readAll();
        const qsizetype start = text.indexOf("<?xml");
        return text.mid(start, text.indexOf("```", start) - start);
    }

    static void write(const QByteArray &map) { files().write(u"shown/engine.xml"_s, map); }

    static ProgramRun check(const QStringList &arguments = {})
    {
        return runTavrin(QStringList{u"check"_s, files().path(u"shown/engine.xml"_s)} + arguments);
    }
};

} // namespace

TEST_F(MapFormat, ExampleOfTheManualIsInPlace)
{
    const ProgramRun run = check({u"--pdf"_s, files().path(u"shown/manual.pdf"_s)});
    EXPECT_EQ(run.exitCode, 0) << run.output.toStdString() << run.errors.toStdString();
    EXPECT_EQ(run.output, u"The Manual of the Engine: valid, 4 entries\n"
                          "4 entries, 4 with a place, 4 with their title printed there\n"_s);
    EXPECT_TRUE(run.errors.isEmpty()) << run.errors.toStdString();
}

TEST_F(MapFormat, ChecksWhatADTDCannotTell)
{
    write(example()
              .replace("label=\"A\"", "label=\"3.2\"")
              .replace("<item>1</item>", "<item>9.9</item>")
              .replace("label=\"1\"", "label=\"1/2\""));
    const QStringList faults{
        u"label \"3.2\" stands twice; only the first entry counts"_s,
        u"entry \"1/2\": its spec URL spec://1%2F2/engine/7 does not lead back to it"_s,
        u"entry \"3.2\": no entry has the related label \"9.9\""_s};
    const ProgramRun run = check();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output,
              u"The Manual of the Engine: valid, 3 entries\n"_s + faults.join(u'\n') + u'\n');
    write(
        example().replace("<item>1</item>", "<item>spec://1/*/*</item><item>spec://1/x/2</item>"));
    EXPECT_EQ(check().exitCode, 0) << "an entry of this map, and one of another";
    write(example().replace("<item>1</item>", "<item>spec://1/*/*/7/3</item>"));
    EXPECT_EQ(check().exitCode, 2);
}

TEST_F(MapFormat, TellsTheFaultsAsData)
{
    write(example().replace("<item>1</item>", "<item>9.9</item>"));
    const QStringList faults{u"entry \"3.2\": no entry has the related label \"9.9\""_s};
    const ProgramRun json = check({u"--json"_s});
    EXPECT_EQ(json.exitCode, 1);
    EXPECT_EQ(json.object()[u"mapFaults"_s].toArray(), QJsonArray::fromStringList(faults));
}
