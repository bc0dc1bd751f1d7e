// SPDX-License-Identifier: Apache-2.0
#include "BashCompletion.h"

#include "CompletionTemplate.h"

namespace Tavrin::Manuals
{

using namespace Qt::StringLiterals;
using CommandLine::CommandDescription;
using CommandLine::ProgramDescription;
using CommandLine::ValueDescription;

namespace
{

/// The word that the functions of the template know a kind by.
QString kindWord(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueDescription::Kind::None:
        return {};
    case ValueDescription::Kind::Text:
        return u"text"_s;
    case ValueDescription::Kind::File:
        return u"file"_s;
    case ValueDescription::Kind::Directory:
        return u"directory"_s;
    case ValueDescription::Kind::Map:
        return u"map"_s;
    case ValueDescription::Kind::PDF:
        return u"pdf"_s;
    case ValueDescription::Kind::Entry:
        return u"entry"_s;
    case ValueDescription::Kind::Command:
        return u"command"_s;
    case ValueDescription::Kind::Choice:
        return u'=' + value.choices.join(u',');
    }
    Q_UNREACHABLE();
}

QString row(const QString &pattern, const CommandDescription &command)
{
    QStringList options;
    for (const auto &option : command.options()) {
        for (const QString &name : option.typedNames())
            options += name + u':' + kindWord(option.value);
    }
    QStringList arguments;
    for (const auto &argument : command.arguments())
        arguments += kindWord(argument.value) + (argument.isRepeated() ? u"+"_s : QString());
    return u"    %1)\n        options='%2'\n        arguments='%3'\n        ;;\n"_s.arg(
        pattern, options.join(u' '), arguments.join(u' '));
}

} // namespace

QString bashCompletion(const ProgramDescription &program)
{
    QString table = row(u"''"_s, program.program);
    for (const CommandDescription &command : program.commands)
        table += row(program.shortName(command), command);
    CompletionTemplate completion(u"bash"_s);
    completion.setProgram(program);
    completion.set(u"TABLE"_s, table.chopped(1));
    return completion.text();
}

} // namespace Tavrin::Manuals
