// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/HeadingEnumerator.h>

#include <QStringList>

#include <utility>

namespace Tavrin
{

namespace
{
constexpr qsizetype minimumLength = 3;
}

HeadingEnumerator::HeadingEnumerator(double normalTextSize, Callback callback)
    : m_normalTextSize(normalTextSize), m_callback(std::move(callback))
{
}

void HeadingEnumerator::enumerate(const StyledText &text)
{
    text.enumerateFonts({0, text.length()}, [&](const TextFont *font, TextRange run, bool &stop) {
        if (font)
            add(text.string().mid(run.location, run.length), *font, run);
        stop = m_stop;
    });
    if (!m_stop && !m_pending.isEmpty() && m_pendingSize > m_normalTextSize)
        m_callback(m_pending, m_pendingRange, m_stop);
}

void HeadingEnumerator::add(const QString &run, const TextFont &font, TextRange range)
{
    if (font.pointSize != m_pendingSize || font.isStyled() != m_pendingStyled) {
        if (isHeading())
            report();
        if (m_stop)
            return;
        m_pending.clear();
        m_pendingSize = font.pointSize;
        m_pendingStyled = font.isStyled();
        m_pendingRange = {range.location, 0};
    }
    m_pending += run;
    m_pendingRange.length += range.length;
}

bool HeadingEnumerator::isHeading() const
{
    return m_pending.trimmed().size() > minimumLength &&
           (m_pendingStyled || m_pendingSize > m_normalTextSize);
}

void HeadingEnumerator::report()
{
    m_pending = m_pending.split(u'\n', Qt::SkipEmptyParts).join(u' ');
    m_callback(m_pending, m_pendingRange, m_stop);
}

} // namespace Tavrin
