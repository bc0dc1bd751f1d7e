// SPDX-License-Identifier: Apache-2.0
#include <reader/lookup/SuggestionModel.h>

#include <utility>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

SuggestionModel::SuggestionModel(QObject *parent) : QAbstractListModel(parent) {}

void SuggestionModel::setHits(std::vector<EntryFinder::Hit> hits)
{
    beginResetModel();
    m_hits = std::move(hits);
    endResetModel();
}

std::shared_ptr<SpecificationEntry> SuggestionModel::entry(const QModelIndex &index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    return index.isValid() && row < m_hits.size() ? m_hits[row].entry : nullptr;
}

int SuggestionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_hits.size());
}

QVariant SuggestionModel::data(const QModelIndex &index, int role) const
{
    const auto shown = entry(index);
    if (!shown)
        return {};
    const auto specification = shown->specification();
    const QString source = specification ? specification->title() : QString();
    const QString reason = description(m_hits[static_cast<std::size_t>(index.row())]);
    switch (role) {
    case Qt::DisplayRole:
        return shown->displayTitle();
    case Qt::EditRole:
        return shown->indexString();
    case SpecificationRole:
        return source;
    case ReasonRole:
        return reason;
    case Qt::AccessibleTextRole:
        return u"%1, %2, %3"_s.arg(shown->displayTitle(), source, reason);
    default:
        return {};
    }
}

} // namespace Tavrin::Reader
