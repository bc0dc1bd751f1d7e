// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QString>

namespace Tavrin
{

/// An open file of the system, closed with the object. Check isOpen(); errno says what went wrong.
class FileDescriptor
{
public:
    FileDescriptor(const QString &path, int flags, mode_t mode = 0)
        : m_number(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode))
    {
    }
    ~FileDescriptor()
    {
        if (isOpen())
            ::close(m_number);
    }
    FileDescriptor(FileDescriptor &&other) noexcept : m_number(other.m_number)
    {
        other.m_number = -1;
    }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    FileDescriptor &operator=(FileDescriptor &&) = delete;

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

private:
    int m_number;
};

} // namespace Tavrin
