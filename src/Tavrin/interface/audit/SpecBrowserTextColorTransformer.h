// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPalette>
#include <QVariant>

namespace Tavrin
{

/// The colour in which a cell shows its value.
class SpecBrowserTextColorTransformer
{
public:
    /// That of text in general; the palette's gray for text that is empty.
    static QColor transformedValue(const QVariant &value, const QPalette &palette);
};

} // namespace Tavrin
