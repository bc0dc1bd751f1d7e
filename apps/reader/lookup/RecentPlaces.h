// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractListModel>

#include <vector>

#include <Tavrin/model/SpecificationEntry.h>

namespace Tavrin::Reader
{

/// The entries that were looked at last, latest first, remembered from one run to the next by spec
/// URL and title.
class RecentPlaces : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit RecentPlaces(QObject *parent = nullptr);

    void add(const SpecificationEntry &entry);
    void clear();
    QString specURL(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Place {
        QString url;
        QString title;
    };

    static std::vector<Place> restored();
    void store() const;

    std::vector<Place> m_places;
};

} // namespace Tavrin::Reader
