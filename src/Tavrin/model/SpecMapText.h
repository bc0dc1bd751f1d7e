// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <vector>

#include <Tavrin/model/AuxiliaryFileRequirement.h>
#include <Tavrin/platform/HostXMLDocument.h>

/// The text forms of a spec map, read.
namespace Tavrin::SpecMapText
{

/// The integers of "4.2.1" or "4-2-1"; pieces that are no integers, such as the letter of "A.3",
/// are passed over.
std::vector<int> index(const QString &text);

/// The pieces between punctuation characters, blanks included.
QStringList keywords(const QString &text);

/// The content of the `item` children, in order.
QStringList relatedItems(const HostXMLNode &related);

/// The first child with this name, or nothing.
std::optional<HostXMLNode> firstNamed(const std::vector<HostXMLNode> &nodes, const QString &name);

/// What the `auxfiles` block asks for; empty without one. Throws XMLError for a file without type
/// or verifier.
AuxiliaryFileRequirements requirements(const HostXMLDocument &document);

/// A name as diagnostics show it: Optional("x"), or nil.
QString debugName(const std::optional<QString> &name);

} // namespace Tavrin::SpecMapText
