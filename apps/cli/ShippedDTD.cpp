// SPDX-License-Identifier: Apache-2.0
#include "ShippedDTD.h"

#include <QFile>
#include <QSaveFile>

#include "CommandLineError.h"
#include "Library.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

ShippedDTD::ShippedDTD() : m_path(m_directory.filePath(u"spec.dtd"_s))
{
    if (!QFile::copy(u":/tavrin/spec.dtd"_s, m_path))
        throw CommandLineError(m_path + u": can't be written"_s);
}

QUrl ShippedDTD::url() const
{
    return fileUrl(m_path);
}

void writeMap(const QString &map, const QString &path)
{
    QSaveFile file(path);
    const QByteArray bytes = map.toUtf8() + '\n';
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw CommandLineError(path + u": "_s + file.errorString());
}

} // namespace Tavrin::Cli
