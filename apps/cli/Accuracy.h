// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

#include "TruthTable.h"

namespace Tavrin::Cli
{

/// Compares what the library reads of a document with what it holds.
class Accuracy
{
public:
    struct Share {
        QString name;
        /// What the line of the table says besides, such as what was counted.
        qsizetype right = 0;
        qsizetype all = 0;

        double percent() const { return all == 0 ? 100 : 100.0 * double(right) / double(all); }
    };

    Accuracy(PDFSpecification &specification, const std::vector<TruthRow> &truth);

    Share known{QStringLiteral("items that the map knows and places")};
    Share places{QStringLiteral("places: page right, y within 6 pt")};
    Share headings{QStringLiteral("headings accepted")};
    Share firstWords{QStringLiteral("texts with the right first words")};
    Share keptWords{QStringLiteral("words of the truth kept, in order")};
    Share foreignWords{QStringLiteral("foreign words among them")};
    Share runningHeads{QStringLiteral("lines that are running heads or feet")};
    Share regions{QStringLiteral("regions found, caption inside")};
    Share cleanRegions{QStringLiteral("regions without body lines")};
    Share wholeRegions{QStringLiteral("regions that cut no line")};

    /// One line for each item that is wrong somewhere.
    const QStringList &faults() const { return m_faults; }

private:
    using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;

    void indexEntries();
    void measure(const TruthRow &row);
    void measureHeading(const TruthRow &row, const PDFSpecification::Entry &entry);
    void measureText(const TruthRow &row, const PDFSpecification::Entry &entry);
    void measureRegion(const TruthRow &row, const PDFSpecification::Entry &entry);
    void measureRunningHeads();
    /// Whether the line is the first or the last of all that is printed on its page.
    bool isAtEdge(const LineLocation &line) const;
    void count(Share &share, bool isRight, const TruthRow &row, const QString &remark = {});

    PDFSpecification &m_specification;
    QHash<QString, EntryPtr> m_entries;
    QStringList m_faults;
};

} // namespace Tavrin::Cli
