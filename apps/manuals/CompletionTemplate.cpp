// SPDX-License-Identifier: Apache-2.0
#include "CompletionTemplate.h"

#include <QFile>

#include <stdexcept>

namespace Tavrin::Manuals
{

using namespace Qt::StringLiterals;

CompletionTemplate::CompletionTemplate(const QString &shell)
{
    QFile file(u":/manuals/completion."_s + shell);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(file.errorString().toStdString());
    m_text = QString::fromUtf8(file.readAll());
}

void CompletionTemplate::setProgram(const CommandLine::ProgramDescription &program)
{
    const QString name = program.program.name();
    set(u"PROGRAM"_s, name);
    set(u"FUNCTION"_s, u'_' + QString(name).replace(u'-', u'_'));
    QStringList commands;
    for (const auto &command : program.commands)
        commands += program.shortName(command);
    set(u"COMMANDS"_s, commands.join(u' '));
}

void CompletionTemplate::set(const QString &name, const QString &text)
{
    m_text.replace(u'@' + name + u'@', text);
}

QString CompletionTemplate::quoted(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', u'’') + u'\'';
}

} // namespace Tavrin::Manuals
