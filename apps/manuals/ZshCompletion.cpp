// SPDX-License-Identifier: Apache-2.0
#include "ZshCompletion.h"

#include "CompletionTemplate.h"

namespace Tavrin::Manuals
{

using namespace Qt::StringLiterals;
using CommandLine::CommandDescription;
using CommandLine::OptionDescription;
using CommandLine::ProgramDescription;
using CommandLine::ValueDescription;

namespace
{

/// What _arguments does to complete a value.
QString action(const ValueDescription &value, const QString &function)
{
    switch (value.kind) {
    case ValueDescription::Kind::None:
    case ValueDescription::Kind::Text:
        return u" "_s;
    case ValueDescription::Kind::File:
        return u"_files"_s;
    case ValueDescription::Kind::Directory:
        return u"_files -/"_s;
    case ValueDescription::Kind::Map:
        return u"_files -g \"*.xml(-.)\""_s;
    case ValueDescription::Kind::PDF:
        return u"_files -g \"*.(#i)pdf(-.)\""_s;
    case ValueDescription::Kind::Entry:
        return function + u"_entries"_s;
    case ValueDescription::Kind::Command:
        return function + u"_command"_s;
    case ValueDescription::Kind::Choice:
        return u"(%1)"_s.arg(value.choices.join(u' '));
    }
    Q_UNREACHABLE();
}

/// Text that stands in brackets and between colons.
QString plain(QString text)
{
    for (const QChar special : {u'\\', u'[', u']', u':'})
        text.replace(special, u'\\' + QString(special));
    return text;
}

/// An option may be repeated where its value may differ.
QStringList optionSpecs(const OptionDescription &option, const QString &function)
{
    const QString names = option.typedNames().join(u' ');
    const QString before = option.takesValue() ? u"*"_s : u'(' + names + u')';
    const QString after = option.takesValue() ? u":%1:%2"_s.arg(plain(option.value.name),
                                                                action(option.value, function))
                                              : QString();
    QStringList specs;
    for (const QString &name : option.typedNames()) {
        const QString form = option.takesValue() && name.startsWith("--"_L1) ? name + u'=' : name;
        specs += before + form + u'[' + plain(option.help) + u']' + after;
    }
    return specs;
}

QString specs(const CommandDescription &command, const QString &function, const QString &indent)
{
    QStringList specs;
    for (const OptionDescription &option : command.options())
        specs += optionSpecs(option, function);
    int place = 1;
    for (const auto &argument : command.arguments()) {
        if (argument.value.kind == ValueDescription::Kind::Command) {
            // What follows is the command's own.
            specs +=
                {u"1:command:"_s + action(argument.value, function), u"*::argument:->command"_s};
            break;
        }
        const QString position = argument.isRepeated() ? u"*"_s : QString::number(place++);
        specs += u"%1:%2:%3"_s.arg(position, plain(argument.value.name),
                                   action(argument.value, function));
    }
    QStringList lines;
    for (const QString &spec : specs)
        lines += indent + CompletionTemplate::quoted(spec);
    return lines.join(u" \\\n"_s);
}

} // namespace

QString zshCompletion(const ProgramDescription &program)
{
    const QString function = u'_' + QString(program.program.name()).replace(u'-', u'_');
    QStringList descriptions;
    QStringList cases;
    for (const CommandDescription &command : program.commands) {
        const QString name = program.shortName(command);
        descriptions +=
            u"        "_s + CompletionTemplate::quoted(name + u':' + plain(command.summary()));
        cases += u"    %1)\n        _arguments -s -S \\\n%2\n        ;;"_s.arg(
            name, specs(command, function, u"            "_s));
    }
    CompletionTemplate completion(u"zsh"_s);
    completion.setProgram(program);
    completion.set(u"DESCRIPTIONS"_s, descriptions.join(u'\n'));
    completion.set(u"PROGRAM_ARGUMENTS"_s, specs(program.program, function, u"        "_s));
    completion.set(u"CASES"_s, cases.join(u'\n'));
    return completion.text();
}

} // namespace Tavrin::Manuals
