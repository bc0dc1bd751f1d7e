// SPDX-License-Identifier: Apache-2.0
#include "FishCompletion.h"

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

/// What fish offers for a value; empty for nothing.
QString offer(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueDescription::Kind::None:
    case ValueDescription::Kind::Text:
    case ValueDescription::Kind::Command:
        return {};
    case ValueDescription::Kind::File:
        return u"(__fish_complete_path)"_s;
    case ValueDescription::Kind::Directory:
        return u"(__fish_complete_directories)"_s;
    case ValueDescription::Kind::Map:
        return u"(__fish_complete_suffix .xml)"_s;
    case ValueDescription::Kind::PDF:
        return u"(__fish_complete_suffix .pdf)"_s;
    case ValueDescription::Kind::Entry:
        return u"(_@FUNCTION@_entries)"_s;
    case ValueDescription::Kind::Choice:
        return value.choices.join(u' ');
    }
    Q_UNREACHABLE();
}

QString optionLine(const OptionDescription &option, const QString &start)
{
    QString line = start;
    for (const QString &name : option.names)
        line += (name.size() == 1 ? u" -s "_s : u" -l "_s) + name;
    if (option.takesValue())
        line += u" -x"_s;
    const QString values = offer(option.value);
    if (!values.isEmpty())
        line += u" -a "_s + CompletionTemplate::quoted(values);
    return line + u" -d "_s + CompletionTemplate::quoted(option.help) + u'\n';
}

/// Arguments are told apart by no more than what they are: maps and documents by their endings.
QString lines(const CommandDescription &command, const QString &start)
{
    QString text;
    for (const OptionDescription &option : command.options())
        text += optionLine(option, start);
    for (const auto &argument : command.arguments()) {
        const QString values = offer(argument.value);
        if (!values.isEmpty())
            text += start + u" -k -a "_s + CompletionTemplate::quoted(values) + u'\n';
    }
    return text;
}

} // namespace

QString fishCompletion(const ProgramDescription &program)
{
    const QString start = u"complete -c "_s + program.program.name();
    const bool hasCommands = !program.commands.empty();
    const QString first = hasCommands ? start + u" -n __fish_use_subcommand"_s : start;
    QString text = lines(program.program, first);
    for (const CommandDescription &command : program.commands) {
        const QString name = program.shortName(command);
        text += first + u" -a "_s + name + u" -d "_s +
                CompletionTemplate::quoted(command.summary()) + u'\n';
        text += lines(command, start + u" -n '__fish_seen_subcommand_from %1'"_s.arg(name));
    }
    CompletionTemplate completion(u"fish"_s);
    completion.set(u"LINES"_s, text.chopped(1));
    completion.setProgram(program);
    return completion.text();
}

} // namespace Tavrin::Manuals
