// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>
#include <QUrl>

#include <memory>

#include <Tavrin/enhance/PDFXMLEnhancer.h>

/// What Tavrin is measured at, in whole.
namespace Tavrin::Benchmarks
{

/// A drafted map of a document, in a file that lives as long as this.
class Skeleton
{
public:
    /// Throws std::runtime_error if the file can't be written.
    explicit Skeleton(const QString &pdf);

    QString path() const { return m_directory.filePath(QStringLiteral("map.xml")); }

private:
    QTemporaryDir m_directory;
};

/// The specification of a map, bound to its document, of which no page was read yet.
std::shared_ptr<PDFSpecification> bound(const QString &map, const QString &pdf);

/// A map made whole. Prints its progress.
std::shared_ptr<PDFXMLEnhancer> enhanced(const QString &skeleton, const QString &pdf);

/// The engine's own structured text of every page, one page after the other.
void bareTextPass(const QString &pdf);

} // namespace Tavrin::Benchmarks
