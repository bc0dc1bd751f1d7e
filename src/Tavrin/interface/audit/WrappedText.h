// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFont>
#include <QPointF>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace Tavrin
{

/// A text in so many whole lines, of which the last ends in an ellipsis if there is more.
class WrappedText
{
public:
    /// The width in pixels. Text runs, and is aligned, as its own script does.
    WrappedText(const QString &text, const QFont &font, double width, int lines);

    bool isCut() const { return m_isCut; }
    /// From the top left, in the painter's pen.
    void draw(QPainter &painter, QPointF topLeft) const;

private:
    /// Makes the lines; returns where the last begins.
    qsizetype layOut(const QString &text, int lines);

    QTextLayout m_layout;
    double m_width;
    /// Whether the text that was laid out last has more lines.
    bool m_hasMore = false;
    bool m_isCut = false;
};

} // namespace Tavrin
