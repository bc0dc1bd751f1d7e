// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include <Tavrin/platform/TextRange.h>

namespace Tavrin
{

/// A text with each stretch of white space and line ends made one blank, and none at its ends;
/// remembers where each character came from.
class FlatText
{
public:
    explicit FlatText(QStringView text);

    const QString &string() const { return m_string; }

    /// The range, in the text it was made of, of an occurrence of a flat text: that which begins
    /// nearest to `hint`. Nothing if there is none at or behind `from`.
    std::optional<TextRange> find(const QString &flat, qsizetype hint, qsizetype from = 0) const;

private:
    QString m_string;
    std::vector<qsizetype> m_positions;
};

} // namespace Tavrin
