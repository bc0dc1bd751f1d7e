// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/LinkReader.h>

#include <Tavrin/pdf/PDFArray.h>
#include <Tavrin/pdf/PDFNumber.h>
#include <Tavrin/pdf/PDFString.h>

#include <optional>

namespace Tavrin::LinkReader
{

using namespace Qt::StringLiterals;

namespace
{

bool hasText(const PDFDictionary &dictionary, const char *key, QStringView text)
{
    const auto value = dictionary.object<PDFString>(key);
    return value && value->value() == text;
}

std::optional<Rect> rectangle(const PDFDictionary &annotation)
{
    const auto array = annotation.object<PDFArray>("Rect");
    if (!array || array->objects().size() != 4)
        return std::nullopt;
    double numbers[4];
    for (std::size_t i = 0; i < 4; ++i) {
        const auto number = std::dynamic_pointer_cast<PDFNumber>((*array)[i]);
        if (!number)
            return std::nullopt;
        numbers[i] = number->value();
    }
    return Rect::fromCorners({numbers[0], numbers[1]}, {numbers[2], numbers[3]});
}

PDFObjectPtr destination(const PDFDictionary &annotation, PDFReadingPolicy policy)
{
    auto own = annotation.object("Dest");
    if (own || policy == PDFReadingPolicy::Strict)
        return own;
    const auto action = annotation.object<PDFDictionary>("A");
    return action && hasText(*action, "S", u"GoTo") ? action->object("D") : nullptr;
}

} // namespace

std::vector<Target> targets(const PDFDictionary &page, PDFReadingPolicy policy,
                            bool *hasAnnotations)
{
    std::vector<Target> links;
    const auto annotations = page.object<PDFArray>("Annots");
    if (hasAnnotations)
        *hasAnnotations = annotations != nullptr;
    if (!annotations)
        return links;
    for (const PDFObjectPtr &element : *annotations) {
        const auto annotation = std::dynamic_pointer_cast<PDFDictionary>(element);
        if (!annotation || !hasText(*annotation, "Subtype", u"Link"))
            continue;
        const auto bounds = rectangle(*annotation);
        if (auto target = bounds ? destination(*annotation, policy) : nullptr)
            links.push_back({*bounds, std::move(target)});
    }
    return links;
}

std::vector<LinkRecord> namedLinks(const PDFDictionary &page, PDFReadingPolicy policy)
{
    std::vector<LinkRecord> links;
    for (const Target &target : targets(page, policy)) {
        if (const auto name = std::dynamic_pointer_cast<PDFString>(target.destination))
            links.push_back({name->value(), target.bounds});
    }
    return links;
}

} // namespace Tavrin::LinkReader
