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
///
/// A map's `file` element as a value; \ref map-format tells how one is written.
struct AuxiliaryFileRequirement {
    /// Unsatisfied at first. The texts are those of the map's attributes `type`, `verifier` and
    /// `read-info`.
    AuxiliaryFileRequirement(QString type, QString text, QString info)
        : fileType(std::move(type)), verifier(std::move(text)), readInfo(std::move(info))
    {
    }

    /// The kind of file, "pdf" for example. It is compared with a file's extension exactly, case
    /// included.
    QString fileType;
    /// What the file must show, in a form of the class that reads the file. For a PDF, the words of
    /// its first page.
    QString verifier;
    /// How the file is to be read, in a form of that class. For a PDF, the printed area in page
    /// space: "x,y,width,height" in points. Empty where the map says nothing.
    QString readInfo;
    /// The file that is bound; absent until one is. Specification::claimAuxiliaryFile sets it.
    std::optional<QUrl> fileURL;

    bool isSatisfied() const { return fileURL.has_value(); }
};

/// What a specification asks for, in the order of the map. No pointer is null.
using AuxiliaryFileRequirements = std::vector<std::shared_ptr<AuxiliaryFileRequirement>>;

} // namespace Tavrin
