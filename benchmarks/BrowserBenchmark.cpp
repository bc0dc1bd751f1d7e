// SPDX-License-Identifier: Apache-2.0
// Searching and sorting the audit browser's table of 5,000 rows, with its views, against the
// toolkit's own model of plain strings with its own proxy.
#include <QApplication>
#include <QElapsedTimer>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/BrowserTableView.h>
#include <support/WindowBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int rowCount = 5'000;
constexpr int summaryWords = 200;

/// As an audit of a manual gives them.
std::vector<QStringList> auditRows()
{
    const QStringList words{u"register"_s, u"value"_s,   u"interrupt"_s, u"the"_s,
                            u"Größe"_s,    u"pointer"_s, u"of"_s,        u"undefined"_s};
    std::vector<QStringList> rows{{u"Reference"_s, u"Summary"_s, u"Related"_s, u"Label"_s}};
    unsigned random = 1;
    const auto next = [&random] { return (random = random * 1'664'525U + 1'013'904'223U) >> 16U; };
    for (int row = 0; row < rowCount; ++row) {
        const QString number = u"%1.%2.%3"_s.arg(next() % 40).arg(next() % 30).arg(next() % 9);
        QStringList summary;
        for (int word = 0; word < summaryWords; ++word)
            summary += words[next() % words.size()];
        rows.push_back({u"Section %1: %2 %3"_s.arg(number, summary[0], summary[1]),
                        summary.join(u' '), u"Section 4.2: %1"_s.arg(summary[2]), number});
    }
    return rows;
}

double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    // What the views do about it is part of it.
    QCoreApplication::processEvents();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// The toolkit's own: any cell of the row holds the text.
class PlainFilter : public QSortFilterProxyModel
{
public:
    void setText(const QString &text)
    {
        m_text = text;
        invalidateRowsFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        for (int column = 0; column < sourceModel()->columnCount(parent); ++column) {
            const QString cell = sourceModel()->index(row, column, parent).data().toString();
            if (cell.contains(m_text, Qt::CaseInsensitive))
                return true;
        }
        return false;
    }

private:
    QString m_text;
};

/// The same table twice, each on show.
class Tables
{
public:
    Tables()
    {
        const auto rows = auditRows();
        BrowserTable table(rows, {});
        m_view.setRows(&m_rows);
        m_rows.setContent(std::move(table.columns), std::move(table.items));
        m_plainModel.setHorizontalHeaderLabels(rows.front());
        for (std::size_t row = 1; row < rows.size(); ++row) {
            QList<QStandardItem *> items;
            for (const QString &cell : rows[row])
                items += new QStandardItem(cell);
            m_plainModel.appendRow(items);
        }
        m_plainFilter.setSourceModel(&m_plainModel);
        m_plainView.setModel(&m_plainFilter);
        for (QTableView *view : {static_cast<QTableView *>(&m_view), &m_plainView}) {
            view->resize(1'200, 800);
            view->show();
        }
        QCoreApplication::processEvents();
    }

    double search(const QString &text)
    {
        return milliseconds([&] { m_rows.setFilterWords(text); });
    }
    double searchPlainly(const QString &text)
    {
        return milliseconds([&] { m_plainFilter.setText(text); });
    }
    double sort(int column, Qt::SortOrder order)
    {
        return milliseconds([&] { m_rows.sort(column, order); });
    }
    double sortPlainly(int column, Qt::SortOrder order)
    {
        return milliseconds([&] { m_plainFilter.sort(column, order); });
    }

private:
    BrowserArrayController m_rows;
    BrowserTableView m_view;
    QStandardItemModel m_plainModel;
    PlainFilter m_plainFilter;
    QTableView m_plainView;
};

/// The worst of each, over some rounds.
struct Figure {
    double measured = 0;
    double floor = 0;

    void add(double ours, double plain)
    {
        measured = std::max(measured, ours);
        floor = std::max(floor, plain);
    }
    bool report(const char *what, double limit) const
    {
        const bool isWithin = measured <= limit;
        std::printf("%-34s %6.2f ms / %7.2f ms, ratio %.2f, limit %.0f ms%s\n", what, measured,
                    floor, measured / floor, limit, isWithin ? "" : "  OVER");
        return isWithin;
    }
};

Figure measureSearch(Tables &tables)
{
    Figure worst;
    for (const QString &text : {u"undefined"_s, u"section 17"_s, u"größe"_s, u"zzz"_s}) {
        // The toolkit's own knows no words, so it looks for the first alone.
        for (qsizetype typed = 1; typed <= text.size(); ++typed)
            worst.add(tables.search(text.left(typed)),
                      tables.searchPlainly(text.left(typed).section(u' ', 0, 0)));
        for (qsizetype typed = text.size() - 1; typed >= 0; --typed)
            worst.add(tables.search(text.left(typed)),
                      tables.searchPlainly(text.left(typed).section(u' ', 0, 0)));
    }
    return worst;
}

Figure measureSorting(Tables &tables)
{
    Figure worst;
    for (const int column : {0, 1, 2, 3}) {
        for (const auto order : {Qt::AscendingOrder, Qt::DescendingOrder})
            worst.add(tables.sort(column, order), tables.sortPlainly(column, order));
    }
    return worst;
}

} // namespace

} // namespace Tavrin::Benchmarks

int main(int argc, char **argv)
{
    using namespace Tavrin::Benchmarks;
    return runWindowBenchmark(argc, argv, [] {
        std::printf("audit browser, 5,000 rows, worst / toolkit's own model and proxy:\n");
        Tables tables;
        constexpr double searchLimit = 30;
        constexpr double sortLimit = 100;
        const bool isSearchWithin =
            measureSearch(tables).report("a keystroke of a search", searchLimit);
        const bool isSortWithin = measureSorting(tables).report("sorting by a column", sortLimit);
        return isSearchWithin && isSortWithin;
    });
}
