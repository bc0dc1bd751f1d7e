// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace Tavrin::Testing
{

/// What a run of the program left behind.
struct ProgramRun {
    /// -1 if the program crashed or did not end in a minute.
    int exitCode = -1;
    QString output;
    QString errors;

    /// The output as JSON. Throws std::runtime_error if it is none.
    QJsonObject object() const;
    QJsonArray array() const;
};

/// Bad input: exit code 2, one line on standard error that names the fault, and nothing else.
void expectRefusal(const ProgramRun &run, const QString &fault);

/// Runs `tavrin` with these arguments, standard output and error being no terminal.
ProgramRun runTavrin(const QStringList &arguments,
                     const QProcessEnvironment &environment =
                         QProcessEnvironment(QProcessEnvironment::InheritFromParent));

} // namespace Tavrin::Testing
