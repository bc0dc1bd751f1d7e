// SPDX-License-Identifier: Apache-2.0
#include "ManPage.h"

namespace Tavrin::Manuals
{

using namespace Qt::StringLiterals;
using CommandLine::ArgumentDescription;
using CommandLine::OptionDescription;

namespace
{

/// Text as man(7) takes it for text. A hyphen that is typed is no hyphen of a word, and a line that
/// begins with a point or an apostrophe would be a request.
QString escaped(QString text)
{
    text.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    text.replace(u'\'', u"\\(aq"_s);
    if (text.startsWith(u'.'))
        text.prepend(u"\\&"_s);
    return text;
}

/// Line breaks of a terminal's help are none of a page's.
QString paragraph(QString text)
{
    return escaped(text.replace(u"\n\n"_s, u"\f"_s).replace(u'\n', u' '))
               .replace(u"\f"_s, u"\n.PP\n"_s) +
           u'\n';
}

QString bold(const QString &text)
{
    return u"\\fB"_s + escaped(text) + u"\\fR"_s;
}

QString italic(const QString &text)
{
    return u"\\fI"_s + escaped(text) + u"\\fR"_s;
}

QString section(const QString &title)
{
    return u".SH "_s + title + u'\n';
}

QString item(const QString &term, const QString &text)
{
    return u".TP\n"_s + term + u'\n' + paragraph(text);
}

QString optionTerm(const OptionDescription &option)
{
    QStringList names;
    for (const QString &name : option.typedNames())
        names += bold(name);
    const QString term = names.join(u", "_s);
    return option.takesValue() ? term + u' ' + italic(option.value.name) : term;
}

QString optionsAndArguments(const CommandDescription &command)
{
    QString text;
    if (!command.arguments().empty())
        text += section(u"ARGUMENTS"_s);
    for (const ArgumentDescription &argument : command.arguments())
        text += item(italic(argument.value.name), argument.help);
    text += section(u"OPTIONS"_s);
    for (const OptionDescription &option : command.options())
        text += item(optionTerm(option), option.help);
    return text;
}

} // namespace

ManPage::ManPage(const ProgramDescription &program, QString version)
    : m_program(program), m_version(std::move(version))
{
}

QString ManPage::pageName(const CommandDescription &command)
{
    return QString(command.name()).replace(u' ', u'-');
}

QString ManPage::heading(const CommandDescription &command) const
{
    const QString name = pageName(command);
    QString synopsis = bold(command.name()) + u" [\\fIoptions\\fR]"_s;
    for (const ArgumentDescription &argument : command.arguments())
        synopsis += u' ' + italic(argument.syntax());
    return u".TH %1 1 \"\" \"Tavrin %2\" \"User Commands\"\n"_s.arg(
               name.toUpper().replace(u'-', u"\\-"_s), m_version) +
           section(u"NAME"_s) + escaped(name) + u" \\- "_s + escaped(command.summary()) + u'\n' +
           section(u"SYNOPSIS"_s) + synopsis + u'\n' + section(u"DESCRIPTION"_s) +
           paragraph(command.details());
}

QString ManPage::exitCodes() const
{
    QString text = section(u"EXIT STATUS"_s);
    for (const auto &code : m_program.exitCodes)
        text += item(bold(code.term), code.text);
    return text;
}

QString ManPage::seeAlso(const CommandDescription *page) const
{
    QStringList names;
    if (page)
        names += bold(pageName(m_program.program)) + u"(1)"_s;
    for (const CommandDescription &command : m_program.commands) {
        if (!page)
            names += bold(pageName(command)) + u"(1)"_s;
    }
    return names.isEmpty() ? QString() : section(u"SEE ALSO"_s) + names.join(u",\n"_s) + u'\n';
}

QString ManPage::ofProgram() const
{
    QString text = heading(m_program.program);
    if (!m_program.commands.empty())
        text += section(u"COMMANDS"_s);
    for (const CommandDescription &command : m_program.commands)
        text += item(bold(m_program.shortName(command)), command.summary());
    text += optionsAndArguments(m_program.program) + exitCodes();
    if (!m_program.files.empty())
        text += section(u"FILES"_s);
    for (const auto &file : m_program.files)
        text += item(italic(file.term), file.text);
    if (!m_program.examples.empty())
        text += section(u"EXAMPLES"_s);
    for (const auto &example : m_program.examples)
        text += item(bold(example.term), example.text);
    return text + seeAlso(nullptr);
}

QString ManPage::ofCommand(const CommandDescription &command) const
{
    return heading(command) + optionsAndArguments(command) + exitCodes() + seeAlso(&command);
}

} // namespace Tavrin::Manuals
