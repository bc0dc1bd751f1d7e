// SPDX-License-Identifier: Apache-2.0
#include "ListCommand.h"

#include <QJsonArray>

#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "CommandLineError.h"
#include "Console.h"
#include "EntryReport.h"
#include "Library.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

using EntryPtr = std::shared_ptr<SpecificationEntry>;

std::vector<EntryPtr> entriesInOrder(const Specification &specification,
                                     const std::optional<SpecificationEntryType> &type)
{
    std::vector<EntryPtr> entries;
    for (const EntryPtr &entry : specification.entries()) {
        if (!type || entry->type() == *type)
            entries.push_back(entry);
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const EntryPtr &a, const EntryPtr &b) { return entryPrecedes(*a, *b); });
    return entries;
}

std::optional<SpecificationEntryType> typeOption(const QCommandLineParser &parser)
{
    if (!parser.isSet(u"type"_s))
        return std::nullopt;
    const auto type = entryTypeFromText(parser.value(u"type"_s));
    if (!type) {
        throw CommandLineError(u"--type %1: not one of section, chapter, figure, table"_s.arg(
            parser.value(u"type"_s)));
    }
    return type;
}

/// The number of pages of the bound PDF; 0 without one.
int boundPages(const Specification &specification)
{
    const auto *withPDF = dynamic_cast<const PDFSpecification *>(&specification);
    return withPDF && withPDF->document() ? withPDF->document()->pageCount() : 0;
}

void printEntry(const SpecificationEntry &entry, bool isBound)
{
    const QString place = isBound ? u"  "_s + Console::faint(EntryReport::place(entry)) : QString();
    Console::print(u"    "_s + EntryReport::heading(entry) + place);
}

void printSpecification(const Specification &specification)
{
    const int pages = boundPages(specification);
    Console::print(Console::strong(specification.title()));
    Console::print(u"    "_s +
                   localized("%1, revision %2, %3 entries, %4", "a specification")
                       .arg(specification.identifier(), specification.revision(),
                            QString::number(specification.entryCount()),
                            pages > 0
                                ? localized("PDF of %1 pages bound", "a specification").arg(pages)
                                : localized("no PDF bound", "a specification")));
}

/// For shells that complete labels, which wait for it: no PDF is looked at.
void printLabels(const QCommandLineParser &parser,
                 const std::optional<SpecificationEntryType> &type)
{
    SpecificationManager manager;
    manager.setAuxiliaryFiles({});
    Library::registerMaps(manager, parser);
    for (const auto &specification : manager.specifications()) {
        if (specification->entries().isEmpty())
            specification->loadStructure();
        for (const EntryPtr &entry : entriesInOrder(*specification, type))
            Console::print(entry->label() + u'\t' + EntryReport::heading(*entry));
    }
}

} // namespace

QString ListCommand::details() const
{
    return u"Without --entries it names the specifications alone; with a PDF bound, entries come "
           "with\n"
           "their places."_s;
}

void ListCommand::describe(CommandDescription &description) const
{
    Library::describe(description);
    description.addOptions({
        {u"entries"_s, u"List the entries too, in document order."_s},
        {u"type"_s, u"Only entries of this kind: section, chapter, figure or table."_s,
         ValueDescription::choice(u"TYPE"_s,
                                  {u"section"_s, u"chapter"_s, u"figure"_s, u"table"_s})},
        {u"labels"_s,
         u"Print nothing but a line for each entry: its label, a tab, and what it is called."_s},
        {u"json"_s, u"Print as JSON."_s},
    });
}

ExitCode ListCommand::run(const QCommandLineParser &parser) const
{
    const auto type = typeOption(parser);
    if (parser.isSet(u"labels"_s)) {
        printLabels(parser, type);
        return Success;
    }
    const bool withEntries = type || parser.isSet(u"entries"_s);
    const bool asJson = parser.isSet(u"json"_s);
    Library library(parser);
    QJsonArray specifications;
    for (const auto &specification : library.loadedSpecifications()) {
        QJsonObject object{{u"identifier"_s, specification->identifier()},
                           {u"revision"_s, specification->revision()},
                           {u"title"_s, specification->title()}};
        if (!asJson)
            printSpecification(*specification);
        const bool isBound = boundPages(*specification) > 0;
        QJsonArray entries;
        for (const EntryPtr &entry :
             withEntries ? entriesInOrder(*specification, type) : std::vector<EntryPtr>{}) {
            entries.append(EntryReport::json(*entry));
            if (!asJson) {
                printEntry(*entry, isBound);
            }
        }
        object[u"entryCount"_s] = specification->entryCount();
        if (withEntries)
            object[u"entries"_s] = entries;
        specifications.append(object);
    }
    if (asJson)
        Console::printJson(specifications);
    return Success;
}

} // namespace Tavrin::Cli
