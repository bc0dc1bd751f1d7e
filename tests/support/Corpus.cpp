// SPDX-License-Identifier: Apache-2.0
#include <support/Corpus.h>

#include <QDir>
#include <QFileInfo>

namespace Tavrin::Testing
{

namespace
{

std::optional<QString> fileIn(const char *variable, const QString &name)
{
    const QString folder = qEnvironmentVariable(variable);
    const QString path = QDir(folder).filePath(name);
    if (folder.isEmpty() || !QFileInfo(path).isFile())
        return std::nullopt;
    return path;
}

} // namespace

std::optional<QString> corpusFile(const QString &name)
{
    return fileIn("TAVRIN_CORPUS", name);
}

std::optional<QString> truthFile(const QString &name)
{
    return fileIn("TAVRIN_TRUTH", name);
}

} // namespace Tavrin::Testing
