// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

namespace Tavrin::Reader
{

/// A passage of the user's own work, and the entries that it cites.
struct Citation {
    QString text;
    /// Spec URLs, or what the user typed and nothing knows.
    QStringList references;

    friend bool operator==(const Citation &, const Citation &) = default;
};

/// A work that cites specifications, as a file: JSON in UTF-8, one object for each passage.
struct CitationDocument {
    /// A file that can't be read or written; what() names it and the fault.
    class Error : public std::runtime_error
    {
    public:
        Error(const QString &path, const QString &fault);
    };

    std::vector<Citation> citations;

    /// Throws Error. Reads nothing of what it doesn't know.
    static CitationDocument read(const QString &path);
    /// Writes the whole or nothing. Throws Error.
    void write(const QString &path) const;

    friend bool operator==(const CitationDocument &, const CitationDocument &) = default;
};

} // namespace Tavrin::Reader
