// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// Makes a whole map out of a skeleton and its PDF.
class EnhanceCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("enhance"); }
    QString summary() const override
    {
        return QStringLiteral("adds links, keywords and related entries to a map");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
