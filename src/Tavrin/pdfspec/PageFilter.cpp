// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PageFilter.h>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/pdf/PageText.h>
#include <Tavrin/pdfspec/EntryNavigator.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/StandardError.h>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// Annotations are often a little smaller than the words they cover.
constexpr double linkMargin = 2;

void setLink(StyledText &text, TextRange range, const QString &url)
{
    // A stretch that has the link already keeps it, so that a link twice told costs nothing.
    bool isLinked = true;
    text.enumerateLinks(range, [&](const QString *link, TextRange, bool &stop) {
        isLinked = link && *link == url;
        stop = !isLinked;
    });
    if (!isLinked)
        text.setLink(url, range);
}

} // namespace

PageFilter::PageFilter(const PrintReader &print)
    : m_print(print), m_specification(print.specification())
{
}

std::shared_ptr<FilteredPage> PageFilter::filter(const HostPDFPage &page) const
{
    auto result = std::make_shared<FilteredPage>();
    const auto text = page.text();
    if (!text)
        return result;
    const StyledText linked = linkedText(page);
    const Rect area = m_specification.readingArea(page);
    const std::vector<Rect> breaks = regions(page.index());
    // The order of the page's text is that of reading; the line list goes by height alone.
    for (const PageTextLine &line : text->lines()) {
        const StyledText part = linked.attributedSubstring(line.range);
        const Point center = line.bounds.center();
        const bool isBroken = std::any_of(breaks.begin(), breaks.end(), [center](const Rect &rect) {
            return rect.contains(center);
        });
        if (part.string().trimmed().isEmpty() || isBroken || !area.contains(center))
            continue;
        if (!result->text.isEmpty())
            result->text.append(u"\n"_s);
        result->mappings.push_back({{result->text.length(), line.range.length}, line.range});
        result->text.append(part);
    }
    return result;
}

std::vector<Rect> PageFilter::regions(int page) const
{
    // A region can begin on the page before, or with an entry whose place stayed behind there.
    std::vector<Rect> rects;
    for (int index = page - 1; index <= page; ++index) {
        for (const auto &[entry, info] : m_print.layoutBreaks(index)) {
            const auto it = info.pageRects.find(page);
            if (it != info.pageRects.end())
                rects.push_back(it->second);
        }
    }
    return rects;
}

StyledText PageFilter::linkedText(const HostPDFPage &page) const
{
    StyledText text = page.attributedString().value_or(StyledText());
    const auto &dictionaries = m_specification.pageDictionaries();
    const auto index = static_cast<std::size_t>(page.index());
    if (index >= dictionaries.size())
        return text;
    for (const LinkRecord &record : m_specification.readLinks(*dictionaries[index]))
        link(page, record, text);
    return text;
}

void PageFilter::link(const HostPDFPage &page, const LinkRecord &record, StyledText &text) const
{
    const HostPDFSelection words = page.selection(record.bounds.insetBy(-linkMargin, -linkMargin));
    if (words.isEmpty()) {
        standardError(u"The link doesn't have a text range"_s);
        return;
    }
    const QString target = url(record);
    for (qsizetype i = 0; i < words.numberOfTextRanges(page); ++i)
        setLink(text, words.range(i, page), target);
}

QString PageFilter::url(const LinkRecord &record) const
{
    QString plain = SpecURL::shortForm(record.label);
    if (m_specification.readingPolicy() == PDFReadingPolicy::Strict ||
        m_specification.entries().contains(record.label))
        return plain;
    // A drafted map numbers its entries and doesn't know the producer's names.
    const auto &places = m_specification.linkDestinationMapping();
    const auto place = places.constFind(record.label);
    const auto entry =
        place == places.constEnd() ? nullptr : EntryNavigator(m_specification).meantBy(*place);
    return entry ? SpecURL::shortForm(entry->label()) : plain;
}

} // namespace Tavrin
