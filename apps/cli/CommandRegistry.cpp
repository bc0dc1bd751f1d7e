// SPDX-License-Identifier: Apache-2.0
#include "CommandRegistry.h"

#include "AccuracyCommand.h"
#include "AtCommand.h"
#include "AuditCommand.h"
#include "CheckCommand.h"
#include "DraftCommand.h"
#include "EnhanceCommand.h"
#include "FilesCommand.h"
#include "ForgetCommand.h"
#include "GraphCommand.h"
#include "ImportCommand.h"
#include "InspectCommand.h"
#include "ListCommand.h"
#include "LookupCommand.h"
#include "SearchCommand.h"
#include "ShowCommand.h"
#include "SimilarCommand.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

CommandDescription describe(const Command &command)
{
    CommandDescription description(u"tavrin "_s + command.name(), command.summary(),
                                   command.details());
    command.describe(description);
    return description;
}

CommandLine::ProgramDescription describeProgram()
{
    CommandDescription program(u"tavrin"_s,
                               u"makes a specification that exists only as a PDF citable"_s,
                               u"A spec map lists the sections, chapters, figures and tables of a "
                               "document; the PDF comes\nfrom the user. From the two the commands "
                               "resolve labels, references and spec URLs to\ntheir places, show, "
                               "search and audit."_s);
    program.addOption({{u"v"_s, u"version"_s}, u"Show the version."_s});
    program.addArgument({{ValueDescription::Kind::Command, u"COMMAND"_s, {}},
                         u"What to do; each command answers --help."_s});
    program.addArgument({ValueDescription::text(u"ARGUMENT"_s), u"What the command takes."_s,
                         ArgumentDescription::Count::Any});
    CommandLine::ProgramDescription result{
        program,
        {},
        {{u"tavrin draft DOC.pdf -o maps/DOC.xml"_s, u"Makes a first map."_s},
         {u"tavrin lookup --maps maps --pdf DOC.pdf \"§ 4.2.1\""_s, u"Tells where it stands."_s}},
        {{u"0"_s, u"done"_s}, {u"1"_s, u"not found or not in order"_s}, {u"2"_s, u"bad input"_s}},
        {{u"$XDG_DATA_HOME/tavrin/tavrin"_s,
          u"Imported copies; ~/.local/share stands in where the variable is not set."_s}}};
    for (const auto &command : allCommands())
        result.commands.push_back(describe(*command));
    return result;
}

std::vector<std::unique_ptr<Command>> allCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<DraftCommand>());
    commands.push_back(std::make_unique<EnhanceCommand>());
    commands.push_back(std::make_unique<CheckCommand>());
    commands.push_back(std::make_unique<ImportCommand>());
    commands.push_back(std::make_unique<FilesCommand>());
    commands.push_back(std::make_unique<ForgetCommand>());
    commands.push_back(std::make_unique<LookupCommand>());
    commands.push_back(std::make_unique<ShowCommand>());
    commands.push_back(std::make_unique<AtCommand>());
    commands.push_back(std::make_unique<SearchCommand>());
    commands.push_back(std::make_unique<SimilarCommand>());
    commands.push_back(std::make_unique<AuditCommand>());
    commands.push_back(std::make_unique<ListCommand>());
    commands.push_back(std::make_unique<InspectCommand>());
    commands.push_back(std::make_unique<GraphCommand>());
    commands.push_back(std::make_unique<AccuracyCommand>());
    return commands;
}

} // namespace Tavrin::Cli
