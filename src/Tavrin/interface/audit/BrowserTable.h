// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

#include <Tavrin/interface/audit/BrowserSpecReferenceItem.h>

namespace Tavrin
{

/// The table of an audit, laid out: columns, rows and counts. Takes time for many rows, so it is
/// made where the audit is.
struct BrowserTable {
    /// Where a row holds the label of its entry, if it has one.
    static constexpr int labelColumn = 3;

    struct Column {
        /// "column" and the position, from 0.
        QString identifier;
        QString heading;
        /// In pixels.
        int width = 0;
    };
    /// Over all rows, that of the headings included.
    struct Counts {
        qsizetype entries = 0;
        /// With a label.
        qsizetype referenced = 0;
        /// With no empty cell.
        qsizetype complete = 0;
    };

    /// An empty table.
    BrowserTable() = default;
    /// The first row holds the headings. `references` are what the rows below it were looked up by;
    /// there may be fewer.
    BrowserTable(const std::vector<QStringList> &rows, const QStringList &references);

    /// "8 entries: 7 referenced — 5 complete — 3 incomplete", in the user's language.
    QString summary() const;

    std::vector<Column> columns;
    std::vector<BrowserSpecReferenceItem> items;
    Counts counts;
};

} // namespace Tavrin
