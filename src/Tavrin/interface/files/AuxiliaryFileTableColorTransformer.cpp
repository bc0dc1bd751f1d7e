// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/AuxiliaryFileTableColorTransformer.h>

namespace Tavrin
{

namespace
{

/// Shares of the colour of texts in that of what stands back. The first leaves a contrast of more
/// than 4.5 on light and dark palettes (WCAG 2.1, 1.4.3).
constexpr float grayShare = 0.6F;
constexpr float lightGrayShare = 0.3F;

QColor mixed(const QColor &front, const QColor &back, float share)
{
    const auto mix = [share](float a, float b) { return share * a + (1 - share) * b; };
    return QColor::fromRgbF(mix(front.redF(), back.redF()), mix(front.greenF(), back.greenF()),
                            mix(front.blueF(), back.blueF()));
}

} // namespace

QColor AuxiliaryFileTableColorTransformer::transformedValue(const QVariant &value,
                                                            const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    if (value.metaType() != QMetaType::fromType<bool>())
        return mixed(text, base, lightGrayShare);
    return value.toBool() ? text : mixed(text, base, grayShare);
}

} // namespace Tavrin
