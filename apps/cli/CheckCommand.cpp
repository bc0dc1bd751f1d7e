// SPDX-License-Identifier: Apache-2.0
#include "CheckCommand.h"

#include <QJsonArray>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "EntryReport.h"
#include "Library.h"
#include "MapCheck.h"
#include "MapFile.h"
#include "TitleCheck.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

/// What was found out about the entries of a map.
struct Tally {
    int entries = 0;
    int placed = 0;
    int titled = 0;
    QJsonArray faults;

    bool isClean() const { return faults.isEmpty(); }
};

void report(const PDFSpecification::Entry &entry, const QString &fault, bool asJson, Tally &tally)
{
    QJsonObject object = EntryReport::json(entry);
    object[u"fault"_s] = fault;
    tally.faults.append(object);
    if (!asJson) {
        Console::print(Console::bad(fault) + u"  "_s + EntryReport::heading(entry) + u"  ("_s +
                       EntryReport::place(entry) + u')');
    }
}

Tally checkPlaces(const PDFSpecification &specification, bool asJson)
{
    Tally tally;
    for (const auto &any : specification.entries()) {
        const auto &entry = static_cast<const PDFSpecification::Entry &>(*any);
        ++tally.entries;
        if (!entry.destination() || !entry.destination()->page()) {
            report(entry, localized("no place", "fault of an entry"), asJson, tally);
            continue;
        }
        ++tally.placed;
        const TitleCheck::Result result = TitleCheck::check(entry);
        if (result.isAtPlace)
            ++tally.titled;
        else
            report(entry, result.message, asJson, tally);
    }
    return tally;
}

/// Holds the map against the PDF, and says so. False if anything is at fault.
bool checkAgainstPDF(Specification &specification, const QString &pdf, bool asJson,
                     QJsonObject &object)
{
    const bool isRecognised = MapFile::bind(specification, pdf);
    const Tally tally = checkPlaces(dynamic_cast<const PDFSpecification &>(specification), asJson);
    object[u"recognised"_s] = isRecognised;
    object[u"placed"_s] = tally.placed;
    object[u"titled"_s] = tally.titled;
    object[u"faults"_s] = tally.faults;
    if (!asJson) {
        const QString counts =
            localized("%1 entries, %2 with a place, %3 with their title printed there",
                      "a map held against its PDF")
                .arg(tally.entries)
                .arg(tally.placed)
                .arg(tally.titled);
        Console::print(tally.isClean() ? Console::good(counts) : Console::bad(counts));
    }
    return isRecognised && tally.isClean();
}

} // namespace

QString CheckCommand::details() const
{
    return u"Without a PDF the map is validated and read; a label that stands twice, a related\n"
           "label that no entry has, and a label that no spec URL leads to are faults. With a "
           "PDF,\n"
           "each entry whose place does not resolve is listed, and each whose title is not "
           "printed\n"
           "there; a figure or table may have its caption anywhere below its place on the page.\n"
           "Exit code 1 says that an entry, or the map's verifier, is at fault."_s;
}

void CheckCommand::describe(CommandDescription &description) const
{
    MapFile::describe(description);
    description.addOptions({
        {u"pdf"_s, u"The PDF to hold the map against."_s, ValueDescription::pdf(u"DOC.pdf"_s)},
        {u"json"_s, u"Print counts and faults as JSON."_s},
    });
    description.addArgument({ValueDescription::map(u"MAP.xml"_s), u"The map."_s});
}

ExitCode CheckCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().size() != 1)
        throw CommandLineError(u"one map is wanted"_s);
    const QString path = parser.positionalArguments().constFirst();
    const bool asJson = parser.isSet(u"json"_s);
    const auto specification = MapFile::read(parser, path);
    QJsonObject object{{u"identifier"_s, specification->identifier()},
                       {u"revision"_s, specification->revision()},
                       {u"title"_s, specification->title()},
                       {u"entryCount"_s, specification->entryCount()}};
    if (!asJson) {
        Console::print(localized("%1: valid, %2 entries", "a map")
                           .arg(Console::strong(specification->title()),
                                QString::number(specification->entryCount())));
    }
    const QStringList mapFaults = MapCheck::faults(*specification);
    object[u"mapFaults"_s] = QJsonArray::fromStringList(mapFaults);
    for (const QString &fault : asJson ? QStringList() : mapFaults)
        Console::print(Console::bad(fault));
    bool isClean = mapFaults.isEmpty();
    if (parser.isSet(u"pdf"_s))
        isClean =
            checkAgainstPDF(*specification, parser.value(u"pdf"_s), asJson, object) && isClean;
    if (asJson)
        Console::printJson(object);
    return isClean ? Success : NotFound;
}

} // namespace Tavrin::Cli
