// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "Command.h"

namespace Tavrin::Cli
{

/// Every command of the program, in the order in which the help lists them.
std::vector<std::unique_ptr<Command>> allCommands();

} // namespace Tavrin::Cli
