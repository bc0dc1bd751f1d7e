// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

namespace Tavrin::CommandLine
{

/// What an argument or the value of an option is: what the help calls it, and what a shell can
/// offer.
struct ValueDescription {
    enum class Kind { None, Text, File, Directory, Map, PDF, Entry, Command, Choice };

    Kind kind = Kind::None;
    QString name;
    /// Every value that a Choice allows.
    QStringList choices;

    static ValueDescription text(const QString &name) { return {Kind::Text, name, {}}; }
    static ValueDescription file(const QString &name) { return {Kind::File, name, {}}; }
    static ValueDescription directory(const QString &name) { return {Kind::Directory, name, {}}; }
    static ValueDescription map(const QString &name) { return {Kind::Map, name, {}}; }
    static ValueDescription pdf(const QString &name) { return {Kind::PDF, name, {}}; }
    /// An entry of the maps that are named before it, by its label.
    static ValueDescription entry(const QString &name) { return {Kind::Entry, name, {}}; }
    static ValueDescription choice(const QString &name, const QStringList &choices)
    {
        return {Kind::Choice, name, choices};
    }
};

} // namespace Tavrin::CommandLine
