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

std::shared_ptr<PDFSpecification> bindCorpusSample(SpecificationManager &manager,
                                                   const QString &name)
{
    const auto document = corpusFile(name + QStringLiteral(".pdf"));
    if (!document)
        return nullptr;
    const QDir samples(QStringLiteral(TAVRIN_SAMPLES));
    manager.registerSpecification(
        QUrl::fromLocalFile(samples.filePath(name + QStringLiteral(".xml"))),
        QUrl::fromLocalFile(samples.filePath(QStringLiteral("spec.dtd"))));
    return std::dynamic_pointer_cast<PDFSpecification>(
        manager.bindAuxiliaryFile(QUrl::fromLocalFile(*document)));
}

} // namespace Tavrin::Testing
