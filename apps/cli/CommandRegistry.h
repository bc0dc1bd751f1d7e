// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include <commandline/ProgramDescription.h>

#include "Command.h"

namespace Tavrin::Cli
{

/// The program, its commands and what it says of itself.
CommandLine::ProgramDescription describeProgram();

/// What a command takes.
CommandDescription describe(const Command &command);

/// Every command of the program, in the order in which the help lists them.
std::vector<std::unique_ptr<Command>> allCommands();

} // namespace Tavrin::Cli
