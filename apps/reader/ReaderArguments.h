// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

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

    /// Directories of maps; empty if none were named.
    QStringList maps;
    /// PDFs that are read where they lie, for this run alone.
    QStringList pdfs;
    /// What to show at first: a label, a spec URL, or a reference.
    QString reference;
    /// Instead of a window: what to print.
    std::optional<QString> answer;

    /// `arguments` begin with the program's name. Throws Error.
    static ReaderArguments parse(const QStringList &arguments);
};

} // namespace Tavrin::Reader
