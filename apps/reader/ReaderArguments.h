// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

#include <commandline/ProgramDescription.h>

namespace Tavrin::Reader
{

/// What the program was called with.
struct ReaderArguments {
    /// Arguments that mean nothing; what() names them and the fault.
    class Error : public std::runtime_error
    {
    public:
        explicit Error(const QString &message) : std::runtime_error(message.toStdString()) {}
    };

    /// Directories of maps, with their whole paths; empty if none were named.
    QStringList maps;
    /// PDFs that are read where they lie, for this run alone; with their whole paths.
    QStringList pdfs;
    /// What to show at first: a label, a spec URL, or a reference.
    QString reference;
    /// Whether to open a window even if a reader runs already.
    bool isNewWindow = false;
    /// Instead of a window: what to print.
    std::optional<QString> answer;

    /// `arguments` begin with the program's name. Throws Error.
    static ReaderArguments parse(const QStringList &arguments);
    /// What the program takes.
    static CommandLine::ProgramDescription describeProgram();

    /// Maps, PDFs and reference as one line, for a reader that runs already.
    QByteArray toLine() const;
    /// Nothing if the line is none of toLine().
    static std::optional<ReaderArguments> fromLine(const QByteArray &line);
};

} // namespace Tavrin::Reader
