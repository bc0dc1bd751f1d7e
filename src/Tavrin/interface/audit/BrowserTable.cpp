// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserTable.h>

#include <QHash>

#include <algorithm>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Cell = BrowserSpecReferenceItem::Cell;

/// In characters, on the average of a column.
constexpr double longText = 100;
constexpr int shortColumnWidth = 300;
constexpr int longColumnWidth = 400;

/// Makes cells, once for each text: the rows of one entry share theirs.
class CellMaker
{
public:
    const Cell &make(const QString &text)
    {
        auto it = m_cells.constFind(text.constData());
        if (it == m_cells.constEnd())
            it = m_cells.insert(text.constData(), Cell(text));
        return *it;
    }

private:
    /// By the data that copies of a text share.
    QHash<const QChar *, Cell> m_cells;
};

bool isComplete(const QStringList &row)
{
    return std::none_of(row.begin(), row.end(), [](const QString &cell) { return cell.isEmpty(); });
}

BrowserTable::Counts count(const std::vector<QStringList> &rows)
{
    BrowserTable::Counts counts;
    counts.entries = std::ssize(rows);
    counts.referenced = std::count_if(rows.begin(), rows.end(), [](const QStringList &row) {
        return !row.value(BrowserTable::labelColumn).isEmpty();
    });
    counts.complete = std::count_if(rows.begin(), rows.end(), isComplete);
    return counts;
}

} // namespace

BrowserTable::BrowserTable(const std::vector<QStringList> &rows, const QStringList &references)
    : counts(count(rows))
{
    if (rows.empty())
        return;
    auto identifiers = std::make_shared<QStringList>();
    std::vector<qsizetype> lengths;
    for (const QString &heading : rows.front()) {
        *identifiers += u"column%1"_s.arg(columns.size());
        columns.push_back({identifiers->back(), heading});
        lengths.push_back(Cell(heading).characterCount);
    }
    CellMaker maker;
    items.reserve(rows.size() - 1);
    for (std::size_t row = 1; row < rows.size(); ++row) {
        std::vector<Cell> cells;
        for (qsizetype at = 0; at < std::min<qsizetype>(rows[row].size(), std::ssize(columns));
             ++at) {
            cells.push_back(maker.make(rows[row][at]));
            lengths[std::size_t(at)] += cells.back().characterCount;
        }
        items.emplace_back(identifiers, std::move(cells), references.value(qsizetype(row) - 1));
    }
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const double average = double(lengths[at]) / double(rows.size());
        columns[at].width = average > longText ? longColumnWidth : shortColumnWidth;
    }
}

QString BrowserTable::summary() const
{
    QString text =
        localized("%1 entries: %2 referenced — %3 complete — %4 incomplete", "spec audit summary")
            .arg(counts.entries)
            .arg(counts.referenced)
            .arg(counts.complete)
            .arg(counts.entries - counts.complete);
    // No line ends behind the last dash.
    return text.replace(text.lastIndexOf(u"— "_s), 2, u"—\u00a0"_s);
}

} // namespace Tavrin
