// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCommandLineParser>
#include <QString>

#include <commandline/CommandDescription.h>

namespace Tavrin::Cli
{

using CommandLine::ArgumentDescription;
using CommandLine::CommandDescription;
using CommandLine::ValueDescription;

/// What a command tells the shell.
enum ExitCode { Success = 0, NotFound = 1, BadInput = 2 };

/// One command of the program: `tavrin NAME …`.
class Command
{
public:
    virtual ~Command() = default;

    virtual QString name() const = 0;
    /// One line for the list of commands.
    virtual QString summary() const = 0;
    /// More for the command's own help.
    virtual QString details() const = 0;
    /// Adds options and positional arguments.
    virtual void describe(CommandDescription &description) const = 0;
    /// Runs with parsed arguments. Whatever it throws is a fault of the input.
    virtual ExitCode run(const QCommandLineParser &parser) const = 0;
};

} // namespace Tavrin::Cli
