// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/toolkit/FileWatch.h>

#include <QFileInfo>

namespace Tavrin
{

FileWatch::FileWatch(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::check);
}

void FileWatch::watch(const QString &path)
{
    if (const QStringList before = m_watcher.files(); !before.isEmpty())
        m_watcher.removePaths(before);
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        return;
    m_size = file.size();
    m_time = file.lastModified();
    m_watcher.addPath(path);
}

void FileWatch::check(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        Q_EMIT removed();
    else if (file.size() != m_size || file.lastModified() != m_time)
        Q_EMIT modified();
}

} // namespace Tavrin
