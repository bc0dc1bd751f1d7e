// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecificationEntryType.h>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

QString textForm(SpecificationEntryType type)
{
    switch (type) {
    case SpecificationEntryType::Section:
        return u"section"_s;
    case SpecificationEntryType::Chapter:
        return u"chapter"_s;
    case SpecificationEntryType::Figure:
        return u"figure"_s;
    case SpecificationEntryType::Table:
        return u"table"_s;
    }
    qFatal("An entry has a type that does not exist");
}

std::optional<SpecificationEntryType> entryTypeFromText(QStringView text)
{
    using enum SpecificationEntryType;
    for (const SpecificationEntryType type : {Section, Chapter, Figure, Table}) {
        if (textForm(type) == text)
            return type;
    }
    return std::nullopt;
}

QString description(SpecificationEntryType type)
{
    switch (type) {
    case SpecificationEntryType::Section:
        return localized("Section", "spec entry type");
    case SpecificationEntryType::Chapter:
        return localized("Chapter", "spec entry type");
    case SpecificationEntryType::Figure:
        return localized("Figure", "spec entry type");
    case SpecificationEntryType::Table:
        return localized("Table", "spec entry type");
    }
    qFatal("An entry has a type that does not exist");
}

bool isTextual(SpecificationEntryType type)
{
    return type == SpecificationEntryType::Section || type == SpecificationEntryType::Chapter;
}

} // namespace Tavrin
