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

/// What every spec URL begins with, in lower case; "SPEC://" begins none.
inline const QString prefix = QStringLiteral("spec://");
/// In place of an identifier or a revision: any of them.
inline const QString wildcard = QStringLiteral("*");

/// The prefix and the label, percent-encoded with what a host may hold.
///
/// "spec://4.2.1" for "4.2.1", "spec://Part%20II" for "Part II". A label that is no sound Unicode
/// stands as it is.
TAVRIN_CORE_EXPORT QString shortForm(const QString &label);

/// Whether a short form is a URL, so that path components may follow it: a colon in a host starts
/// a port, and brackets hold an IP address.
///
/// False for most labels with a colon or brackets, which are then cited by the short form alone.
TAVRIN_CORE_EXPORT bool isValidBase(const QString &shortForm);

/// The URL with one more path component.
///
/// The component is percent-encoded, except that "/" stays: it begins another component.
TAVRIN_CORE_EXPORT QString appending(const QString &url, const QString &component);

/// What follows the prefix, percent-decoded and split at "/". Nothing if the text does not begin
/// with the prefix; an empty list if nothing follows it. Encoding that is broken stays as it is.
///
/// Label, identifier, revision, first line and end, as far as they are there. A "/" in the label
/// that was encoded parts it all the same, since decoding comes first.
TAVRIN_CORE_EXPORT std::optional<QStringList> components(const QString &text);

/// Whether a URL names a range of lines that ends before it begins. Looking it up is a fault of the
/// program, so texts from outside are asked first.
///
/// False for what is no spec URL, and where the lines are no numbers.
TAVRIN_CORE_EXPORT bool hasReversedLines(const QString &text);

} // namespace Tavrin::SpecURL
