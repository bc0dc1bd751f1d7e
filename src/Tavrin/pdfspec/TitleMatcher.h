// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace Tavrin
{

/// Tells whether printed text holds a title, whatever the print did to it: words parted at line
/// ends, typographic quotes and dashes, ligatures, blanks lost or doubled. Case counts, unless the
/// print has capitals alone.
class TitleMatcher
{
public:
    explicit TitleMatcher(const QString &title);

    bool isIn(const QString &printed) const;

    /// Text without what print varies: blanks, hyphens, forms of quotes and dashes.
    static QString plain(const QString &text);

private:
    QString m_plain;
};

} // namespace Tavrin
