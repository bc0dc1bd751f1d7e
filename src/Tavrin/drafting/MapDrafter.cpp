// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/MapDrafter.h>

#include <Tavrin/drafting/BodyColumnMeasurer.h>
#include <Tavrin/drafting/CaptionScanner.h>
#include <Tavrin/drafting/ContentsReader.h>
#include <Tavrin/drafting/DraftLabeler.h>
#include <Tavrin/drafting/DraftRemarks.h>
#include <Tavrin/drafting/DraftedSpecification.h>
#include <Tavrin/drafting/FrontMatterReader.h>
#include <Tavrin/drafting/HeadingFinder.h>
#include <Tavrin/drafting/HeadingScanner.h>
#include <Tavrin/drafting/NumberResolver.h>
#include <Tavrin/drafting/OutlineReader.h>
#include <Tavrin/drafting/StyledHeadingScanner.h>
#include <Tavrin/drafting/TextKey.h>
#include <Tavrin/drafting/WholePlace.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

/// How many pages a destination can stay behind its heading.
constexpr int pagesLeftBehind = 20;

/// One run of drafting: items are gathered, looked up, completed, numbered and turned into entries.
class Drafting
{
public:
    explicit Drafting(const std::shared_ptr<CachingPDFDocument> &document)
        : m_document(document),
          m_pages(document),
          m_column(measureColumn()),
          m_contents(m_pages, m_column),
          m_finder(m_pages, m_column)
    {
    }

    MapDraft run(const QString &fallbackTitle)
    {
        gather();
        lookUp();
        HeadingScanner scanner(m_pages, m_column, m_finder);
        m_items = scanner.merge(m_items, m_contents.pages());
        if (m_items.empty())
            takeStyledHeadings();
        number();
        MapDraft draft = describe(fallbackTitle);
        for (const DraftItem &item : m_items)
            draft.entries.push_back(entryFor(item));
        addCaptions(draft);
        draft.remarks = m_remarks.sentences();
        return draft;
    }

private:
    BodyColumn measureColumn()
    {
        BodyColumnMeasurer measurer(m_pages);
        BodyColumn column = measurer.measure();
        for (const QString &remark : measurer.remarks())
            m_remarks.add(remark);
        return column;
    }

    void gather()
    {
        m_items = OutlineReader::read(*m_document);
        if (!m_items.empty())
            return;
        m_items = m_contents.read(*m_document);
        m_remarks.add(m_items.empty()
                          ? u"no outline and no table of contents; headings were found on the "
                            "pages by number and font"_s
                          : u"no outline; headings were taken from the table of contents and found "
                            "on the pages by number and font"_s);
    }

    void lookUp()
    {
        NumberResolver(m_items).dropFalseNumbers();
        for (DraftItem &item : m_items)
            m_finder.find(item);
        int lastPage = m_pages.pageCount() - 1;
        for (auto item = m_items.rbegin(); item != m_items.rend(); ++item) {
            if (!item->isFound && item->page >= 0)
                m_finder.findLater(*item, std::min(lastPage, item->page + pagesLeftBehind));
            if (item->isFound)
                lastPage = item->page;
        }
        for (const DraftItem &item : m_items) {
            if (!item.isFound)
                m_remarks.add(item.page < 0 ? u"without a place in the document"_s
                                            : u"heading not found on its page"_s,
                              item.label);
        }
    }

    void takeStyledHeadings()
    {
        m_items = StyledHeadingScanner(m_pages, m_column).scan(m_contents.pages());
        if (m_items.empty())
            m_remarks.add(u"no headings found"_s);
    }

    void addCaptions(MapDraft &draft)
    {
        CaptionScanner scanner(m_pages, m_column);
        for (const DraftCaption &caption : scanner.scan(m_contents.pages())) {
            DraftEntry entry;
            entry.type = caption.number.type;
            entry.label = m_labeler->uniqueLabel(caption.number.label);
            entry.index = m_labeler->indexOf(caption.number.number);
            entry.title = caption.title;
            entry.page = caption.page;
            entry.place = wholePlace(caption.corner, m_pages.geometry(caption.page));
            draft.entries.push_back(entry);
        }
    }

    void number()
    {
        NumberResolver resolver(m_items);
        resolver.complete();
        if (const int counted = resolver.countedNumbers())
            m_remarks.add(u"%1 numbers are counted, as the document prints none"_s.arg(counted));
        m_labeler.emplace(m_items);
        m_labeler->label();
        if (const int duplicates = m_labeler->duplicates())
            m_remarks.add(u"%1 labels occur twice and got a suffix"_s.arg(duplicates));
    }

    MapDraft describe(const QString &fallbackTitle) const
    {
        MapDraft draft;
        draft.title = FrontMatterReader::title(*m_document, m_pages);
        if (draft.title.isEmpty())
            draft.title = fallbackTitle.isEmpty() ? u"Untitled"_s : fallbackTitle;
        draft.shortTitle = draft.title;
        draft.identifier = TextKey::slug(draft.title);
        if (draft.identifier.isEmpty())
            draft.identifier = u"document"_s;
        draft.revision = FrontMatterReader::revision(draft.title, m_pages);
        draft.language = FrontMatterReader::language(*m_document);
        draft.pageBounds = m_column.pageBounds;
        return draft;
    }

    DraftEntry entryFor(const DraftItem &item) const
    {
        DraftEntry entry;
        entry.type =
            item.depth == 0 ? SpecificationEntryType::Chapter : SpecificationEntryType::Section;
        entry.index = item.index;
        entry.label = item.printedLabel;
        entry.title = item.title;
        entry.page = item.page;
        if (item.page < 0)
            return entry;
        const PageGeometry geometry = m_pages.geometry(item.page);
        const Point top{0, m_pages.size(item.page).height};
        entry.place = wholePlace(item.isFound ? item.corner : item.hint.value_or(top), geometry);
        return entry;
    }

    std::shared_ptr<CachingPDFDocument> m_document;
    DraftRemarks m_remarks;
    PrintedPages m_pages;
    BodyColumn m_column;
    ContentsReader m_contents;
    HeadingFinder m_finder;
    std::vector<DraftItem> m_items;
    std::optional<DraftLabeler> m_labeler;
};

} // namespace

MapDraft MapDrafter::draft(const std::shared_ptr<CachingPDFDocument> &document,
                           const QString &fallbackTitle)
{
    return Drafting(document).run(fallbackTitle);
}

std::shared_ptr<PDFSpecification>
MapDrafter::specification(const MapDraft &draft,
                          const std::shared_ptr<CachingPDFDocument> &document)
{
    return DraftedSpecification::fromDraft(draft, document);
}

} // namespace Tavrin
