// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin list`: lists specifications and their entries.
class ListCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("list"); }
    QString summary() const override
    {
        return QStringLiteral("lists specifications and their entries");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
