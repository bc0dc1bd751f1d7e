// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

namespace Tavrin::Testing
{

/// A folder of its own for a test, removed with the object. Throws std::runtime_error where a
/// file cannot be written.
class TemporaryFiles
{
public:
    TemporaryFiles();

    /// Writes a file, with the folders on its way, and says where it is.
    QUrl write(const QString &name, const QByteArray &content) const;
    QByteArray read(const QString &name) const;
    QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }
    QUrl url(const QString &name = {}) const { return QUrl::fromLocalFile(path(name)); }

private:
    QTemporaryDir m_folder;
};

} // namespace Tavrin::Testing
