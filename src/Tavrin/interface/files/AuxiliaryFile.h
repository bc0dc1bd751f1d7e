// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/WidgetsExport.h>

namespace Tavrin
{

class Specification;

/// A row of the table of imported files: a specification with the files that satisfy it, or a file
/// that nothing recognised.
///
/// A picture of one moment: the browser makes its rows anew whenever the files change. Main thread.
class TAVRIN_WIDGETS_EXPORT AuxiliaryFile
{
public:
    /// The row of a specification, with the files that are bound to it now. It isn't kept alive.
    ///
    /// `specification` must not be null.
    AuxiliaryFile(const std::shared_ptr<Specification> &specification, bool isPrimary);
    /// The row of a file that nothing recognised.
    explicit AuxiliaryFile(const QUrl &url);

    /// Null for a file that nothing recognised, and once the specification is gone.
    std::shared_ptr<Specification> spec() const;
    /// The files that are bound to the specification, which may be none; of other rows the one.
    const std::vector<QUrl> &urls() const { return m_urls; }
    /// Forgets a file that is gone. The manager and the disk are left alone.
    void removeUrl(const QUrl &url);
    bool isPrimary() const { return m_isPrimary; }

    /// The specification's title, else the name of the file.
    QString fileName() const;
    /// For the user; empty where all is well. Else that the file is not recognised, or the document
    /// not there.
    QString matchStatus() const;
    /// True where there is no document to open.
    bool viewButtonHidden() const;
    /// Whether the row can be selected: one without a specification, or with all of its files.
    bool isEnabled() const;

private:
    /// Absent where there was never one.
    std::optional<std::weak_ptr<Specification>> m_spec;
    std::vector<QUrl> m_urls;
    bool m_isPrimary = false;
};

/// Shared by the table and its cells.
using AuxiliaryFilePtr = std::shared_ptr<AuxiliaryFile>;

} // namespace Tavrin
