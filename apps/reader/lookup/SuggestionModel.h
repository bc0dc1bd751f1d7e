// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractListModel>

#include <vector>

#include <Tavrin/manager/EntryFinder.h>

namespace Tavrin::Reader
{

/// Entries that are offered for what is being typed.
class SuggestionModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        /// Where the entry is from.
        SpecificationRole = Qt::UserRole,
        /// Why it is offered.
        ReasonRole
    };

    explicit SuggestionModel(QObject *parent = nullptr);

    void setHits(std::vector<EntryFinder::Hit> hits);
    /// Null for a row that is none.
    std::shared_ptr<SpecificationEntry> entry(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<EntryFinder::Hit> m_hits;
};

} // namespace Tavrin::Reader
