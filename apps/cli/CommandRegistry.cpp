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
