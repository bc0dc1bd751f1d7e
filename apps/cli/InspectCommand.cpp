// SPDX-License-Identifier: Apache-2.0
#include "InspectCommand.h"

#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"
#include "MapFile.h"
#include "PageInspection.h"
#include "PagePicture.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

std::shared_ptr<PDFSpecification> openDocument(const QCommandLineParser &parser)
{
    const QString path = parser.positionalArguments().constFirst();
    if (parser.isSet(u"entries"_s)) {
        auto map = std::dynamic_pointer_cast<PDFSpecification>(
            MapFile::read(parser, parser.value(u"entries"_s)));
        if (!map)
            throw CommandLineError(u"--entries: the map asks for no PDF"_s);
        MapFile::bind(*map, path);
        return map;
    }
    auto document = Specification::make<PDFSpecification>();
    document->setReadingPolicy(PDFReadingPolicy::Common);
    document->loadPDFStructure(openPDF(path));
    return document;
}

} // namespace

QString InspectCommand::details() const
{
    return u"Pages count from 1. Places are in page space: points, origin at the lower left.\n"
           "The picture shows each visual line in a frame with its place in the order; the colour\n"
           "of a frame tells the style of the line. With --entries, lines that are no body text "
           "are grey\n"
           "(\"-\" in the list), headings are marked \"#\", sections have a green frame, figures "
           "and\n"
           "tables a red one."_s;
}

void InspectCommand::describe(CommandDescription &description) const
{
    MapFile::describe(description);
    description.addOptions({
        {u"entries"_s, u"Show the regions of a map's entries, and which lines are body text."_s,
         ValueDescription::map(u"MAP.xml"_s)},
        {u"page"_s, u"The page to show (1)."_s, ValueDescription::text(u"N"_s), u"1"_s},
        {u"png"_s, u"Draw the page with its lines and destinations into a picture."_s,
         ValueDescription::file(u"OUT.png"_s)},
        {u"scale"_s, u"Pixels per point of the picture (2)."_s, ValueDescription::text(u"S"_s),
         u"2"_s},
        {u"json"_s, u"Print as JSON."_s},
    });
    description.addArgument({ValueDescription::pdf(u"DOC.pdf"_s), u"The document."_s});
}

ExitCode InspectCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().size() != 1)
        throw CommandLineError(u"one PDF is wanted"_s);
    const int number = wholeNumber(parser, u"page"_s, 1);
    const double scale = scaleOption(parser);
    const auto document = openDocument(parser);
    auto page = document->document()->page(number - 1);
    if (!page) {
        Console::complain(u"no page %1; the document has %2"_s.arg(number).arg(
            document->document()->pageCount()));
        return NotFound;
    }
    PageInspection inspection(*document, std::move(page));
    if (parser.isSet(u"entries"_s))
        inspection.collectEntries(*document);
    if (parser.isSet(u"json"_s))
        Console::printJson(inspection.json());
    else
        inspection.print();
    const QString png = parser.value(u"png"_s);
    if (!png.isEmpty() && !pagePicture(inspection, scale).save(png, "PNG"))
        throw CommandLineError(png + u": can't be written"_s);
    return Success;
}

} // namespace Tavrin::Cli
