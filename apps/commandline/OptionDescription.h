// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ValueDescription.h"

namespace Tavrin::CommandLine
{

/// An option of a command.
struct OptionDescription {
    OptionDescription(const QString &name, const QString &text, ValueDescription optionValue = {},
                      const QString &standardValue = {})
        : OptionDescription(QStringList{name}, text, std::move(optionValue), standardValue)
    {
    }
    OptionDescription(const QStringList &allNames, const QString &text,
                      ValueDescription optionValue = {}, const QString &standardValue = {})
        : names(allNames), help(text), value(std::move(optionValue)), standard(standardValue)
    {
    }

    bool takesValue() const { return value.kind != ValueDescription::Kind::None; }
    /// Its names as they are typed, with one hyphen or two.
    QStringList typedNames() const
    {
        QStringList typed;
        for (const QString &name : names)
            typed += (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
        return typed;
    }

    /// Without hyphens; those of one letter first.
    QStringList names;
    QString help;
    ValueDescription value;
    /// What counts where the option is not given.
    QString standard;
};

} // namespace Tavrin::CommandLine
