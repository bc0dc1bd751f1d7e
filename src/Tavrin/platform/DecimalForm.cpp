// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/DecimalForm.h>

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// std::from_chars takes no plus sign and reads "inf" and "nan"; both are put right here.
template <class Number>
std::optional<Number> parse(QStringView text)
{
    QByteArray bytes = text.toLatin1();
    if (bytes.startsWith('+') && !bytes.startsWith("+-"))
        bytes.remove(0, 1);
    Number value{};
    const char *end = bytes.constData() + bytes.size();
    const auto [stop, error] = std::from_chars(bytes.constData(), end, value);
    if (error != std::errc{} || stop != end)
        return std::nullopt;
    return value;
}

} // namespace

QString decimalForm(double value)
{
    const double magnitude = std::abs(value);
    const bool fixed = magnitude == 0 || (magnitude >= 1e-4 && magnitude <= 9007199254740992.0);
    std::array<char, 64> buffer{};
    const auto format = fixed ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format).ptr;
    const QString text = QString::fromLatin1(buffer.data(), end - buffer.data());
    return fixed && !text.contains(u'.') ? text + u".0"_s : text;
}

std::optional<double> parseDecimal(QStringView text)
{
    const auto value = parse<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> parseInteger(QStringView text)
{
    return parse<int>(text);
}

} // namespace Tavrin
