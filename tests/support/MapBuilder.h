// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <map>
#include <optional>
#include <vector>

#include <support/TemporaryFiles.h>

namespace Tavrin::Testing
{

/// An entry of a map in the making; what is absent or empty is not written.
struct MapEntry {
    QString label;
    QString type = QStringLiteral("section");
    std::optional<QString> index = std::nullopt;
    std::optional<QString> name = std::nullopt;
    QStringList keywords = {};
    std::optional<QString> internal = std::nullopt;
    QStringList related = {};
};

/// A spec map in the making.
class MapBuilder
{
public:
    explicit MapBuilder(const QString &identifier, const QString &revision = {});

    /// An attribute of the root element, in place of one set before.
    MapBuilder &attribute(const QString &name, const QString &value)
    {
        m_attributes[name] = value;
        return *this;
    }
    MapBuilder &title(const QString &title, const QString &shortTitle = {})
    {
        m_title = title;
        m_shortTitle = shortTitle;
        return *this;
    }
    MapBuilder &file(const QString &type, const QString &verifier, const QString &readInfo = {})
    {
        m_files.push_back({type, verifier, readInfo});
        return *this;
    }
    MapBuilder &entry(const MapEntry &entry)
    {
        m_entries.push_back(entry);
        return *this;
    }

    QByteArray xml() const;

    /// Writes the map, and the grammar of maps beside it as "spec.dtd".
    QUrl write(const TemporaryFiles &files, const QString &name) const;
    /// The grammar of maps that the project ships.
    static QByteArray grammar();

private:
    struct File {
        QString type;
        QString verifier;
        QString readInfo;
    };

    std::map<QString, QString> m_attributes;
    QString m_title;
    QString m_shortTitle;
    std::vector<File> m_files;
    std::vector<MapEntry> m_entries;
};

} // namespace Tavrin::Testing
