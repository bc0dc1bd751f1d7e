// SPDX-License-Identifier: Apache-2.0
// Writes what each fuzzer starts from: DIR/NAME holds the inputs for NAME.
#include <support/HostilePDF.h>
#include <support/MapBuilder.h>
#include <support/PDFBuilder.h>

#include <QDir>
#include <QFile>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <vector>

using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

using Seeds = std::vector<QByteArray>;

QByteArray plainPages()
{
    PDFBuilder pdf;
    pdf.addPage().column(72, 700, 14,
                         {u"Contents"_s, u"1 Scope ........ 2"_s, u"2 Terms .... 3"_s});
    pdf.addPage()
        .text(72, 700, u"1 Scope"_s, {.font = Font::HelveticaBold, .size = 16})
        .column(72, 660, 12, {u"The first line of a column"_s, u"and the second one"_s})
        .column(320, 660, 12, {u"The other column's line"_s, u"and what follows it"_s})
        .pieces(72, 600, {{u"Table"_s, 4}, {u"of"_s, 40}, {u"cells"_s, 0}});
    pdf.addPage().text(72, 700, u"2 Terms"_s, {.font = Font::TimesItalic}).rotate(90);
    pdf.info("Title", u"A document"_s);
    pdf.pageLabels(0, "<< /S /r >>");
    pdf.pageLabels(1, "<< /S /D /St 1 /P (A-) >>");
    return pdf.build();
}

QByteArray everyDestination()
{
    PDFBuilder pdf;
    pdf.addPageWithBox({{-20, 10}, {500, 700}})
        .text(72, 600, u"4.1 Scope"_s)
        .cropBox({{0, 20}, {400, 600}});
    pdf.addPage()
        .link({{72, 700}, {100, 12}}, Dest::fitting(0, "FitH", {600}))
        .actionLink({{72, 680}, {100, 12}}, Dest::named("table.1"))
        .uriLink({{72, 660}, {100, 12}}, "https://tavrin.example/")
        .note({{72, 640}, {10, 10}}, u"a note"_s);
    pdf.outline({{u"Scope"_s,
                  Dest::xyz(0, 72, 600),
                  {{u"Inner"_s, Dest::fitting(1, "FitR", {1, 2, 3, 4})}}},
                 {u"Terms"_s, Dest::named("table.1"), {}, OutlineItem::Target::GoToAction}});
    pdf.namedDestination("table.1", Dest::xyz(1, 72, 700, 0));
    pdf.namedDestination("bare", Dest::fitting(1, "FitBV", {10}), NameForm::BareArray);
    pdf.namedDestination("old", Dest::fitting(0, "Fit"), NameForm::BareArray,
                         NameListing::CatalogDictionary);
    pdf.namesPerLeaf(1);
    pdf.pagesPerNode(1);
    return pdf.build();
}

QByteArray drawnPage()
{
    PDFBuilder pdf;
    const int form = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 9 9]", "0 0 1 1 re f");
    const int image = pdf.addStream("/Type /XObject /Subtype /Image /Width 2 /Height 2 "
                                    "/ColorSpace /DeviceGray /BitsPerComponent 8",
                                    "abcd");
    pdf.addPage()
        .text(72, 700, u"Turned"_s, {.size = 30, .characterSpacing = 2, .rotation = 45})
        .text(72, 500, u"abc"_s, {.font = Font::Symbol})
        .fill({{10, 10}, {20, 20}}, 0xff8800)
        .stroke({{40, 40}, {20, 20}})
        .entry("Resources", "<< /XObject << /F " + QByteArray::number(form) + " 0 R /I " +
                                QByteArray::number(image) + " 0 R >> >>")
        .operators("q 50 0 0 50 100 100 cm /I Do Q /F Do BI /W 1 /H 1 /BPC 8 /CS /G ID x EI");
    return pdf.build();
}

Seeds pdfs()
{
    return {plainPages(),
            everyDestination(),
            drawnPage(),
            HostilePDF::cyclicPageTree(),
            HostilePDF::hugePageCount(),
            HostilePDF::withoutPages(),
            HostilePDF::deepPageTree(50),
            HostilePDF::wrongInnerPageCounts(),
            HostilePDF::inlinePage(),
            HostilePDF::streamForPages(),
            HostilePDF::catalogLostInRepair(),
            HostilePDF::cyclicNameTree(),
            HostilePDF::outlineLoop(),
            HostilePDF::outlineChildLoop(),
            HostilePDF::deepOutline(50),
            HostilePDF::truncated()};
}

