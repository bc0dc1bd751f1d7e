// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Tavrin
{

/// The kinds of files that a map can ask for.
namespace SpecificationAuxiliaryFileTypes
{
inline const QString pdf = QStringLiteral("pdf");
}

/// A file that a specification needs and its user has to supply. Shared, so that everybody sees
/// which file is bound to it.
struct AuxiliaryFileRequirement {
    AuxiliaryFileRequirement(QString type, QString text, QString info)
        : fileType(std::move(type)), verifier(std::move(text)), readInfo(std::move(info))
    {
    }

    /// The kind of file, "pdf" for example.
    QString fileType;
    /// What the file must show, in a form of the class that reads the file.
    QString verifier;
    /// How the file is to be read, in a form of that class.
    QString readInfo;
    /// The file that is bound; absent until one is.
    std::optional<QUrl> fileURL;

    bool isSatisfied() const { return fileURL.has_value(); }
};

using AuxiliaryFileRequirements = std::vector<std::shared_ptr<AuxiliaryFileRequirement>>;

} // namespace Tavrin
