// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QString>

#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/StandardOutput.h>

namespace Tavrin::Cli
{

/// Where the program writes. Colours are used on a terminal alone.
namespace Console
{

/// A line on standard output.
void print(const QString &line);
/// A line on standard error, with the program's name in front.
void complain(const QString &line);
/// A JSON document on standard output.
void printJson(const QJsonValue &value);

/// While it lives, what the library prints of its progress and of trouble carries no styles where
/// the stream is no terminal.
class PlainStreams
{
public:
    PlainStreams();

private:
    StandardOutputRedirection m_output;
    StandardErrorRedirection m_error;
};

/// Marks text if standard output is a terminal.
QString strong(const QString &text);
QString faint(const QString &text);
QString good(const QString &text);
QString bad(const QString &text);

} // namespace Console

} // namespace Tavrin::Cli
