// SPDX-License-Identifier: Apache-2.0
#include "CommandDescription.h"

namespace Tavrin::CommandLine
{

using namespace Qt::StringLiterals;

CommandDescription::CommandDescription(QString name, QString summary, QString details)
    : m_name(std::move(name)), m_summary(std::move(summary)), m_details(std::move(details))
{
    addOption({{u"h"_s, u"help"_s}, u"Show this help."_s});
}

void CommandDescription::addOptions(const std::vector<OptionDescription> &options)
{
    m_options.insert(m_options.end(), options.begin(), options.end());
}

QString CommandDescription::usage() const
{
    QString usage = m_name + u" [options]"_s;
    for (const ArgumentDescription &argument : m_arguments)
        usage += u' ' + argument.syntax();
    return usage;
}

void CommandDescription::addTo(QCommandLineParser &parser) const
{
    QString sentence = m_summary + u'.';
    sentence[0] = sentence[0].toUpper();
    parser.setApplicationDescription(sentence + u"\n\n"_s + m_details);
    for (const OptionDescription &option : m_options)
        parser.addOption({option.names, option.help, option.value.name, option.standard});
    for (const ArgumentDescription &argument : m_arguments)
        parser.addPositionalArgument(argument.value.name, argument.help, argument.syntax());
}

QString CommandDescription::help() const
{
    QCommandLineParser parser;
    addTo(parser);
    // The parser's line of usage knows nothing of commands, nor of a program that has not started.
    const QString help = parser.helpText().trimmed();
    return u"Usage: "_s + usage() + help.mid(help.indexOf(u'\n'));
}

} // namespace Tavrin::CommandLine
