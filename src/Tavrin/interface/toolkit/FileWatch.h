// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>

namespace Tavrin
{

/// Tells when a file that is open is taken away or written to by others. Main thread.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);

    /// In place of the file before it; an empty path for none.
    void watch(const QString &path);

Q_SIGNALS:
    void removed();
    /// Its size or its time is another than when watching it began.
    void modified();

private:
    void check(const QString &path);

    QFileSystemWatcher m_watcher;
    qint64 m_size = 0;
    QDateTime m_time;
};

} // namespace Tavrin
