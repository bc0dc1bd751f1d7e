// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Command.h"

namespace Tavrin::Cli
{

/// `tavrin files`: lists the files of the user's store.
class FilesCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("files"); }
    QString summary() const override { return QStringLiteral("lists the imported PDFs"); }
    QString details() const override;
    void describe(CommandDescription &description) const override;
    ExitCode run(const QCommandLineParser &parser) const override;
};

} // namespace Tavrin::Cli
