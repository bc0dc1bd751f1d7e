// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin check`: checks a map, and with a PDF whether its entries stand where it says.
class CheckCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("check"); }
    QString summary() const override
    {
        return QStringLiteral(
            "checks a map, and with a PDF whether its entries stand where it says");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
