// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <Tavrin/platform/FileDescriptor.h>

namespace Tavrin
{

/// A file in the making: under a hidden name of its own until it is whole, then under its name.
///
/// At no moment does the name stand for part of a file, whatever ends the process. What is left
/// then has the hidden name, and removeIfAbandoned takes it away. The maker holds a lock (flock) on
/// the hidden file, which the system drops with the process, so that others tell what is being
/// written from what was left. Errors are std::system_error and name the file.
class PartialFile
{
public:
    /// Begins an empty file in the directory.
    explicit PartialFile(const QString &directory);
    /// Takes it away again unless it was published.
    ~PartialFile();
    PartialFile(const PartialFile &) = delete;
    PartialFile &operator=(const PartialFile &) = delete;

    /// Writes all of a regular file, and has it on the disk before returning. Memory is constant;
    /// where the file system can share blocks, nothing is copied. A source that is changed
    /// meanwhile is an error. Permissions come along.
    void copyFrom(const QString &source);

    /// Gives the file its name in the directory, for good. False, with nothing changed, if
    /// anything has that name, made by whom and when ever.
    bool publish(const QString &name);

    /// Removes a hidden file that nobody is writing any more; leaves every other file alone.
    static void removeIfAbandoned(const QString &path);

private:
    QString m_directory;
    QString m_path;
    FileDescriptor m_file;
    bool m_isPublished = false;
};

} // namespace Tavrin
