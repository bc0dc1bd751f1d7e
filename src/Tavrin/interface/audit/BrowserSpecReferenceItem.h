// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QStringMatcher>

#include <memory>
#include <vector>

namespace Tavrin
{

/// A row of the audit browser. A value; what it holds is shared.
class BrowserSpecReferenceItem
{
public:
    /// A value, with what is looked at again and again.
    struct Cell {
        explicit Cell(const QString &value = {});

        QString text;
        /// CellText::folded().
        QString folded;
        qsizetype characterCount = 0;
    };

    /// The identifiers are those of the columns, in order. Cells that are missing are empty.
    BrowserSpecReferenceItem(std::shared_ptr<const QStringList> identifiers,
                             std::vector<Cell> cells, QString reference);

    const Cell &cell(int column) const;
    const QString &value(int column) const { return cell(column).text; }
    /// The values by column identifier.
    QMap<QString, QString> dict() const;
    /// All values. The separator is a line feed.
    QString allText() const;
    /// Whether all text holds each of the words, which are folded and hold no blanks.
    bool holds(const std::vector<QStringMatcher> &words) const;

    /// The text that was looked up for this row.
    const QString &reference() const { return m_reference; }
    /// Whether that led nowhere, by the columns of every audit.
    bool isUnknown() const;

private:
    std::shared_ptr<const QStringList> m_identifiers;
    std::vector<Cell> m_cells;
    QString m_reference;
};

} // namespace Tavrin
