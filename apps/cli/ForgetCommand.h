// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin forget`: deletes files of the user's store.
class ForgetCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("forget"); }
    QString summary() const override { return QStringLiteral("deletes imported copies"); }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
