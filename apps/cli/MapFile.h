// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCommandLineParser>

#include <memory>

#include <Tavrin/model/Specification.h>
#include <commandline/CommandDescription.h>

namespace Tavrin::Cli
{

/// One map given by its path, for commands that look at a map rather than at a library.
namespace MapFile
{

/// Adds `--dtd`.
void describe(CommandLine::CommandDescription &description);

/// Reads the map with its table. Throws what is wrong with it.
std::shared_ptr<Specification> read(const QCommandLineParser &parser, const QString &path);

/// Binds the PDF even if its first page is another than the map's; says so then, and returns
/// false. Throws CommandLineError.
bool bind(Specification &specification, const QString &pdf);

} // namespace MapFile

} // namespace Tavrin::Cli
