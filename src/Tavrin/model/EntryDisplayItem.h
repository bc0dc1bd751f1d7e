// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariant>

#include <utility>

namespace Tavrin
{

/// One row of what is shown of an entry: a caption, and a text, a StyledText or an image.
///
/// What SpecificationEntry::displayItems() gives. A view shows the rows as they come.
struct EntryDisplayItem {
    /// The caption, in the user's language: "Summary".
    QString label;
    /// A QString, a StyledText, a QImage, or a QStringList or QVariantList of StyledText, an item a
    /// line.
    QVariant objectValue;

    friend bool operator==(const EntryDisplayItem &, const EntryDisplayItem &) = default;
};

/// The same row for hosts that can hold objects only.
///
/// Immutable, as the row was when it was asked for.
class BridgedEntryDisplayItem
{
public:
    /// Keeps the row.
    explicit BridgedEntryDisplayItem(EntryDisplayItem item) : m_item(std::move(item)) {}

    const QString &label() const { return m_item.label; }
    const QVariant &objectValue() const { return m_item.objectValue; }

private:
    EntryDisplayItem m_item;
};

} // namespace Tavrin
