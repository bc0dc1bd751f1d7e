// SPDX-License-Identifier: Apache-2.0
#include "SmallDisk.h"

#include <sys/mount.h>

#include <QDir>
#include <QFile>

namespace Tavrin::Testing
{

SmallDisk::SmallDisk(const QString &directory, int kibibytes)
    : m_directory(QFile::encodeName(directory)),
      m_isMounted(QDir().mkpath(directory) &&
                  ::mount("tmpfs", m_directory.constData(), "tmpfs", 0,
                          ("size=" + QByteArray::number(kibibytes) + 'k').constData()) == 0)
{
}

SmallDisk::~SmallDisk()
{
    if (m_isMounted)
        ::umount2(m_directory.constData(), MNT_DETACH);
}

bool SmallDisk::makeReadOnly() const
{
    return ::mount(nullptr, m_directory.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

} // namespace Tavrin::Testing
