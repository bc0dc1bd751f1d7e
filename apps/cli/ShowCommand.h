// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin show`: an entry as a reader sees it, with its text or its picture.
class ShowCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("show"); }
    QString summary() const override
    {
        return QStringLiteral("shows an entry: its text, or the picture of a figure or table");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
