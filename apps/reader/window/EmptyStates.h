// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace Tavrin
{
class SpecificationManager;
}

/// What an empty part of the window says: what to do next, by what there is.
namespace Tavrin::Reader::EmptyStates
{

QString ofSummary();
QString ofDocument(const SpecificationManager &manager);

} // namespace Tavrin::Reader::EmptyStates
