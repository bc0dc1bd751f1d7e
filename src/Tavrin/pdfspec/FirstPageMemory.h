// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <map>
#include <mutex>
#include <optional>

namespace Tavrin
{

/// By what a file is recognised.
struct FirstPage {
    QString title;
    QString author;
    QString text;
};

/// A local file with the content that it has now: another one once somebody has written to it.
class FileVersion
{
public:
    explicit FileVersion(const QString &path);

    /// Whether it can be told apart from what is written next. Not for a file that was written
    /// within the last second, which the clocks of file systems need not see.
    bool isSettled() const { return m_isSettled; }
    bool operator<(const FileVersion &other) const;

private:
    quint64 m_device = 0;
    quint64 m_number = 0;
    qint64 m_size = 0;
    qint64 m_writtenAt = 0;
    qint64 m_changedAt = 0;
    bool m_isSettled = false;
};

/// The first pages of the files that were read lately. A start-up offers each stored file to one
/// specification after the other, and its words are the same for all. Small and bounded. Any
/// thread.
class FirstPageMemory
{
public:
    static FirstPageMemory &shared();

    std::optional<FirstPage> page(const FileVersion &file) const;
    /// Forgets another one when full. Very long pages are not kept.
    void remember(const FileVersion &file, const FirstPage &page);

private:
    mutable std::mutex m_mutex;
    std::map<FileVersion, FirstPage> m_pages;
};

} // namespace Tavrin
