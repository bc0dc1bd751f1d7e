// SPDX-License-Identifier: Apache-2.0
#include <support/TemporaryFiles.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace Tavrin::Testing
{

namespace
{

void require(bool condition, const QString &what)
{
    if (!condition)
        throw std::runtime_error(what.toStdString());
}

} // namespace

TemporaryFiles::TemporaryFiles()
{
    require(m_folder.isValid(), m_folder.errorString());
}

QUrl TemporaryFiles::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QDir().mkpath(QFileInfo(file).path());
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    require(isWritten, file.fileName() + QStringLiteral(": ") + file.errorString());
    return url(name);
}

QByteArray TemporaryFiles::read(const QString &name) const
{
    QFile file(path(name));
    require(file.open(QIODevice::ReadOnly),
            file.fileName() + QStringLiteral(": ") + file.errorString());
    return file.readAll();
}

} // namespace Tavrin::Testing
