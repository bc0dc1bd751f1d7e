// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin inspect`: shows what is on a page: lines, destinations, outline, objects.
class InspectCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("inspect"); }
    QString summary() const override
    {
        return QStringLiteral("shows what is on a page: lines, destinations, outline, objects");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
