// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/FileFlags.h>

#include <linux/fs.h>
#include <sys/ioctl.h>

#include <Tavrin/platform/FileDescriptor.h>

namespace Tavrin::FileFlags
{

namespace
{

/// A pipe in the file's place must not make anybody wait.
FileDescriptor opened(const QString &path)
{
    return {path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW};
}

/// The kernel reads and writes an int here, whatever the header's macros say.
std::optional<int> flagsOf(const FileDescriptor &file)
{
    int flags = 0;
    const bool isRead = file.isOpen() && ::ioctl(file.number(), FS_IOC_GETFLAGS, &flags) == 0;
    return isRead ? std::optional(flags) : std::nullopt;
}

} // namespace

std::optional<bool> isImmutable(const QString &path)
{
    const auto flags = flagsOf(opened(path));
    return flags ? std::optional((*flags & FS_IMMUTABLE_FL) != 0) : std::nullopt;
}

bool setImmutable(const QString &path, bool immutable)
{
    const FileDescriptor file = opened(path);
    const auto flags = flagsOf(file);
    if (!flags)
        return false;
    int changed = immutable ? *flags | FS_IMMUTABLE_FL : *flags & ~FS_IMMUTABLE_FL;
    return ::ioctl(file.number(), FS_IOC_SETFLAGS, &changed) == 0;
}

} // namespace Tavrin::FileFlags
