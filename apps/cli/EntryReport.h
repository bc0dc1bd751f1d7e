// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>

#include <Tavrin/model/SpecificationEntry.h>

namespace Tavrin::Cli
{

/// How the commands show an entry: kind, number, title and, where the PDF is bound, its place.
namespace EntryReport
{

/// "Section 4.2.1  Scope"; for a part of an entry "Section 4.2.1, lines 3 to 5  Scope".
QString heading(const SpecificationEntry &entry);
/// "page 17 (printed 5) at 89, 344"; says what is missing where there is no place.
QString place(const SpecificationEntry &entry);
/// The entry's spec URL, bound to its specification and revision.
QString url(const SpecificationEntry &entry);

/// Prints heading, and below it place, specification and URL.
void print(const SpecificationEntry &entry);
/// The same as data. Pages count from 0 in `page`, as in maps, and so does `lineRange`, which ends
/// before its second number, as in spec URLs; points are in page space.
QJsonObject json(const SpecificationEntry &entry);

} // namespace EntryReport

} // namespace Tavrin::Cli
