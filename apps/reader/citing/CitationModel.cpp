// SPDX-License-Identifier: Apache-2.0
#include <reader/citing/CitationModel.h>

#include <utility>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

CitationModel::CitationModel(QObject *parent) : QAbstractListModel(parent) {}

void CitationModel::setDocument(CitationDocument document)
{
    beginResetModel();
    m_document = std::move(document);
    endResetModel();
}

const Citation *CitationModel::citation(int row) const
{
    return row >= 0 && row < rowCount() ? &m_document.citations[static_cast<std::size_t>(row)]
                                        : nullptr;
}

void CitationModel::setCitation(int row, const Citation &changed)
{
    const Citation *present = citation(row);
    if (!present || *present == changed)
        return;
    m_document.citations[static_cast<std::size_t>(row)] = changed;
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT edited();
}

int CitationModel::append()
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_document.citations.emplace_back();
    endInsertRows();
    Q_EMIT edited();
    return row;
}

void CitationModel::remove(int row)
{
    if (!citation(row))
        return;
    beginRemoveRows({}, row, row);
    m_document.citations.erase(m_document.citations.begin() + row);
    endRemoveRows();
    Q_EMIT edited();
}

int CitationModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_document.citations.size());
}

QVariant CitationModel::data(const QModelIndex &index, int role) const
{
    const Citation *shown = citation(index.row());
    if (!shown || role != Qt::DisplayRole)
        return {};
    const QString line = shown->text.section(u'\n', 0, 0).simplified();
    return u"%1  (%2)"_s
        .arg(line.isEmpty() ? localized("New passage", "a passage without text") : line)
        .arg(shown->references.size());
}

} // namespace Tavrin::Reader
