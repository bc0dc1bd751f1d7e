// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin at`: the entry under a point of a page.
class AtCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("at"); }
    QString summary() const override
    {
        return QStringLiteral("tells which entry a point of a page belongs to");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
