// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringView>

#include <Tavrin/CoreExport.h>
#include <Tavrin/platform/StyledText.h>

class QIODevice;

namespace Tavrin
{

struct TextAttachment;

/// Writes styled text as a document of the Rich Text Format (RTF 1.9.1).
///
/// Kept are families, sizes to the half point, bold and italic, colours, links and attachments of
/// the type "image/png". A font without a family becomes Helvetica, with Arial as the substitute
/// that most systems have. The output is ASCII, whatever the text holds: other characters are
/// written as UTF-16 units, and controls that a document can't hold are left out. A line feed
/// ends a paragraph, and U+2028 breaks a line. Used once, for one text.
class TAVRIN_CORE_EXPORT RTFWriter
{
public:
    /// The device is open for writing and outlives the writer.
    explicit RTFWriter(QIODevice &device);

    /// Writes the range of the text; false if the device takes no more, and it says why then. A
    /// document needs no more than this call. The range is cut to the text.
    bool write(const StyledText &text, TextRange range);

    /// The same as one array of bytes.
    ///
    /// Such as for the clipboard, as "text/rtf".
    static QByteArray document(const StyledText &text, TextRange range);

private:
    void gather(const TextAttributes &attributes);
    void writeHeader();
    void writeRun(const StyledText::Run &run, QStringView text);
    QByteArray formatting(const TextAttributes &attributes) const;
    void writeAttachment(const TextAttachment &attachment);
    void put(const QByteArray &bytes);

    QIODevice &m_device;
    bool m_isSound = true;
    QHash<QString, int> m_fonts;
    QHash<QRgb, int> m_colors;
    QByteArray m_fontTable;
    QByteArray m_colorTable;
};

} // namespace Tavrin
