// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QChar>
#include <QMetaType>
#include <QString>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/Geometry.h>

class QImage;

namespace Tavrin
{

class StyledText;

/// Encoded image data that stands in a text in place of one character. As the attachment of a run
/// of StyledText, the run's characters are objectReplacement.
///
/// Reports of audits hold such pictures; RTFWriter writes those of the type "image/png".
struct TextAttachment {
    /// The character that an attachment stands in the place of.
    static constexpr QChar objectReplacement = QChar::ObjectReplacementCharacter;

    /// The whole file of the image; empty if it could not be encoded.
    QByteArray data;
    /// The type of the data as MIME names it: "image/png".
    QString type;
    /// As shown, in points.
    Size size;

    /// An image as PNG, at a point a pixel, or more pixels a point.
    ///
    /// The size as shown is the image's divided by `pixelsPerPoint`.
    TAVRIN_CORE_EXPORT static TextAttachment png(const QImage &image, double pixelsPerPoint = 1);

    /// A text of one character that carries this.
    ///
    /// To be appended to another text.
    TAVRIN_CORE_EXPORT StyledText text() const;

    friend bool operator==(const TextAttachment &, const TextAttachment &) = default;
};

} // namespace Tavrin

Q_DECLARE_METATYPE(Tavrin::TextAttachment)
