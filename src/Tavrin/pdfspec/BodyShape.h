// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/CachingPDFDocument.h>

namespace Tavrin
{

/// The look of body text, beyond its size: its font family, and its left margin on even and odd
/// pages, which in many prints differ. Measured on two dozen pages spread over the document.
class BodyShape
{
public:
    BodyShape(const CachingPDFDocument &document, double textSize);

    /// Whether text of this font can be body: its size within half a point, and its family.
    bool isBodyFont(const TextFont &font) const;

    /// The rectangle moved sideways so that what stands at the margin of its page stands at
    /// `leftMargin`.
    Rect movedToMargin(Rect rect, const HostPDFPage &page, double leftMargin) const;

private:
    struct Sample;

    QString m_family;
    double m_textSize;
    /// By the parity of the page index, in whole points of page space; nothing where no page of
    /// that parity has body text.
    std::optional<double> m_margins[2];
};

} // namespace Tavrin
