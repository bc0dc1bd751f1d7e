// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin draft`: makes a first map out of a PDF.
class DraftCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("draft"); }
    QString summary() const override { return QStringLiteral("makes a first map out of a PDF"); }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
