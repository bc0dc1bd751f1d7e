// SPDX-License-Identifier: Apache-2.0
#include "DraftCommand.h"

#include <QFileInfo>

#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "Library.h"
#include "ShippedDTD.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

QString DraftCommand::details() const
{
    return u"Entries come from the outline; from a document without one, from its table of "
           u"contents\n"
           "or the headings of its pages. Numbers and titles are those that are printed, links "
           "lead\n"
           "to the headings themselves, and running heads and feet are measured so that they can "
           "be\n"
           "left out. What could not be told is said on standard error. The map stands by itself: "
           "it\n"
           "holds its DTD. Read it, mend it, and let tavrin check hold it against the PDF."_s;
}

void DraftCommand::describe(CommandDescription &description) const
{
    description.addOptions({
        {{u"o"_s, u"output"_s},
         u"Write the map to this file; else to standard output."_s,
         ValueDescription::map(u"MAP.xml"_s)},
        {u"dtd"_s, u"Make this DTD part of the map instead of the one that comes with Tavrin."_s,
         ValueDescription::file(u"D.dtd"_s)},
        {u"id"_s, u"The specification's identifier; else made from its title."_s,
         ValueDescription::text(u"ID"_s)},
        {u"revision"_s, u"Its revision; else as the document tells it."_s,
         ValueDescription::text(u"REV"_s)},
        {u"title"_s, u"Its title; else the document's."_s, ValueDescription::text(u"TITLE"_s)},
    });
    description.addArgument({ValueDescription::pdf(u"DOC.pdf"_s), u"The document."_s});
}

ExitCode DraftCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().size() != 1)
        throw CommandLineError(u"one PDF is wanted"_s);
    const QString path = parser.positionalArguments().constFirst();
    const auto document = openPDF(path);
    MapDraft draft = MapDrafter::draft(document, QFileInfo(path).completeBaseName());
    if (parser.isSet(u"id"_s))
        draft.identifier = parser.value(u"id"_s);
    if (parser.isSet(u"revision"_s))
        draft.revision = parser.value(u"revision"_s);
    if (parser.isSet(u"title"_s))
        draft.title = draft.shortTitle = parser.value(u"title"_s);
    for (const QString &remark : draft.remarks)
        Console::complain(path + u": "_s + remark);
    if (draft.entries.empty()) {
        Console::complain(path + u": no headings found, so there is no map to write"_s);
        return NotFound;
    }
    const ShippedDTD shipped;
    const QUrl dtd = parser.isSet(u"dtd"_s) ? fileUrl(parser.value(u"dtd"_s)) : shipped.url();
    const QString map = MapDrafter::specification(draft, document)->writeSpecToXMLString(dtd);
    if (!parser.isSet(u"output"_s)) {
        Console::print(map);
        return Success;
    }
    const QString output = parser.value(u"output"_s);
    writeMap(map, output);
    Console::print(
        localized("%1: %2, %3 entries", "a map that was written")
            .arg(output, Console::strong(draft.title), QString::number(draft.entries.size())));
    return Success;
}

} // namespace Tavrin::Cli
