// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/BrowserSpecReferenceItem.h>

#include <algorithm>
#include <utility>

#include <Tavrin/interface/audit/CellText.h>
#include <Tavrin/model/EntryText.h>

namespace Tavrin
{

namespace
{

/// Those of a host's own follow.
constexpr std::ptrdiff_t auditColumns = 4;

bool contains(const QString &text, const QStringMatcher &word)
{
    // Looking for a single character is the toolkit's fastest search.
    const QString pattern = word.pattern();
    return pattern.size() == 1 ? text.contains(pattern[0]) : word.indexIn(text) >= 0;
}

} // namespace

BrowserSpecReferenceItem::Cell::Cell(const QString &value)
    : text(value), folded(CellText::folded(value)), characterCount(EntryText::characterCount(value))
{
}

BrowserSpecReferenceItem::BrowserSpecReferenceItem(std::shared_ptr<const QStringList> identifiers,
                                                   std::vector<Cell> cells, QString reference)
    : m_identifiers(std::move(identifiers)),
      m_cells(std::move(cells)),
      m_reference(std::move(reference))
{
    m_cells.resize(std::size_t(m_identifiers->size()));
}

const BrowserSpecReferenceItem::Cell &BrowserSpecReferenceItem::cell(int column) const
{
    static const Cell none;
    const auto at = std::size_t(column);
    return column >= 0 && at < m_cells.size() ? m_cells[at] : none;
}

QMap<QString, QString> BrowserSpecReferenceItem::dict() const
{
    QMap<QString, QString> result;
    for (std::size_t at = 0; at < m_cells.size(); ++at)
        result.insert((*m_identifiers)[qsizetype(at)], m_cells[at].text);
    return result;
}

QString BrowserSpecReferenceItem::allText() const
{
    return QStringList(dict().values()).join(u'\n');
}

bool BrowserSpecReferenceItem::holds(const std::vector<QStringMatcher> &words) const
{
    // A word without blanks lies within one value.
    return std::all_of(words.begin(), words.end(), [this](const QStringMatcher &word) {
        return std::any_of(m_cells.begin(), m_cells.end(),
                           [&word](const Cell &cell) { return contains(cell.folded, word); });
    });
}

bool BrowserSpecReferenceItem::isUnknown() const
{
    const auto end = m_cells.begin() + std::min(auditColumns, std::ssize(m_cells));
    return std::all_of(m_cells.begin(), end, [](const Cell &cell) { return cell.text.isEmpty(); });
}

} // namespace Tavrin
