// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// Shows which entries of a map are related.
class GraphCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("graph"); }
    QString summary() const override
    {
        return QStringLiteral("draws which entries of a map are related");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
