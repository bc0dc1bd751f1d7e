// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin search`: finds entries by words.
class SearchCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("search"); }
    QString summary() const override { return QStringLiteral("finds entries by words"); }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
