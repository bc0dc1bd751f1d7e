// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin similar`: finds the entries most like a text.
class SimilarCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("similar"); }
    QString summary() const override
    {
        return QStringLiteral("finds the entries most like a text");
    }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
