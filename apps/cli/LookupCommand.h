// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin lookup`: resolves labels, references and spec URLs to their places.
class LookupCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("lookup"); }
    QString summary() const override
    {
        return QStringLiteral("resolves labels, references and spec URLs to their places");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
