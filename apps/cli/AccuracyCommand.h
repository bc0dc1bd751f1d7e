// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin accuracy`: measures what is read of a document against a table of what it holds.
class AccuracyCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("accuracy"); }
    QString summary() const override
    {
        return QStringLiteral("measures what is read of a document against a table of truth");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
