// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/HostXMLDocument.h>

namespace Tavrin
{

class Specification;
class SpecificationEntry;

/// The elements of a spec map, written.
namespace SpecMapWriter
{

/// The whole map. Entries stand in document order; those that nothing tells apart keep the order
/// of the table.
HostXMLElement rootElement(const Specification &specification);

/// The element of one entry with what every entry has.
HostXMLElement entryElement(const SpecificationEntry &entry);

/// One element a line: a line feed between any "><" of the text.
QString brokenIntoLines(QString xml);

} // namespace SpecMapWriter

} // namespace Tavrin
