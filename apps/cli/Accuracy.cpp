// SPDX-License-Identifier: Apache-2.0
#include "Accuracy.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>

#include <Tavrin/model/PrintedNumber.h>
#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/pdfspec/EntryExtractionError.h>
#include <Tavrin/platform/StyledTextEditing.h>

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

constexpr double placeTolerance = 6;
constexpr qsizetype firstWordCount = 5;
/// A running head stands at one height on this many pages.
constexpr qsizetype repetitions = 5;

/// Words by letters and digits alone, in one case and without compatibility forms.
QStringList words(const QString &text)
{
    static const QRegularExpression gaps(u"[^\\p{L}\\p{N}]+"_s,
                                         QRegularExpression::UseUnicodePropertiesOption);
    return text.normalized(QString::NormalizationForm_KD)
        .toLower()
        .remove(QRegularExpression(u"\\p{M}"_s))
        .split(gaps, Qt::SkipEmptyParts);
}

/// Figures and tables are numbered with other separators in maps than in print.
QString key(SpecificationEntryType kind, QString number)
{
    number.replace(u'-', u'.');
    return (isTextual(kind) ? u"text"_s : textForm(kind)) + u' ' + number;
}

/// For each word of `a`, the word of `b` that it is in a longest common subsequence, or -1.
std::vector<qsizetype> alignment(const QStringList &a, const QStringList &b)
{
    const auto rows = static_cast<std::size_t>(a.size());
    const auto columns = static_cast<std::size_t>(b.size());
    std::vector<std::vector<int>> length(rows + 1, std::vector<int>(columns + 1, 0));
    for (std::size_t i = rows; i-- > 0;) {
        for (std::size_t j = columns; j-- > 0;) {
            length[i][j] = a[qsizetype(i)] == b[qsizetype(j)]
                               ? length[i + 1][j + 1] + 1
                               : std::max(length[i + 1][j], length[i][j + 1]);
        }
    }
    std::vector<qsizetype> result(rows, -1);
    for (std::size_t i = 0, j = 0; i < rows && j < columns;) {
        if (a[qsizetype(i)] == b[qsizetype(j)])
            result[i++] = static_cast<qsizetype>(j++);
        else if (length[i + 1][j] >= length[i][j + 1])
            ++i;
        else
            ++j;
    }
    return result;
}

} // namespace

Accuracy::Accuracy(PDFSpecification &specification, const std::vector<TruthRow> &truth)
    : m_specification(specification)
{
    indexEntries();
    for (const TruthRow &row : truth)
        measure(row);
    measureRunningHeads();
}

void Accuracy::indexEntries()
{
    for (const auto &any : m_specification.entries()) {
        auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(any);
        if (!entry)
            continue;
        m_entries.insert(key(entry->type(), PrintedNumber::number(*entry)), entry);
        m_entries.insert(key(entry->type(), entry->label()), entry);
    }
}

void Accuracy::count(Share &share, bool isRight, const TruthRow &row, const QString &remark)
{
    ++share.all;
    if (isRight)
        ++share.right;
    else
        m_faults += u"%1: %2 %3  %4  %5"_s.arg(share.name, textForm(row.kind), row.label, row.title,
                                               remark);
}

void Accuracy::measure(const TruthRow &row)
{
    const EntryPtr entry = m_entries.value(key(row.kind, row.label));
    const bool isPlaced = entry && entry->destination() && entry->destination()->page();
    count(known, isPlaced, row);
    if (!isPlaced)
        return;
    const HostPDFDestination &place = *entry->destination();
    const double y = place.point().y;
    const bool isNear = std::abs(y - row.top) <= placeTolerance ||
                        (row.destinationY && std::abs(y - *row.destinationY) <= placeTolerance);
    count(places, place.page()->index() == row.page && isNear, row,
          u"page %1 y %2, printed on %3 at %4"_s.arg(place.page()->index())
              .arg(y)
              .arg(row.page)
              .arg(row.top));
    if (isTextual(row.kind)) {
        measureHeading(row, *entry);
        measureText(row, *entry);
    } else {
        measureRegion(row, *entry);
    }
}

void Accuracy::measureHeading(const TruthRow &row, const PDFSpecification::Entry &entry)
{
    bool isRight = false;
    QString remark;
    try {
        const HeadingPageInfo info =
            m_specification.findHeadingPageInfo(entry, entry.destination()->page()->index());
        const auto page = m_specification.document()->page(info.headingPageIndex);
        const Rect bounds = page->selection(info.headingRange).bounds(*page);
        // The number of a chapter can stand above its title, in large print.
        const double reach = row.kind == SpecificationEntryType::Chapter ? 80 : 14;
        const bool isPrintedThere =
            row.baseline.y >= bounds.minY() - 2 && row.baseline.y <= bounds.maxY() + reach;
        // A table can be wrong about the print and right about the document's own destination,
        // which stands above its heading.
        const bool isBelowDestination = row.destinationY && *row.destinationY >= bounds.minY() &&
                                        *row.destinationY <= bounds.maxY() + 40;
        isRight = info.headingPageIndex == row.page && (isPrintedThere || isBelowDestination);
        remark = u"found \"%1\" at %2"_s.arg(info.headingText).arg(bounds.maxY());
    } catch (const EntryExtractionError &error) {
        remark = QString::fromUtf8(error.what());
    }
    count(headings, isRight, row, remark);
}