Seeds maps()
{
    MapBuilder map(u"fuzzed"_s, u"1"_s);
    map.attribute(u"lang"_s, u"en"_s)
        .attribute(u"nopreviews"_s, u"1"_s)
        .title(u"A specification"_s, u"Spec"_s)
        .file(u"pdf"_s, u"A,page"_s, u"72.0,72.0,468.0,648.0"_s)
        .entry({.label = u"4.2"_s,
                .index = u"4.2"_s,
                .name = u"Scope"_s,
                .keywords = {u"range"_s, u"limits"_s},
                .internal = u"destination:0,72,700"_s})
        .entry({.label = u"fig-1"_s,
                .type = u"figure"_s,
                .index = u"4-1"_s,
                .name = u"A figure"_s,
                .related = {u"4.2"_s, u"spec://4.2/*/*"_s}});
    const QByteArray plain = map.xml();
    QByteArray naming = plain;
    naming.replace("<spec ", "<!DOCTYPE spec SYSTEM \"spec.dtd\"><spec ");
    QByteArray holding = plain;
    holding.replace("<spec ", "<!DOCTYPE spec [" + MapBuilder::grammar() +
                                  "<!ENTITY e \"x<!-- y -->\">]><spec ");
    holding.replace("Scope", "&e;&#10;<![CDATA[<z>]]>");
    return {plain, naming, holding};
}

Seeds grammars()
{
    return {MapBuilder::grammar(),
            "<!ELEMENT spec ANY><!ATTLIST spec id CDATA 'x' revision CDATA #FIXED '1'>",
            "<!ENTITY % all 'ANY'><!ELEMENT spec %all;><!ENTITY e SYSTEM 'spec.dtd'>",
            "<![INCLUDE[<!NOTATION n PUBLIC 'p'>]]><!ENTITY a 'b'>"};
}

void write(const QDir &directory, const QString &fuzzer, const Seeds &seeds)
{
    if (!directory.mkpath(fuzzer))
        throw std::runtime_error("the directory can't be made");
    int number = 0;
    for (const QByteArray &seed : seeds) {
        QFile file(directory.filePath(u"%1/seed-%2"_s.arg(fuzzer).arg(++number)));
        if (!file.open(QIODevice::WriteOnly) || file.write(seed) != seed.size())
            throw std::runtime_error(file.errorString().toStdString());
    }
}

void writeAll(const QDir &directory)
{
    for (const QString &fuzzer :
         {u"PDFFuzzer"_s, u"DrafterFuzzer"_s, u"DrawingFuzzer"_s, u"EnhancerFuzzer"_s})
        write(directory, fuzzer, pdfs());
    write(directory, u"MapFuzzer"_s, maps());
    write(directory, u"DTDFuzzer"_s, grammars());
    write(directory, u"SpecURLFuzzer"_s,
          {"spec://4.2/fuzzed/1", "spec://fig-1/*/*", "spec://4.2/fuzzed/1/0/3", "spec://%34.2",
           "spec://", "spec://%C3%A4%zz/a b", "4.2"});
    write(directory, u"ReferenceFuzzer"_s,
          {"§ 4.2", "Sec. 4.1-4.2", "FIGURE 4.1", "Tables 4.1 and 4.2", "Clause 4, Fig. 4-1",
           "the title"});
    write(directory, u"AuditFuzzer"_s,
          {"# a comment\r\n4.1\nREQ-1\tFig. 4-1\n=cmd()\t@4.2  # why\n\xc3\xa4 \"q\", 4.1-4.2\n",
           "spec://4.2/fuzzed/1/0/3\nspec://4.2/fuzzed/1/3/0\n4.9\nchapter 4\n",
           "<script>\t]]>\n{\\rtf1}\n\xef\xb7\x90\xf0\x9d\x90\x80\n"});
    write(directory, u"TermFuzzer"_s,
          {"The floating-\npoint unit's inter-\nrupts aren't raised 1,000 times; see 4.2.1, e.g. "
           "x_y.",
           "SE-\nCONDARY resum\xc3\xa9s \xf0\x9d\x90\x80 0x1f 10mm 2nd www.a.b",
           "\xe2\x89\xa0\xcc\xb8="});
    write(directory, u"InternalLinkFuzzer"_s,
          {"outline:Scope", "destination:0,72,540", "rects:0,72.0,100.0,300.0,20.0;1,0,0,1e3,-1",
           "section.4.2", "destination:x", "rects:"});
    write(directory, u"ReadInfoFuzzer"_s,
          {"72.0,72.0,468.0,648.0", "0,0,1e300,-1", "A,page", "nan,inf,1,2"});
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: MakeSeeds DIR\n", stderr);
        return 2;
    }
    try {
        writeAll(QDir(QString::fromLocal8Bit(argv[1])));
    } catch (const std::exception &error) {
        std::fprintf(stderr, "MakeSeeds: %s\n", error.what());
        return 1;
    }
    return 0;
}
