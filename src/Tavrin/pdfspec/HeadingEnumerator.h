// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include <Tavrin/platform/StyledText.h>

namespace Tavrin
{

/// Finds stretches of a text that look like headings: larger than the body, bold or italic.
class HeadingEnumerator
{
public:
    /// The heading's text, its range in the text, and a flag that ends the enumeration when set.
    using Callback = std::function<void(const QString &heading, TextRange range, bool &stop)>;

    HeadingEnumerator(double normalTextSize, Callback callback);

    /// Merges runs of one style (size, and whether styled) and reports those that can be headings,
    /// with line ends replaced by blanks. Three characters or fewer make no heading. What ends the
    /// text is reported as it stands, and by its size alone: a body cut out of a page often ends
    /// in the middle of a heading.
    void enumerate(const StyledText &text);

private:
    void add(const QString &run, const TextFont &font, TextRange range);
    bool isHeading() const;
    void report();

    double m_normalTextSize;
    Callback m_callback;
    QString m_pending;
    double m_pendingSize = 0;
    bool m_pendingStyled = false;
    TextRange m_pendingRange;
    bool m_stop = false;
};

} // namespace Tavrin
