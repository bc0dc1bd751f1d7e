// SPDX-License-Identifier: Apache-2.0
#include <reader/lookup/RecentPlaces.h>

#include <QSettings>

#include <algorithm>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/Specification.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr auto key = "Reader.RecentPlaces"_L1;
constexpr std::size_t mostPlaces = 50;
constexpr qsizetype longestText = 2'000;
/// Between URL and title. Neither holds one.
constexpr QChar separator = u'\n';

bool isUsable(const QString &url)
{
    return url.startsWith(SpecURL::prefix) && url.size() <= longestText &&
           !SpecURL::hasReversedLines(url);
}

} // namespace

RecentPlaces::RecentPlaces(QObject *parent) : QAbstractListModel(parent), m_places(restored()) {}

/// Settings may have been written by anyone.
std::vector<RecentPlaces::Place> RecentPlaces::restored()
{
    QStringList stored = QSettings().value(key).toStringList();
    stored.removeDuplicates();
    std::vector<Place> places;
    for (const QString &line : stored) {
        const QString url = line.section(separator, 0, 0);
        const QString title = line.section(separator, 1, 1).left(longestText);
        if (isUsable(url) && places.size() < mostPlaces)
            places.push_back({url, title.isEmpty() ? url : title});
    }
    return places;
}

void RecentPlaces::add(const SpecificationEntry &entry)
{
    const auto specification = entry.specification();
    if (!specification)
        return;
    const QString url = specification->generateURL(entry, true, false);
    if (!isUsable(url))
        return;
    beginResetModel();
    std::erase_if(m_places, [&](const Place &place) { return place.url == url; });
    m_places.insert(m_places.begin(), {url, entry.displayTitle().simplified().left(longestText)});
    if (m_places.size() > mostPlaces)
        m_places.pop_back();
    endResetModel();
    store();
}

void RecentPlaces::clear()
{
    beginResetModel();
    m_places.clear();
    endResetModel();
    store();
}

QString RecentPlaces::specURL(const QModelIndex &index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < m_places.size() ? m_places[row].url : QString();
}

int RecentPlaces::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_places.size());
}

QVariant RecentPlaces::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (!index.isValid() || row >= m_places.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_places[row].title;
    return role == Qt::ToolTipRole ? m_places[row].url : QVariant();
}

void RecentPlaces::store() const
{
    QStringList lines;
    for (const Place &place : m_places)
        lines += place.url + separator + place.title;
    QSettings().setValue(key, lines);
}

} // namespace Tavrin::Reader
