// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariant>

namespace Tavrin
{

/// What a cell shows of its value.
class SpecBrowserTextTransformer
{
public:
    /// The text; "<no value>", in the user's language, if it is empty or no text.
    static QString transformedValue(const QVariant &value);
    /// The value itself.
    static QVariant reverseTransformedValue(const QVariant &value) { return value; }
};

} // namespace Tavrin
