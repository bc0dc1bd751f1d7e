// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/PartialFile.h>

#include <sys/file.h>
#include <sys/stat.h>

#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>
#include <tuple>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

[[noreturn]] void fail(int error, const QString &path)
{
    throw std::system_error(error, std::generic_category(), path.toStdString());
}

QString hiddenPath(const QString &directory)
{
    const quint64 number = QRandomGenerator::system()->generate64();
    return u"%1/.tavrin-%2.part"_s.arg(directory).arg(number, 16, 16, QChar(u'0'));
}

bool isHiddenName(const QString &name)
{
    static const QRegularExpression pattern(u"\\A\\.tavrin-[0-9a-f]{16}\\.part\\z"_s);
    return pattern.match(name).hasMatch();
}

struct stat statusOf(const FileDescriptor &file, const QString &path)
{
    struct stat status {
    };
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0)
        fail(errno, path);
    return status;
}

/// A new file with a lock on it, and the path that it got.
FileDescriptor created(const QString &directory, QString &path)
{
    for (;;) {
        path = hiddenPath(directory);
        FileDescriptor file(path, O_RDWR | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
        if (!file.isOpen())
            fail(errno, path);
        // Where files can't be locked nobody removes them either; so that is no fault.
        while (::flock(file.number(), LOCK_EX) != 0 && errno == EINTR) {
        }
        // Until it had its lock it could be taken for one that was left behind.
        if (statusOf(file, path).st_nlink > 0)
            return file;
    }
}

/// What differs once somebody has written to the file.
auto contentMark(const struct stat &status)
{
    return std::tuple(status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
}

/// As much as the kernel copies by itself, from file to file.
off_t copyInKernel(int from, int to, off_t size)
{
    off_t copied = 0;
    while (copied < size) {
        const ssize_t count = ::copy_file_range(from, nullptr, to, nullptr,
                                                static_cast<std::size_t>(size - copied), 0);
        if (count > 0)
            copied += count;
        else if (count == 0 || errno != EINTR)
            break;
    }
    return copied;
}

void writeAll(int to, const char *bytes, ssize_t size, const QString &path)
{
    while (size > 0) {
        const ssize_t count = ::write(to, bytes, static_cast<std::size_t>(size));
        if (count < 0 && errno != EINTR)
            fail(errno, path);
        if (count > 0) {
            bytes += count;
            size -= count;
        }
    }
}

/// The bytes that are left; whatever stopped the kernel, a full disk for one, shows here.
off_t copyByHand(int from, int to, off_t size, const QString &path)
{
    constexpr off_t pieceSize = 1 << 20;
    const auto piece = std::make_unique<char[]>(pieceSize);
    off_t copied = 0;
    while (copied < size) {
        const auto wanted = static_cast<std::size_t>(std::min(pieceSize, size - copied));
        const ssize_t count = ::read(from, piece.get(), wanted);
        if (count < 0 && errno != EINTR)
            fail(errno, path);
        if (count == 0)
            break;
        if (count > 0) {
            writeAll(to, piece.get(), count, path);
            copied += count;
        }
    }
    return copied;
}

void flushDirectory(const QString &directory)
{
    // The file is whole and in its place; not every file system knows how to flush that.
    const FileDescriptor opened(directory, O_RDONLY | O_DIRECTORY);
    if (opened.isOpen())
        ::fsync(opened.number());
}

/// Renames without replacing; 0 or the error.
int rename(const QString &from, const QString &to)
{
    const QByteArray oldName = QFile::encodeName(from);
    const QByteArray newName = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, oldName.constData(), AT_FDCWD, newName.constData(),
                    RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // Network file systems have no such renaming, but a second name doesn't replace either.
    if (::link(oldName.constData(), newName.constData()) != 0)
        return errno;
    ::unlink(oldName.constData());
    return 0;
}

} // namespace

PartialFile::PartialFile(const QString &directory)
    : m_directory(directory), m_file(created(directory, m_path))
{
}

PartialFile::~PartialFile()
{
    if (!m_isPublished)
        ::unlink(QFile::encodeName(m_path).constData());
}

void PartialFile::copyFrom(const QString &source)
{
    // A pipe in the file's place must not make anybody wait.
    const FileDescriptor from(source, O_RDONLY | O_NONBLOCK);
    const struct stat before = statusOf(from, source);
    if (!S_ISREG(before.st_mode))
        fail(S_ISDIR(before.st_mode) ? EISDIR : EINVAL, source);
    const off_t byKernel = copyInKernel(from.number(), m_file.number(), before.st_size);
    const off_t rest =
        copyByHand(from.number(), m_file.number(), before.st_size - byKernel, m_path);
    const bool isSame = contentMark(statusOf(from, source)) == contentMark(before);
    if (byKernel + rest != before.st_size || !isSame)
        fail(EBUSY, source);
    if (::fchmod(m_file.number(), (before.st_mode & 0777U) | S_IRUSR) != 0 ||
        ::fsync(m_file.number()) != 0)
        fail(errno, m_path);
}

bool PartialFile::publish(const QString &name)
{
    const QString target = m_directory + u'/' + name;
    const int error = rename(m_path, target);
    if (error == EEXIST)
        return false;
    if (error != 0)
        fail(error, target);
    m_isPublished = true;
    flushDirectory(m_directory);
    return true;
}

void PartialFile::removeIfAbandoned(const QString &path)
{
    if (!isHiddenName(QFileInfo(path).fileName()))
        return;
    const FileDescriptor file(path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
    if (file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0)
        ::unlink(QFile::encodeName(path).constData());
}

} // namespace Tavrin
