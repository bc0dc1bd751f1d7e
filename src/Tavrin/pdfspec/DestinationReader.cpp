// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/DestinationReader.h>

#include <Tavrin/pdf/PDFNumber.h>
#include <Tavrin/pdf/PDFString.h>
#include <Tavrin/platform/StandardError.h>

#include <QSet>

#include <cmath>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

DestinationReader::DestinationReader(std::shared_ptr<HostPDFDocument> document,
                                     const std::vector<PDFDictionaryPtr> &pageDictionaries,
                                     PDFReadingPolicy policy)
    : m_document(std::move(document)), m_policy(policy)
{
    m_pages.reserve(static_cast<qsizetype>(pageDictionaries.size()));
    int index = 0;
    for (const PDFDictionaryPtr &page : pageDictionaries) {
        const PDFObjectHandle handle = page->lowLevelObject()->handle;
        if (!m_pages.contains(handle))
            m_pages.insert(handle, index);
        ++index;
    }
}

std::optional<HostPDFDestination> DestinationReader::destination(const PDFArray &array) const
{
    return m_policy == PDFReadingPolicy::Strict ? strictDestination(array)
                                                : commonDestination(array);
}

std::optional<int> DestinationReader::pageIndex(const PDFObject &object) const
{
    const PDFLowLevelObject *lowLevel = object.lowLevelObject();
    const auto it = lowLevel ? m_pages.constFind(lowLevel->handle) : m_pages.constEnd();
    return it == m_pages.constEnd() ? std::nullopt : std::optional(*it);
}

std::optional<HostPDFDestination> DestinationReader::strictDestination(const PDFArray &array) const
{
    std::vector<double> coordinates;
    int page = 0;
    QString mode;
    for (const PDFObjectPtr &object : array) {
        if (const auto number = std::dynamic_pointer_cast<PDFNumber>(object))
            coordinates.push_back(number->value());
        else if (const auto dictionary = std::dynamic_pointer_cast<PDFDictionary>(object))
            page = pageIndex(*dictionary).value_or(page);
        else if (const auto string = std::dynamic_pointer_cast<PDFString>(object))
            mode = string->value();
    }
    if (mode.toLower() != u"xyz"_s) {
        standardError(u"Don't know how to handle destinations with mode "_s + mode);
        return std::nullopt;
    }
    if (coordinates.size() < 2) {
        standardError(u"Too few coordinates for destination: "_s + array.debugDescription());
        return std::nullopt;
    }
    auto hostPage = m_document->page(page);
    if (!hostPage) {
        standardError(u"Couldn't get the page that this destination points to"_s);
        return std::nullopt;
    }
    return HostPDFDestination(std::move(hostPage), {coordinates[0], coordinates[1]});
}

/// Where a mode keeps its left and top among the elements of the array; 0 where it has none.
struct DestinationReader::Coordinates {
    qsizetype left = 0;
    qsizetype top = 0;

    static std::optional<Coordinates> forMode(const QByteArray &mode)
    {
        if (mode == "XYZ")
            return Coordinates{2, 3};
        if (mode == "FitH" || mode == "FitBH")
            return Coordinates{0, 2};
        if (mode == "FitV" || mode == "FitBV")
            return Coordinates{2, 0};
        if (mode == "FitR")
            return Coordinates{2, 5};
        if (mode == "Fit" || mode == "FitB")
            return Coordinates{};
        return std::nullopt;
    }
};

std::optional<HostPDFDestination> DestinationReader::commonDestination(const PDFArray &array) const
{
    // Read by position, not through the elements: a null coordinate must keep its place here.
    const PDFLowLevelObject &source = *array.lowLevelObject();
    const PDFObjectParser &parser = *source.parser;
    const auto element = [&](qsizetype index) { return parser.arrayElement(source.handle, index); };
    const auto modeElement = element(1);
    const QByteArray mode = modeElement ? parser.name(*modeElement).value_or("") : QByteArray();
    const auto places = Coordinates::forMode(mode);
    if (!places) {
        standardError(u"Don't know how to handle destinations with mode "_s +
                      QString::fromUtf8(mode));
        return std::nullopt;
    }
    const auto target = element(0);
    const auto it = target ? m_pages.constFind(*target) : m_pages.constEnd();
    const int page = it != m_pages.constEnd()
                         ? *it
                         : static_cast<int>(parser.arrayNumber(source.handle, 0).value_or(-1));
    auto hostPage = m_document->page(page);
    if (!hostPage) {
        standardError(u"Couldn't get the page that this destination points to"_s);
        return std::nullopt;
    }
    const Rect box = hostPage->bounds(PDFBox::Crop);
    const auto coordinate = [&](qsizetype index, double missing) {
        const auto value = index > 0 ? parser.arrayNumber(source.handle, index) : std::nullopt;
        return value && std::isfinite(*value) ? *value : missing;
    };
    const Point point{coordinate(places->left, box.minX()), coordinate(places->top, box.maxY())};
    return HostPDFDestination(std::move(hostPage), point);
}

std::optional<HostPDFDestination> DestinationReader::namedValue(const PDFObjectPtr &value) const
{
    if (const auto dictionary = std::dynamic_pointer_cast<PDFDictionary>(value)) {
        const auto array = dictionary->object<PDFArray>("D");
        return array ? destination(*array) : std::nullopt;
    }
    const auto array = std::dynamic_pointer_cast<PDFArray>(value);
    return array && m_policy == PDFReadingPolicy::Common ? destination(*array) : std::nullopt;
}

void DestinationReader::readNames(const PDFArray &names, DestinationMap &map) const
{
    QString key;
    for (const PDFObjectPtr &object : names) {
        if (const auto string = std::dynamic_pointer_cast<PDFString>(object)) {
            key = string->value();
            continue;
        }
        const bool isDictionary = std::dynamic_pointer_cast<PDFDictionary>(object) != nullptr;
        if (key.isEmpty() || (!isDictionary && m_policy == PDFReadingPolicy::Strict))
            continue;
        if (const auto place = namedValue(object))
            map.insert(key, *place);
        else
            map.remove(key);
    }
}

DestinationMap DestinationReader::nameTree(const PDFDictionary &root) const
{
    DestinationMap map;
    QSet<PDFObjectHandle> visited;
    std::vector<PDFLowLevelObject> pending{*root.lowLevelObject()};
    while (!pending.empty()) {
        const PDFDictionary node(pending.back());
        pending.pop_back();
        const PDFObjectHandle handle = node.lowLevelObject()->handle;
        if (visited.contains(handle))
            continue;
        visited.insert(handle);
        if (const auto kids = node.object<PDFArray>("Kids")) {
            for (auto kid = kids->objects().rbegin(); kid != kids->objects().rend(); ++kid) {
                if (std::dynamic_pointer_cast<PDFDictionary>(*kid))
                    pending.push_back(*(*kid)->lowLevelObject());
            }
        } else if (const auto names = node.object<PDFArray>("Names")) {
            readNames(*names, map);
        }
    }
    return map;
}

DestinationMap DestinationReader::plainDictionary(const PDFDictionary &dictionary) const
{
    DestinationMap map;
    const auto &entries = dictionary.dict();
    for (auto it = entries.constBegin(); it != entries.constEnd(); ++it) {
        if (const auto place = namedValue(it.value()))
            map.insert(it.key(), *place);
    }
    return map;
}

} // namespace Tavrin