void Accuracy::measureText(const TruthRow &row, const PDFSpecification::Entry &entry)
{
    QStringList expected = words(row.body);
    if (expected.size() < 2)
        return;
    // The table cuts its texts at a number of characters, often within a word.
    if (row.body.size() >= 195)
        expected.removeLast();
    const QString text = entry.summaryText().value_or(StyledText()).string();
    const QStringList read = words(text.left(4 * row.body.size())).mid(0, 2 * expected.size());
    const QString begin = expected.mid(0, firstWordCount).join(QString());
    count(firstWords, read.join(QString()).startsWith(begin), row,
          u"\"%1\" instead of \"%2\""_s.arg(text.left(60).replace(u'\n', u' '), row.body.left(60)));
    const std::vector<qsizetype> aligned = alignment(expected, read);
    qsizetype last = -1;
    qsizetype kept = 0;
    for (const qsizetype position : aligned) {
        kept += position >= 0 ? 1 : 0;
        last = std::max(last, position);
    }
    keptWords.right += kept;
    keptWords.all += expected.size();
    foreignWords.right += last + 1 - kept;
    foreignWords.all += last + 1;
    if (kept < expected.size() - expected.size() / 20 || last + 1 - kept > 2) {
        m_faults +=
            u"words: %1 %2  %3 of %4 kept, %5 foreign: %6 | %7"_s.arg(textForm(row.kind), row.label)
                .arg(kept)
                .arg(expected.size())
                .arg(last + 1 - kept)
                .arg(expected.join(u' '), read.join(u' '));
    }
}

void Accuracy::measureRegion(const TruthRow &row, const PDFSpecification::Entry &entry)
{
    const auto info = m_specification.pageRectInfo(entry);
    const auto found =
        info ? info->pageRects.find(row.page) : std::map<int, Rect>::const_iterator();
    const bool isFound = info && found != info->pageRects.end() &&
                         found->second.contains({row.baseline.x + 1, row.baseline.y + 2});
    count(regions, isFound, row);
    if (!isFound)
        return;
    const auto page = m_specification.document()->page(row.page);
    const Rect region = found->second;
    bool hasBody = false;
    bool cutsLine = false;
    const StyledText text = page->attributedString().value_or(StyledText());
    for (const TextRange &line : LineFinder::lines(*page)) {
        const Rect bounds = page->selection(line).bounds(*page);
        const Rect common = bounds.intersection(region);
        if (common.isNull() || common.isEmpty())
            continue;
        const auto font = StyledTextEditing::primaryFont(text, line);
        const bool isBody = font && font->pointSize == m_specification.normalTextSize() &&
                            !m_specification.isLinePartOfLayoutBreak(bounds, *page) &&
                            std::abs(bounds.minY() - row.baseline.y) > 40;
        const bool isInside = region.contains(bounds.center());
        hasBody |= isBody && isInside && bounds.size.width > 250;
        const double share =
            common.size.width * common.size.height / (bounds.size.width * bounds.size.height);
        cutsLine |= share > 0.25 && share < 0.9;
    }
    count(cleanRegions, !hasBody, row);
    count(wholeRegions, !cutsLine, row);
}

bool Accuracy::isAtEdge(const LineLocation &line) const
{
    const auto page = m_specification.document()->page(line.page);
    const std::vector<TextRange> all = LineFinder::lines(*page);
    const auto isAt = [&](const TextRange &other) {
        const Rect bounds = page->selection(other).bounds(*page);
        return std::abs(bounds.minY() - line.bounds.minY()) < 3;
    };
    return !all.empty() && (isAt(all.front()) || isAt(all.back()));
}

void Accuracy::measureRunningHeads()
{
    // By what they say but for digits, and by where they stand.
    QHash<QString, QSet<int>> pages;
    QHash<QString, qsizetype> lines;
    for (const auto &any : m_specification.entries()) {
        const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(any);
        const auto text = entry ? entry->summaryText() : std::nullopt;
        const auto located = entry ? entry->lineLocations() : std::nullopt;
        if (!text || !located)
            continue;
        for (const LineLocation &line : *located) {
            ++runningHeads.all;
            QString words = text->string().mid(line.range.location, line.range.length);
            words.remove(QRegularExpression(u"[^\\p{L}]"_s));
            if (words.size() < 4 || !isAtEdge(line))
                continue;
            const QString place = words + u'@' + QString::number(std::lround(line.bounds.minY()));
            pages[place].insert(line.page);
            ++lines[place];
        }
    }
    for (auto it = pages.constBegin(); it != pages.constEnd(); ++it) {
        if (it->size() < repetitions)
            continue;
        runningHeads.right += lines.value(it.key());
        m_faults += u"running head: %1"_s.arg(it.key());
    }
}

} // namespace Tavrin::Cli
