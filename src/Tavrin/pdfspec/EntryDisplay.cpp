// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/EntryDisplay.h>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/SpecificationRegistry.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <Tavrin/platform/SystemFont.h>

namespace Tavrin
{

namespace
{

TextAttributes standardAttributes()
{
    TextAttributes attributes;
    attributes.font = systemFont(smallFontSize);
    return attributes;
}

/// A text that is a link as a whole.
StyledText linkText(const QString &text, const QString &target)
{
    TextAttributes attributes = standardAttributes();
    attributes.link = target;
    return StyledText(text, attributes);
}

} // namespace

EntryDisplay::EntryDisplay(const PDFSpecification::Entry &entry) : m_entry(entry) {}

std::vector<EntryDisplayItem> EntryDisplay::knownItems() const
{
    const TextAttributes bold{.font = systemFont(smallFontSize, TextFont::Bold)};
    const StyledText title(m_entry.displayTitle(), bold);
    std::vector<EntryDisplayItem> items{{description(m_entry.type()), QVariant::fromValue(title)}};
    if (const auto specification = m_entry.specification())
        items.push_back({localized("Source", "spec entry field"), specification->title()});
    return items;
}

std::vector<EntryDisplayItem> EntryDisplay::items() const
{
    const auto specification = m_entry.specification();
    std::vector<EntryDisplayItem> items = knownItems();
    const auto summary = m_entry.summaryText();
    const auto preview = m_entry.previewImage();
    const bool isShown = specification && specification->allowsPreviews();
    if (summary && isShown)
        items.push_back({localized("Summary", "spec entry field"), QVariant::fromValue(*summary)});
    if (preview && isShown)
        items.push_back({localized("Preview", "spec entry field"), *preview});
    if (!summary && !preview)
        return items;
    items.push_back(moreItem(specification.get()));
    const QVariantList related = relatedTexts(specification.get());
    if (!related.isEmpty())
        items.push_back({localized("Related", "spec entry field"), related});
    return items;
}

EntryDisplayItem EntryDisplay::moreItem(const Specification *specification) const
{
    const QString target = specification ? SpecURL::shortForm(m_entry.label()) : m_entry.label();
    const QString text = localized("View in specification", "spec entry value");
    return {localized("More", "spec entry field"), QVariant::fromValue(linkText(text, target))};
}

QVariantList EntryDisplay::relatedTexts(Specification *specification) const
{
    QVariantList texts;
    const auto registry = specification ? specification->registry() : nullptr;
    for (const QString &label : m_entry.relatedEntries()) {
        auto found = specification ? specification->entry(label) : nullptr;
        if (!found && registry)
            found = registry->entry(label);
        if (found)
            texts.append(QVariant::fromValue(linkText(found->displayTitle(), label)));
    }
    return texts;
}

} // namespace Tavrin
