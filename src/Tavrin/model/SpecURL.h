// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include <Tavrin/CoreExport.h>

/// Spec URLs, `spec://LABEL/IDENTIFIER/REVISION`, put together and taken apart as text.
///
/// A general URL class would rewrite them: it takes the label 4.2.1 for an IPv4 address. Encoding
/// follows RFC 3986.
namespace Tavrin::SpecURL
{

inline const QString prefix = QStringLiteral("spec://");
inline const QString wildcard = QStringLiteral("*");

/// The prefix and the label, percent-encoded with what a host may hold.
TAVRIN_CORE_EXPORT QString shortForm(const QString &label);

/// Whether a short form is a URL, so that path components may follow it: a colon in a host starts
/// a port, and brackets hold an IP address.
TAVRIN_CORE_EXPORT bool isValidBase(const QString &shortForm);

/// The URL with one more path component.
TAVRIN_CORE_EXPORT QString appending(const QString &url, const QString &component);

/// What follows the prefix, percent-decoded and split at "/". Nothing if the text does not begin
/// with the prefix; an empty list if nothing follows it. Encoding that is broken stays as it is.
TAVRIN_CORE_EXPORT std::optional<QStringList> components(const QString &text);

/// Whether a URL names a range of lines that ends before it begins. Looking it up is a fault of the
/// program, so texts from outside are asked first.
TAVRIN_CORE_EXPORT bool hasReversedLines(const QString &text);

} // namespace Tavrin::SpecURL
