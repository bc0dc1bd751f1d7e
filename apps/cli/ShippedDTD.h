// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>
#include <QUrl>

namespace Tavrin::Cli
{

/// The DTD that the program brings along, as a file while the object lives.
class ShippedDTD
{
public:
    /// Throws CommandLineError if there is no place for temporary files.
    ShippedDTD();

    QUrl url() const;

private:
    QTemporaryDir m_directory;
    QString m_path;
};

/// Writes a map to a file, whole or not at all. Throws CommandLineError.
void writeMap(const QString &map, const QString &path);

} // namespace Tavrin::Cli
