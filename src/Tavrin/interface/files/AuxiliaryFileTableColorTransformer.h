// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPalette>
#include <QVariant>

namespace Tavrin
{

/// Turns whether a row can be selected into the colour of its texts.
class AuxiliaryFileTableColorTransformer
{
public:
    /// The colour of texts for true, gray for false, both to be read with ease on the palette's
    /// base; a light gray for what is no boolean.
    static QColor transformedValue(const QVariant &value, const QPalette &palette);
};

} // namespace Tavrin
