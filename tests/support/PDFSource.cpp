// SPDX-License-Identifier: Apache-2.0
#include <support/PDFSource.h>

#include <algorithm>

namespace Tavrin::Testing::PDFSource
{

namespace
{

/// Bytes 0x80 to 0x9F of WinAnsiEncoding; zero where there is no character.
constexpr char16_t upperControls[] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool isRegular(char byte)
{
    return byte > 0x20 && byte < 0x7F && !QByteArrayView("()<>[]{}/%#").contains(byte);
}

char winAnsiByte(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return char(unit);
    const auto found = std::find(std::begin(upperControls), std::end(upperControls), unit);
    return found == std::end(upperControls) ? '?' : char(0x80 + (found - upperControls));
}

} // namespace

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', value == double(qint64(value)) ? 0 : 4);
}

QByteArray name(const QByteArray &bytes)
{
    QByteArray source("/");
    for (const char byte : bytes)
        source += isRegular(byte) ? QByteArray(1, byte) : '#' + QByteArray(1, byte).toHex();
    return source;
}

QByteArray string(const QByteArray &bytes)
{
    QByteArray source("(");
    for (const char byte : bytes) {
        if (byte == '(' || byte == ')' || byte == '\\')
            source += '\\';
        source += byte;
    }
    return source.replace('\r', "\\r") + ')';
}

QByteArray textString(const QString &text)
{
    const bool isASCII = std::all_of(text.begin(), text.end(),
                                     [](QChar character) { return character.unicode() < 0x80; });
    if (isASCII)
        return string(text.toLatin1());
    QByteArray bytes("\xFE\xFF");
    for (const QChar character : text) {
        bytes += char(character.unicode() >> 8);
        bytes += char(character.unicode() & 0xFF);
    }
    return '<' + bytes.toHex() + '>';
}

QByteArray rectangle(const Rect &rect)
{
    return '[' + number(rect.minX()) + ' ' + number(rect.minY()) + ' ' + number(rect.maxX()) + ' ' +
           number(rect.maxY()) + ']';
}

QByteArray reference(int objectNumber)
{
    return QByteArray::number(objectNumber) + " 0 R";
}

QByteArray winAnsi(const QString &text)
{
    QByteArray bytes;
    for (const QChar character : text)
        bytes += winAnsiByte(character.unicode());
    return bytes;
}

} // namespace Tavrin::Testing::PDFSource
