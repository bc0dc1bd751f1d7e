// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/manager/AuxiliaryFileStore.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <system_error>

#include <Tavrin/platform/FileFlags.h>
#include <Tavrin/platform/HostApplication.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/PartialFile.h>

namespace Tavrin::AuxiliaryFileStore
{

using namespace Qt::StringLiterals;

namespace
{

/// Where the store is or would be.
std::optional<QString> location()
{
    const auto data = userDataDirectory();
    if (!data) {
        qCWarning(managerLog) << "Could not find the application support directory, not writing "
                                 "auxiliary files.";
        return std::nullopt;
    }
    if (libraryIdentifier().isEmpty() || hostIdentifier().isEmpty()) {
        qCWarning(managerLog) << "One or more bundles don't have an identifier we can use to get "
                                 "the auxiliary file directory.";
        return std::nullopt;
    }
    return *data + u'/' + libraryIdentifier() + u'/' + hostIdentifier();
}

/// The name for a file when so many others have its own.
QString numberedName(const QString &name, int counter)
{
    if (counter == 0)
        return name;
    // A name that only begins with a dot has no extension.
    const auto dot = name.lastIndexOf(u'.');
    const auto end = dot > 0 ? dot : name.size();
    return name.first(end) + u'_' + QString::number(counter) + name.sliced(end);
}

bool isSomethingThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString copied(const QString &source, const QString &directory)
{
    const QString name = QFileInfo(source).fileName();
    PartialFile file(directory);
    file.copyFrom(source);
    // Another process may take a name at any moment; so that publishing decides.
    for (int counter = 0;; ++counter) {
        const QString candidate = numberedName(name, counter);
        if (!isSomethingThere(directory + u'/' + candidate) && file.publish(candidate))
            return directory + u'/' + candidate;
    }
}

bool isInside(const QString &path, const QString &directory)
{
    return QDir::cleanPath(path).startsWith(QDir::cleanPath(directory) + u'/');
}

} // namespace

std::optional<QString> directory()
{
    auto path = location();
    return path && QDir().mkpath(*path) ? path : std::nullopt;
}

std::vector<QUrl> files()
{
    const auto path = location();
    if (!path || !QFileInfo(*path).isDir())
        return {};
    QStringList names;
    try {
        const auto native = QFile::encodeName(*path).toStdString();
        for (const auto &item : std::filesystem::directory_iterator(native)) {
            const QString name = QFile::decodeName(item.path().filename().c_str());
            if (name.startsWith(u'.'))
                PartialFile::removeIfAbandoned(*path + u'/' + name);
            else
                names.append(name);
        }
    } catch (const std::filesystem::filesystem_error &error) {
        qCWarning(managerLog).noquote() << "Error loading contents of auxiliary files directory:"
                                        << QString::fromUtf8(error.what());
        return {};
    }
    names.sort();
    std::vector<QUrl> urls;
    urls.reserve(static_cast<std::size_t>(names.size()));
    std::transform(names.begin(), names.end(), std::back_inserter(urls),
                   [&](const QString &name) { return QUrl::fromLocalFile(*path + u'/' + name); });
    return urls;
}

QUrl add(const QUrl &source)
{
    const auto path = directory();
    if (!path) {
        qCWarning(managerLog) << "Failed to copy auxiliary file - there is no support directory";
        return source;
    }
    try {
        return QUrl::fromLocalFile(copied(source.toLocalFile(), *path));
    } catch (const std::system_error &error) {
        qCWarning(managerLog).noquote() << "Error copying file:" << QString::fromUtf8(error.what());
        return source;
    }
}

void remove(const QUrl &file)
{
    const auto store = location();
    const QString path = file.toLocalFile();
    if (!store || !isInside(path, *store))
        return;
    const QByteArray name = QFile::encodeName(path);
    if (std::remove(name.constData()) == 0 || !FileFlags::isImmutable(path).value_or(false))
        return;
    FileFlags::setImmutable(path, false);
    std::remove(name.constData());
}

} // namespace Tavrin::AuxiliaryFileStore
