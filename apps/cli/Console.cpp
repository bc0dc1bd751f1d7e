// SPDX-License-Identifier: Apache-2.0
#include "Console.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

#include <cstdio>

#include <Tavrin/platform/TerminalStyle.h>

namespace Tavrin::Cli::Console
{

namespace
{

void write(std::FILE *file, QByteArray bytes)
{
    bytes += '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
}

bool showsStyles(std::FILE *file)
{
    return isatty(fileno(file)) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
}

bool isTerminal()
{
    static const bool terminal = showsStyles(stdout);
    return terminal;
}

/// Writes lines as they come, or without their styles, and lets each be seen at once.
auto lineWriter(std::FILE *file)
{
    return [file, isStyled = showsStyles(file)](const QString &line) {
        write(file, (isStyled ? line : withoutTerminalStyles(line)).toUtf8());
        std::fflush(file);
    };
}

} // namespace

PlainStreams::PlainStreams() : m_output(lineWriter(stdout)), m_error(lineWriter(stderr)) {}

void print(const QString &line)
{
    write(stdout, line.toUtf8());
}

void complain(const QString &line)
{
    std::fflush(stdout);
    write(stderr, "tavrin: " + line.toUtf8());
}

void printJson(const QJsonValue &value)
{
    const QJsonDocument document =
        value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    write(stdout, document.toJson().trimmed());
}

QString strong(const QString &text)
{
    return isTerminal() ? bold(text) : text;
}

QString faint(const QString &text)
{
    return isTerminal() ? cyan(text) : text;
}

QString good(const QString &text)
{
    return isTerminal() ? green(text) : text;
}

QString bad(const QString &text)
{
    return isTerminal() ? red(text) : text;
}

} // namespace Tavrin::Cli::Console
