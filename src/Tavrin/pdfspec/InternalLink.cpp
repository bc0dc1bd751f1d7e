// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/InternalLink.h>

#include <Tavrin/platform/DecimalForm.h>

#include <QStringList>

#include <array>
#include <cmath>
#include <utility>

namespace Tavrin::InternalLink
{

using namespace Qt::StringLiterals;

namespace
{

constexpr QLatin1String outlinePrefix("outline:");
constexpr QLatin1String destinationPrefix("destination:");
constexpr QLatin1String rectsPrefix("rects:");

/// A page index followed by `Count` decimal numbers, and nothing else.
template <std::size_t Count>
std::optional<std::pair<int, std::array<double, Count>>> parseNumbers(QStringView text)
{
    const auto parts = text.split(u',');
    const auto page = parseInteger(parts.front());
    if (!page || parts.size() != static_cast<qsizetype>(Count) + 1)
        return std::nullopt;
    std::array<double, Count> numbers{};
    for (std::size_t i = 0; i < Count; ++i) {
        const auto number = parseDecimal(parts[static_cast<qsizetype>(i) + 1]);
        if (!number)
            return std::nullopt;
        numbers[i] = *number;
    }
    return std::pair(*page, numbers);
}

Parsed parsePlace(const QString &text)
{
    if (const auto numbers = parseNumbers<2>(text))
        return Place{numbers->first, {numbers->second[0], numbers->second[1]}};
    return Malformed{u"Unsupported destination syntax: %1. Expected format "
                     "\"destination:[page],[x],[y]\""_s.arg(text)};
}

Parsed parseRects(const QString &text)
{
    Rects result;
    for (const QString &item : text.split(u';')) {
        const auto numbers = parseNumbers<4>(item);
        if (!numbers) {
            return Malformed{u"Unsupported destination rect syntax: %1. Expected components of "
                             "the form \"[page],[x],[y],[width],[height]\""_s.arg(item)};
        }
        const auto &[x, y, width, height] = numbers->second;
        result.rects.insert_or_assign(numbers->first, Rect{{x, y}, {width, height}});
    }
    return result;
}

QString integerPart(double value)
{
    if (!std::isfinite(value))
        qFatal("A destination has a coordinate that isn't finite");
    const double whole = std::trunc(value);
    return QString::number(whole == 0 ? 0.0 : whole, 'f', 0);
}

} // namespace

Parsed parse(const QString &link)
{
    if (link.startsWith(outlinePrefix))
        return Outline{link.mid(outlinePrefix.size())};
    if (link.startsWith(destinationPrefix))
        return parsePlace(link.mid(destinationPrefix.size()));
    if (link.startsWith(rectsPrefix))
        return parseRects(link.mid(rectsPrefix.size()));
    return Named{link};
}

QString printOutline(const QString &label)
{
    return outlinePrefix + label;
}

QString printPlace(int page, Point point)
{
    return destinationPrefix + QString::number(page) + u',' + integerPart(point.x) + u',' +
           integerPart(point.y);
}

QString printRects(const PageRects &rects)
{
    QStringList items;
    for (const auto &[page, rect] : rects) {
        QString item = QString::number(page);
        for (const double number :
             {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height})
            item += u',' + decimalForm(std::floor(number));
        items += item;
    }
    return rectsPrefix + items.join(u';');
}

} // namespace Tavrin::InternalLink
