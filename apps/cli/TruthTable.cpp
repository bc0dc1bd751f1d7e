// SPDX-License-Identifier: Apache-2.0
#include "TruthTable.h"

#include <QFile>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>

#include "CommandLineError.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

/// Columns without which a row says nothing.
const QStringList wantedColumns{u"kind"_s, u"label"_s, u"title"_s, u"tx"_s,
                                u"ty"_s,   u"ttop"_s,  u"tpage"_s, u"ok"_s};

/// One line of the table, by the names of the columns.
class Fields
{
public:
    /// `place` is the file and line that faults are told with.
    Fields(const QHash<QString, qsizetype> &columns, const QString &line, const QString &place)
        : m_columns(columns), m_values(line.split(u'\t')), m_place(place)
    {
        if (m_values.size() < columns.size())
            throw CommandLineError(u"%1: %2 columns where %3 are wanted"_s.arg(place)
                                       .arg(m_values.size())
                                       .arg(columns.size()));
    }
    QString text(const QString &column) const
    {
        return m_values.value(m_columns.value(column, -1));
    }
    double number(const QString &column) const
    {
        bool isNumber = false;
        const double number = text(column).toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number))
            throw CommandLineError(
                u"%1: %2 \"%3\" is no number"_s.arg(m_place, column, text(column)));
        return number;
    }

private:
    const QHash<QString, qsizetype> &m_columns;
    QStringList m_values;
    QString m_place;
};

std::optional<TruthRow> row(const Fields &fields)
{
    const auto kind = entryTypeFromText(fields.text(u"kind"_s));
    if (!kind || fields.number(u"ok"_s) < 1)
        return std::nullopt;
    TruthRow row{*kind,
                 fields.text(u"label"_s),
                 fields.text(u"title"_s),
                 int(std::clamp(fields.number(u"tpage"_s), 0.0, 1e9)),
                 {fields.number(u"tx"_s), fields.number(u"ty"_s)},
                 fields.number(u"ttop"_s),
                 std::nullopt,
                 {}};
    if (!fields.text(u"y"_s).isEmpty())
        row.destinationY = fields.number(u"y"_s);
    if (fields.text(u"bodyok"_s) == u"1"_s)
        row.body = fields.text(u"body"_s);
    return row;
}

QHash<QString, qsizetype> columnsOf(const QString &line, const QString &place)
{
    QHash<QString, qsizetype> columns;
    const QStringList names = line.split(u'\t');
    for (qsizetype i = 0; i < names.size(); ++i)
        columns.insert(names[i], i);
    for (const QString &name : wantedColumns) {
        if (!columns.contains(name))
            throw CommandLineError(u"%1: no column is named \"%2\""_s.arg(place, name));
    }
    return columns;
}

} // namespace

std::vector<TruthRow> readTruth(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw CommandLineError(path + u": can't be read"_s);
    std::vector<TruthRow> rows;
    QHash<QString, qsizetype> columns;
    int lineNumber = 0;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        ++lineNumber;
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QString place = u"%1:%2"_s.arg(path).arg(lineNumber);
        if (columns.isEmpty())
            columns = columnsOf(line, place);
        else if (auto read = row(Fields(columns, line, place)))
            rows.push_back(std::move(*read));
    }
    if (rows.empty())
        throw CommandLineError(path + u": no table of what a document holds"_s);
    return rows;
}

} // namespace Tavrin::Cli
