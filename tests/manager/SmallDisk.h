// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace Tavrin::Testing
{

/// A file system in memory, mounted on a directory that it makes while the object lives. Where
/// mounting is not allowed isMounted() is false.
class SmallDisk
{
public:
    SmallDisk(const QString &directory, int kibibytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_isMounted; }
    bool makeReadOnly() const;

private:
    QByteArray m_directory;
    bool m_isMounted;
};

} // namespace Tavrin::Testing
