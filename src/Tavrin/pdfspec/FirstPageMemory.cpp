// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/FirstPageMemory.h>

#include <sys/stat.h>

#include <QFile>

#include <chrono>
#include <tuple>

namespace Tavrin
{

namespace
{

constexpr std::size_t pageCount = 256;
constexpr qsizetype longestText = 1 << 14;

qint64 nanoseconds(const timespec &time)
{
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

} // namespace

FileVersion::FileVersion(const QString &path)
{
    struct stat status {
    };
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return;
    m_device = status.st_dev;
    m_number = status.st_ino;
    m_size = status.st_size;
    m_writtenAt = nanoseconds(status.st_mtim);
    m_changedAt = nanoseconds(status.st_ctim);
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto age = std::chrono::nanoseconds(now).count() - m_changedAt;
    m_isSettled = age > 1'000'000'000;
}

bool FileVersion::operator<(const FileVersion &other) const
{
    const auto all = [](const FileVersion &file) {
        return std::tie(file.m_device, file.m_number, file.m_size, file.m_writtenAt,
                        file.m_changedAt, file.m_isSettled);
    };
    return all(*this) < all(other);
}

FirstPageMemory &FirstPageMemory::shared()
{
    static FirstPageMemory memory;
    return memory;
}

std::optional<FirstPage> FirstPageMemory::page(const FileVersion &file) const
{
    const std::scoped_lock lock(m_mutex);
    const auto it = m_pages.find(file);
    return it == m_pages.end() ? std::nullopt : std::optional(it->second);
}

void FirstPageMemory::remember(const FileVersion &file, const FirstPage &page)
{
    if (!file.isSettled() || page.text.size() > longestText)
        return;
    const std::scoped_lock lock(m_mutex);
    if (m_pages.size() >= pageCount)
        m_pages.erase(m_pages.begin());
    m_pages.insert_or_assign(file, page);
}

} // namespace Tavrin
