// SPDX-License-Identifier: Apache-2.0
#include "AtCommand.h"

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
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

double coordinate(const QCommandLineParser &parser, const QString &option)
{
    bool isNumber = false;
    const double value = parser.value(option).toDouble(&isNumber);
    if (!isNumber)
        throw CommandLineError(u"--%1: a number of points is wanted"_s.arg(option));
    return value;
}

/// The specification whose document is meant: the one that is named, else the only one bound.
std::shared_ptr<PDFSpecification> bound(Library &library, const QStringList &pdfs)
{
    std::vector<std::shared_ptr<PDFSpecification>> candidates;
    for (const auto &any : library.manager().specifications()) {
        auto specification = std::dynamic_pointer_cast<PDFSpecification>(any);
        if (!specification || !specification->document())
            continue;
        if (pdfs.isEmpty() || specification->pdfURL() == fileUrl(pdfs.constFirst()))
            candidates.push_back(std::move(specification));
    }
    if (candidates.empty())
        throw CommandLineError(u"no PDF is bound; name one, or import it"_s);
    if (candidates.size() > 1)
        throw CommandLineError(u"several PDFs are bound; name the one that is meant"_s);
    return candidates.front();
}

} // namespace

QString AtCommand::details() const
{
    return u"Pages count from 1. Points are in page space: origin at the lower left. Without a\n"
           "document, the one that was imported is meant."_s;
}

void AtCommand::describe(CommandDescription &description) const
{
    Library::describe(description);
    description.addOptions({
        {u"page"_s, u"The page."_s, ValueDescription::text(u"N"_s), u"1"_s},
        {u"x"_s, u"Points from the left."_s, ValueDescription::text(u"X"_s)},
        {u"y"_s, u"Points from the bottom."_s, ValueDescription::text(u"Y"_s)},
        {u"json"_s, u"Print as JSON."_s},
    });
    description.addArgument({ValueDescription::pdf(u"DOC.pdf"_s), u"The document."_s,
                             ArgumentDescription::Count::AtMostOne});
}

ExitCode AtCommand::run(const QCommandLineParser &parser) const
{
    const QStringList pdfs = parser.positionalArguments();
    if (pdfs.size() > 1)
        throw CommandLineError(u"one PDF is wanted"_s);
    const int number = wholeNumber(parser, u"page"_s, 1);
    const Point point{coordinate(parser, u"x"_s), coordinate(parser, u"y"_s)};
    Library library(parser, pdfs);
    const auto specification = bound(library, pdfs);
    const auto page = specification->document()->page(number - 1);
    if (!page) {
        Console::complain(u"no page %1; the document has %2"_s.arg(number).arg(
            specification->document()->pageCount()));
        return NotFound;
    }
    const auto entry = specification->closestEntry(HostPDFDestination(page, point));
    if (!entry) {
        Console::complain(localized("no entry there", "a point of a page"));
        return NotFound;
    }
    if (parser.isSet(u"json"_s))
        Console::printJson(EntryReport::json(*entry));
    else
        EntryReport::print(*entry);
    return Success;
}

} // namespace Tavrin::Cli
