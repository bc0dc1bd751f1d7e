// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandDescription.h"

namespace Tavrin::CommandLine
{

/// A program with what its manual tells besides its commands.
struct ProgramDescription {
    struct Item {
        QString term;
        QString text;
    };

    /// The program by itself; what it takes where it has no commands.
    CommandDescription program;
    std::vector<CommandDescription> commands;
    /// A command line, and what it does.
    std::vector<Item> examples;
    std::vector<Item> exitCodes;
    std::vector<Item> files;

    /// The command's name without the program's.
    QString shortName(const CommandDescription &command) const
    {
        return command.name().mid(program.name().size() + 1);
    }
};

} // namespace Tavrin::CommandLine
