// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <commandline/ProgramDescription.h>

namespace Tavrin::Manuals
{

/// The part of a shell's completion that is the same for every program, with places in it.
class CompletionTemplate
{
public:
    /// `shell` names the resource, "bash" for example.
    explicit CompletionTemplate(const QString &shell);

    /// Puts the names of the program, and of its functions, where they belong.
    void setProgram(const CommandLine::ProgramDescription &program);
    /// Puts a text into the place `@NAME@`.
    void set(const QString &name, const QString &text);

    const QString &text() const { return m_text; }

    /// Text in single quotes, as all shells understand it; an apostrophe in it becomes a closing
    /// one.
    static QString quoted(const QString &text);

private:
    QString m_text;
};

} // namespace Tavrin::Manuals
