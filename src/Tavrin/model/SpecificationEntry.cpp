// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecificationEntry.h>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

SpecificationEntry::SpecificationEntry(const std::shared_ptr<Specification> &specification)
    : m_specification(specification)
{
}

SpecificationEntry::SpecificationEntry(const std::shared_ptr<Specification> &specification,
                                       const QString &label, const QString &title,
                                       SpecificationEntryType type, const std::vector<int> &index)
    : m_title(title), m_index(index), m_label(label), m_type(type), m_specification(specification)
{
}

SpecificationEntry::SpecificationEntry(const SpecificationEntry &) = default;
SpecificationEntry::~SpecificationEntry() = default;

std::shared_ptr<SpecificationEntry> SpecificationEntry::copy() const
{
    auto result =
        std::make_shared<SpecificationEntry>(specification(), label(), title(), type(), index());
    result->setKeywords(keywords());
    result->setRelatedEntries(relatedEntries());
    return result;
}

QString SpecificationEntry::indexSeparator() const
{
    return isTextual(type()) ? u"."_s : u"-"_s;
}

QString SpecificationEntry::number() const
{
    const QString separator = indexSeparator();
    QString result;
    for (const int component : index()) {
        if (!result.isEmpty())
            result += separator;
        result += QString::number(component);
    }
    return result;
}

QString SpecificationEntry::indexString() const
{
    return Tavrin::description(type()) + u' ' + number();
}

QString SpecificationEntry::outlineTitle() const
{
    return number() + u' ' + title();
}

QString SpecificationEntry::displayTitle() const
{
    return Tavrin::description(type()) + u' ' + outlineTitle();
}

QStringList SpecificationEntry::searchableItems() const
{
    const QString &heading = title();
    const QStringList &words = keywords();
    QStringList items;
    items.reserve(words.size() + 3);
    items << heading << heading << indexString() << words;
    return items;
}

std::vector<EntryDisplayItem> SpecificationEntry::displayItems() const
{
    std::vector<EntryDisplayItem> items{
        {Tavrin::description(type()), outlineTitle()},
        {localized("Label", "spec entry field"), label()},
    };
    if (!relatedEntries().isEmpty()) {
        items.push_back({localized("Related", "spec entry field"), relatedEntries().join(u", "_s)});
    }
    return items;
}

std::vector<std::shared_ptr<BridgedEntryDisplayItem>>
SpecificationEntry::bridgedDisplayItems() const
{
    std::vector<std::shared_ptr<BridgedEntryDisplayItem>> bridged;
    for (const EntryDisplayItem &item : displayItems())
        bridged.push_back(std::make_shared<BridgedEntryDisplayItem>(item));
    return bridged;
}

bool entryPrecedes(const SpecificationEntry &a, const SpecificationEntry &b)
{
    const auto group = [](SpecificationEntryType type) {
        return isTextual(type) ? 0 : static_cast<int>(type);
    };
    if (group(a.type()) != group(b.type()))
        return group(a.type()) < group(b.type());
    return a.index() < b.index();
}

} // namespace Tavrin
