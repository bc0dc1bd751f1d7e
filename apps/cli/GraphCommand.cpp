// SPDX-License-Identifier: Apache-2.0
#include "GraphCommand.h"

#include "CommandLineError.h"
#include "Console.h"
#include "GraphDocument.h"
#include "MapFile.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

QString GraphCommand::details() const
{
    return u"The graph is written to standard output: tavrin graph MAP.xml | dot -Tsvg. Relations "
           "to other\n"
           "specifications are left out. The page of --html loads nothing from elsewhere."_s;
}

void GraphCommand::describe(CommandDescription &description) const
{
    description.addOptions({
        {u"dot"_s, u"In the language of Graphviz; what is written without an option."_s},
        {u"html"_s, u"One page to look at in a browser, complete in itself."_s},
    });
    MapFile::describe(description);
    description.addArgument({ValueDescription::map(u"MAP.xml"_s), u"The map."_s});
}

ExitCode GraphCommand::run(const QCommandLineParser &parser) const
{
    if (parser.positionalArguments().size() != 1)
        throw CommandLineError(u"one map is wanted"_s);
    if (parser.isSet(u"dot"_s) && parser.isSet(u"html"_s))
        throw CommandLineError(u"either --dot or --html"_s);
    const auto specification = MapFile::read(parser, parser.positionalArguments().constFirst());
    const GraphDocument graph(*specification);
    Console::print(parser.isSet(u"html"_s) ? graph.html() : graph.dot());
    return graph.isEmpty() ? NotFound : Success;
}

} // namespace Tavrin::Cli
