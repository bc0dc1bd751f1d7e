// SPDX-License-Identifier: Apache-2.0
#include "TitleCheck.h"

#include <optional>
#include <vector>

#include <Tavrin/pdf/HostPDFPage.h>
#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Cli::TitleCheck
{

using namespace Qt::StringLiterals;

namespace
{

/// A place may stand this far above the heading it means, in points: room for the number on a line
/// of its own; and this little below the heading's top.
constexpr double reachBelow = 144;
constexpr double reachAbove = 2;

/// A title may be broken over this many lines.
constexpr std::size_t longestTitle = 8;

/// Letters and digits alone: blanks, quotes and hyphens differ between print and map.
QString letters(const QString &text)
{
    QString result;
    for (const QChar character : text.normalized(QString::NormalizationForm_KC)) {
        if (character.isLetterOrNumber())
            result += character.toLower();
    }
    return result;
}

/// The tops of the places on a page where the title is printed, in upright space.
std::vector<double> printedAt(const HostPDFPage &page, const QString &title)
{
    const QString wanted = letters(title);
    const QString string = page.string().value_or(QString());
    const std::vector<TextRange> lines = LineFinder::lines(page);
    std::vector<double> tops;
    for (std::size_t first = 0; first < lines.size(); ++first) {
        const QString start = letters(string.mid(lines[first].location, lines[first].length));
        QString joined;
        const std::size_t end = std::min(lines.size(), first + longestTitle);
        for (std::size_t line = first; line < end && !joined.contains(wanted); ++line)
            joined += letters(string.mid(lines[line].location, lines[line].length));
        // The title must begin in this line, not only in one behind it.
        const qsizetype at = joined.indexOf(wanted);
        if (at >= 0 && (at < start.size() || wanted.isEmpty())) {
            const Rect bounds = page.selection(lines[first]).bounds(page);
            tops.push_back(page.geometry().toUpright(bounds).maxY());
        }
    }
    return tops;
}

} // namespace

Result check(const PDFSpecification::Entry &entry)
{
    const HostPDFPage &page = *entry.destination()->page();
    const double place = page.geometry().toUpright(entry.destination()->point()).y;
    const auto tops = printedAt(page, entry.title());
    if (tops.empty())
        return {false, localized("title not on the page", "fault of an entry")};
    std::optional<double> nearest;
    for (const double top : tops) {
        const double below = place - top;
        const bool isWithin =
            below >= -reachAbove && (below <= reachBelow || !isTextual(entry.type()));
        if (isWithin)
            return {true, {}};
        if (!nearest || std::abs(below) < std::abs(*nearest))
            nearest = below;
    }
    return {false, *nearest > 0 ? localized("title %1 points below the place", "fault of an entry")
                                      .arg(*nearest, 0, 'f', 0)
                                : localized("title %1 points above the place", "fault of an entry")
                                      .arg(-*nearest, 0, 'f', 0)};
}

} // namespace Tavrin::Cli::TitleCheck
