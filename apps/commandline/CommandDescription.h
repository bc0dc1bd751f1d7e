// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCommandLineParser>

#include <vector>

#include "ArgumentDescription.h"
#include "OptionDescription.h"

namespace Tavrin::CommandLine
{

/// What a command is, takes and does. Its parser, its help, its manual page and what shells
/// complete all come from here, so that they say the same.
class CommandDescription
{
public:
    /// `name` as it is typed, "tavrin draft" for example; `summary` is one line without a full
    /// stop, `details` are sentences with line breaks for a terminal.
    CommandDescription(QString name, QString summary, QString details);

    void addOption(const OptionDescription &option) { m_options.push_back(option); }
    void addOptions(const std::vector<OptionDescription> &options);
    void addArgument(const ArgumentDescription &argument) { m_arguments.push_back(argument); }

    const QString &name() const { return m_name; }
    const QString &summary() const { return m_summary; }
    const QString &details() const { return m_details; }
    /// Those that were added, with `--help` in front.
    const std::vector<OptionDescription> &options() const { return m_options; }
    const std::vector<ArgumentDescription> &arguments() const { return m_arguments; }

    /// "tavrin draft [options] DOC.pdf"
    QString usage() const;
    /// Makes a parser take what is described, and nothing else.
    void addTo(QCommandLineParser &parser) const;
    /// What `--help` prints.
    QString help() const;

private:
    QString m_name;
    QString m_summary;
    QString m_details;
    std::vector<OptionDescription> m_options;
    std::vector<ArgumentDescription> m_arguments;
};

} // namespace Tavrin::CommandLine
