// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin audit`: tells what a list of references covers of a specification.
class AuditCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("audit"); }
    QString summary() const override
    {
        return QStringLiteral("tells what a list of references covers of a specification");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
