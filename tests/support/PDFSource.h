// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <Tavrin/platform/Geometry.h>

/// The written form of PDF's simple objects (ISO 32000-1, 7.3).
namespace Tavrin::Testing::PDFSource
{

QByteArray number(double value);
/// Bytes outside the regular characters are written as "#xx".
QByteArray name(const QByteArray &bytes);
/// A literal string of these very bytes.
QByteArray string(const QByteArray &bytes);
/// A text string: ASCII as it is, anything else as UTF-16 with its mark.
QByteArray textString(const QString &text);
QByteArray rectangle(const Rect &rect);
QByteArray reference(int objectNumber);

/// The bytes of a text in WinAnsiEncoding; a character outside it becomes "?".
QByteArray winAnsi(const QString &text);

} // namespace Tavrin::Testing::PDFSource
