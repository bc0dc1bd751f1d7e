// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/TextAttachment.h>

#include <Tavrin/platform/StyledText.h>

#include <QBuffer>
#include <QImage>

namespace Tavrin
{

TextAttachment TextAttachment::png(const QImage &image, double pixelsPerPoint)
{
    TextAttachment result;
    result.type = QStringLiteral("image/png");
    result.size = {image.width() / pixelsPerPoint, image.height() / pixelsPerPoint};
    QBuffer buffer(&result.data);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        result.data.clear();
    return result;
}

StyledText TextAttachment::text() const
{
    TextAttributes attributes;
    attributes.attachment = QVariant::fromValue(*this);
    return StyledText(QString(objectReplacement), attributes);
}

} // namespace Tavrin
