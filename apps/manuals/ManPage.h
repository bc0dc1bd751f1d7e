// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <commandline/ProgramDescription.h>

namespace Tavrin::Manuals
{

using CommandLine::CommandDescription;
using CommandLine::ProgramDescription;

/// Writes pages of section 1 of the manual, in the language of man(7).
class ManPage
{
public:
    /// `version` stands at the foot of each page.
    ManPage(const ProgramDescription &program, QString version);

    /// The page of the program, with its commands if it has any.
    QString ofProgram() const;
    QString ofCommand(const CommandDescription &command) const;

    /// What the page of a command is called: "tavrin-draft".
    static QString pageName(const CommandDescription &command);

private:
    QString heading(const CommandDescription &command) const;
    QString exitCodes() const;
    QString seeAlso(const CommandDescription *command) const;

    const ProgramDescription &m_program;
    QString m_version;
};

} // namespace Tavrin::Manuals
