// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SpecPDFSearchModel.h>

#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

void SpecPDFSearchModel::setResults(std::vector<ResultPtr> results)
{
    std::stable_sort(results.begin(), results.end(), [](const ResultPtr &a, const ResultPtr &b) {
        return a->relevance > b->relevance;
    });
    beginResetModel();
    m_results.swap(results);
    endResetModel();
}

SpecPDFSearchModel::ResultPtr SpecPDFSearchModel::result(const QModelIndex &index) const
{
    return checkIndex(index, CheckIndexOption::IndexIsValid)
               ? m_results[static_cast<std::size_t>(index.row())]
               : nullptr;
}

QModelIndex SpecPDFSearchModel::indexOf(const SpecPDFSearchResult &result) const
{
    const auto it =
        std::find_if(m_results.begin(), m_results.end(), [&result](const ResultPtr &other) {
            return other->entry()->label() == result.entry()->label();
        });
    return it == m_results.end() ? QModelIndex() : index(static_cast<int>(it - m_results.begin()));
}

void SpecPDFSearchModel::reload(const QModelIndex &index)
{
    Q_EMIT dataChanged(index, index);
}

int SpecPDFSearchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_results.size());
}

QVariant SpecPDFSearchModel::data(const QModelIndex &index, int role) const
{
    const ResultPtr shown = result(index);
    if (!shown)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shown->titleText();
    case Qt::ToolTipRole:
        return shown->entry()->displayTitle();
    case Qt::AccessibleTextRole: {
        QStringList texts{shown->titleText(), shown->indexText(), shown->descriptionText()};
        texts.removeAll(QString());
        return texts.join(u", "_s);
    }
    default:
        return {};
    }
}

} // namespace Tavrin
