// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariant>

#include <utility>

namespace Tavrin
{

/// One row of what is shown of an entry: a caption, and a text, a StyledText or an image.
struct EntryDisplayItem {
    QString label;
    QVariant objectValue;

    friend bool operator==(const EntryDisplayItem &, const EntryDisplayItem &) = default;
};

/// The same row for hosts that can hold objects only.
class BridgedEntryDisplayItem
{
public:
    explicit BridgedEntryDisplayItem(EntryDisplayItem item) : m_item(std::move(item)) {}

    const QString &label() const { return m_item.label; }
    const QVariant &objectValue() const { return m_item.objectValue; }

private:
    EntryDisplayItem m_item;
};

} // namespace Tavrin
