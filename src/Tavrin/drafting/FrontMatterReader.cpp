// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/FrontMatterReader.h>

#include <Tavrin/drafting/HeadingNumber.h>
#include <Tavrin/drafting/TextKey.h>
#include <Tavrin/platform/CharacterSet.h>

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

constexpr int firstPages = 3;
constexpr qsizetype longestDocumentTitle = 200;

/// Converters put the name of their input there.
bool isFileName(const QString &title)
{
    static const QRegularExpression pattern(
        u"^(?:untitled|microsoft word\\b.*|\\S+\\.(?:dvi|ps|pdf|docx?|tex|fm|odt|indd|html?))$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return pattern.match(title).hasMatch();
}

QString largestPrint(const std::vector<PrintedLine> &lines, double bodySize)
{
    double largest = 0;
    // A document that begins with its first heading has no title page.
    const auto isText = [bodySize](const PrintedLine &line) {
        const auto number = HeadingNumber::parse(line.text);
        return line.size > 1.05 * bodySize && TextKey::fold(line.text).size() > 2 &&
               (!number || number->isAmbiguous);
    };
    for (const PrintedLine &line : lines) {
        if (isText(line))
            largest = std::max(largest, line.size);
    }
    QString title;
    for (const PrintedLine &line : lines) {
        if (line.size > 0.95 * largest && isText(line) && title.size() < longestDocumentTitle)
            title += (title.isEmpty() ? QString() : u" "_s) + line.text;
    }
    return title.left(longestDocumentTitle);
}

} // namespace

QString FrontMatterReader::title(const CachingPDFDocument &document, const PrintedPages &pages)
{
    QString given =
        TextKey::clean(document.documentAttributes().value(u"Title"_s).left(longestDocumentTitle));
    if (!given.isEmpty() && !isFileName(given))
        return given;
    for (int page = 0; page < std::min(firstPages, pages.pageCount()); ++page) {
        if (!pages.lines(page).empty())
            return largestPrint(pages.lines(page), pages.bodySize());
    }
    return {};
}

QString FrontMatterReader::revision(const QString &title, const PrintedPages &pages)
{
    static const QRegularExpression pattern(
        u"\\b(?:version|revision|release|edition|issue|rev\\.)\\h*:?\\h*(?<number>\\d+(?:\\.\\d+)*[a-z]?)\\b"_s,
        QRegularExpression::CaseInsensitiveOption);
    if (const auto match = pattern.match(title); match.hasMatch())
        return match.captured(u"number"_s);
    for (int page = 0; page < std::min(firstPages, pages.pageCount()); ++page) {
        for (const PrintedLine &line : pages.lines(page)) {
            const auto match = pattern.match(line.text);
            if (!match.hasMatch() || line.text.size() > 60)
                continue;
            // "X Version 11" is a name; a document's own version begins its line or a clause.
            const QString before = line.text.left(match.capturedStart()).trimmed();
            if (before.isEmpty() || CharacterSet::isPunctuation(before.back()))
                return match.captured(u"number"_s);
        }
    }
    return u"1"_s;
}

QString FrontMatterReader::language(const CachingPDFDocument &document)
{
    const PDFObjectParser &objects = document.objects();
    const auto catalog = objects.catalog();
    const auto value = catalog ? objects.dictionaryValue(*catalog, "Lang") : std::nullopt;
    return value ? objects.text(*value).value_or(QString()).trimmed().left(35) : QString();
}

} // namespace Tavrin
