// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace Tavrin
{

class SpecPDFSearchResult;

/// Search results in descending order of relevance.
class SpecPDFSearchModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using ResultPtr = std::shared_ptr<SpecPDFSearchResult>;

    using QAbstractListModel::QAbstractListModel;

    void setResults(std::vector<ResultPtr> results);
    const std::vector<ResultPtr> &arrangedResults() const { return m_results; }
    /// Null for an index that is not of this model.
    ResultPtr result(const QModelIndex &index) const;
    /// The first row with an entry of the same label; the invalid index if there is none.
    QModelIndex indexOf(const SpecPDFSearchResult &result) const;
    /// Has a row shown anew.
    void reload(const QModelIndex &index);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    std::vector<ResultPtr> m_results;
};

} // namespace Tavrin
