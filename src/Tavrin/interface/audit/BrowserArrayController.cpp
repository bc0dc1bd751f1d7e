// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserArrayController.h>

#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <utility>

#include <Tavrin/interface/audit/CellText.h>
#include <Tavrin/interface/audit/SpecBrowserTextTransformer.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype longestShownReference = 200;

/// Folded, in which every blank parts two words.
QStringList wordsOf(const QString &text)
{
    static const QRegularExpression blank(u"\\s"_s, QRegularExpression::UseUnicodePropertiesOption);
    QStringList words = text.split(blank, Qt::SkipEmptyParts);
    for (QString &word : words)
        word = CellText::folded(word);
    return words;
}

/// Whether a row that holds all of `words` holds all of `before`.
bool imply(const QStringList &words, const QStringList &before)
{
    return std::all_of(before.begin(), before.end(), [&words](const QString &old) {
        return std::any_of(words.begin(), words.end(),
                           [&old](const QString &word) { return word.contains(old); });
    });
}

QString unknownReference(const BrowserSpecReferenceItem &item)
{
    return localized("“%1” leads to no entry of this specification.", "spec audit message")
        .arg(item.reference().left(longestShownReference));
}

} // namespace

void BrowserArrayController::setContent(std::vector<BrowserTable::Column> columns,
                                        std::vector<BrowserSpecReferenceItem> items)
{
    beginResetModel();
    m_columns = std::move(columns);
    m_content = std::move(items);
    findMatches(m_words, false);
    order();
    arrange();
    endResetModel();
}

void BrowserArrayController::setFilterWords(const QString &text)
{
    const QStringList words = wordsOf(text);
    if (words == m_words)
        return;
    beginResetModel();
    findMatches(words, imply(words, m_words));
    arrange();
    endResetModel();
}

void BrowserArrayController::sort(int column, Qt::SortOrder sortOrder)
{
    if (column == m_sortColumn && sortOrder == m_sortOrder)
        return;
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = sortOrder;
    order();
    arrange();
    endResetModel();
}

void BrowserArrayController::findMatches(const QStringList &words, bool narrows)
{
    m_words = words;
    const std::vector<QStringMatcher> matchers(words.begin(), words.end());
    if (!narrows)
        m_matches.assign(m_content.size(), true);
    for (std::size_t at = 0; at < m_content.size(); ++at) {
        if (m_matches[at])
            m_matches[at] = m_content[at].holds(matchers);
    }
}

void BrowserArrayController::order()
{
    m_ordered.resize(m_content.size());
    std::iota(m_ordered.begin(), m_ordered.end(), 0);
    if (m_sortColumn < 0)
        return;
    const bool ascends = m_sortOrder == Qt::AscendingOrder;
    std::stable_sort(m_ordered.begin(), m_ordered.end(), [&](int a, int b) {
        const auto &first = m_content[std::size_t(a)].cell(m_sortColumn);
        const auto &second = m_content[std::size_t(b)].cell(m_sortColumn);
        int order = CellText::compareNaturally(first.folded, second.folded);
        if (order == 0)
            order = first.text.compare(second.text);
        return ascends ? order < 0 : order > 0;
    });
}

void BrowserArrayController::arrange()
{
    m_arranged.clear();
    std::copy_if(m_ordered.begin(), m_ordered.end(), std::back_inserter(m_arranged),
                 [this](int at) { return m_matches[std::size_t(at)]; });
}

const BrowserSpecReferenceItem *BrowserArrayController::arrangedItem(int row) const
{
    const bool exists = row >= 0 && row < rowCount();
    return exists ? &m_content[std::size_t(sourceRow(row))] : nullptr;
}

int BrowserArrayController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_arranged.size());
}

int BrowserArrayController::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant BrowserArrayController::data(const QModelIndex &index, int role) const
{
    const auto *item = index.isValid() ? arrangedItem(index.row()) : nullptr;
    if (!item)
        return {};
    const QString &value = item->value(index.column());
    if (role == Qt::DisplayRole)
        return SpecBrowserTextTransformer::transformedValue(value);
    if (role == Qt::EditRole)
        return value;
    if (role == Qt::ToolTipRole && value.isEmpty() && item->isUnknown())
        return unknownReference(*item);
    return {};
}

QVariant BrowserArrayController::headerData(int section, Qt::Orientation orientation,
                                            int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount())
        return {};
    return m_columns[std::size_t(section)].heading;
}

} // namespace Tavrin
