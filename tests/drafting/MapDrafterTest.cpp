// SPDX-License-Identifier: Apache-2.0
#include <support/HostilePDF.h>
#include <support/PDFBuilder.h>
#include <support/Test.h>

#include <QElapsedTimer>

#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace
{

const TextStyle chapterStyle{Font::HelveticaBold, 18};
const TextStyle sectionStyle{Font::HelveticaBold, 13};

void addText(PDFPageBuilder &page, double from, double to)
{
    for (int row = 0; from - 12 * row > to; ++row) {
        const double y = from - 12 * row;
        page.text(72, y, u"Text that goes on and on, at height %1, in a plain style."_s.arg(y));
    }
}

/// A page with a running head and a page number.
PDFPageBuilder &addPage(PDFBuilder &pdf, int number)
{
    PDFPageBuilder &page = pdf.addPage();
    page.text(72, 740, u"A Standard"_s).text(300, 40, QString::number(number));
    return page;
}

/// Chapters on pages of their own, with two sections each.
void addChapters(PDFBuilder &pdf, int chapters, int firstPage)
{
    for (int i = 1; i <= chapters; ++i) {
        PDFPageBuilder &page = addPage(pdf, firstPage + i);
        page.text(72, 650, u"Chapter %1"_s.arg(i), chapterStyle);
        page.text(72, 620, u"Title Of Chapter %1"_s.arg(QChar(u'A' + i)), chapterStyle);
        addText(page, 590, 500);
        page.text(72, 480, u"%1.1  First things"_s.arg(i), sectionStyle);
        addText(page, 460, 400);
        page.text(72, 380, u"%1.2  Second “things”"_s.arg(i), sectionStyle);
        addText(page, 360, 80);
    }
}

std::vector<OutlineItem> chapterOutline(int chapters)
{
    std::vector<OutlineItem> items;
    items.reserve(static_cast<std::size_t>(chapters));
    for (int i = 0; i < chapters; ++i) {
        items.push_back({u"Title of chapter %1"_s.arg(QChar(u'B' + i)),
                         Dest::xyz(i, 72, 700),
                         {{u"First things"_s, Dest::xyz(i, 72, 495)},
                          {u"Second ``things''"_s, Dest::xyz(i, 72, 395)}},
                         OutlineItem::Target::GoToAction});
    }
    return items;
}

MapDraft drafted(const PDFBuilder &pdf)
{
    return MapDrafter::draft(CachingPDFDocument::open(pdf.build()), u"file"_s);
}

QStringList titles(const MapDraft &draft)
{
    QStringList result;
    for (const DraftEntry &entry : draft.entries)
        result.append(entry.label + u' ' + entry.title);
    return result;
}

QUrl dtd()
{
    return QUrl::fromLocalFile(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd"));
}

const DraftEntry &entry(const MapDraft &draft, const QString &label)
{
    const auto isIt = [&](const DraftEntry &entry) { return entry.label == label; };
    return *std::find_if(draft.entries.begin(), draft.entries.end(), isIt);
}

} // namespace

TEST(MapDrafter, TakesNumbersTitlesAndPlacesFromThePagesOfAnOutline)
{
    PDFBuilder pdf;
    addChapters(pdf, 3, 0);
    pdf.outline(chapterOutline(3));
    const MapDraft draft = drafted(pdf);
    EXPECT_THAT(titles(draft).mid(0, 4),
                ElementsAre(u"1 Title Of Chapter B"_s, u"1.1 First things"_s,
                            u"1.2 Second “things”"_s, u"2 Title Of Chapter C"_s));
    EXPECT_THAT(draft.remarks, IsEmpty());
    const DraftEntry &chapter = entry(draft, u"2"_s);
    EXPECT_EQ(chapter.type, SpecificationEntryType::Chapter);
    EXPECT_EQ(chapter.page, 1);
    // The ascender of its number, and no more than two points above.
    EXPECT_THAT(chapter.place.y, testing::AllOf(testing::Gt(662), testing::Lt(672)));
    EXPECT_EQ(chapter.place.y, std::floor(chapter.place.y));
    EXPECT_EQ(entry(draft, u"2.1"_s).type, SpecificationEntryType::Section);
    ASSERT_TRUE(draft.pageBounds);
    EXPECT_LT(draft.pageBounds->maxY(), 740);
    EXPECT_GT(draft.pageBounds->minY(), 45);
}

TEST(MapDrafter, AddsNumberedHeadingsThatTheOutlineLeavesOut)
{
    PDFBuilder pdf;
    addChapters(pdf, 3, 0);
    auto outline = chapterOutline(3);
    for (OutlineItem &chapter : outline)
        chapter.children.clear();
    pdf.outline(outline);
    const MapDraft draft = drafted(pdf);
    EXPECT_EQ(draft.entries.size(), 9U);
    EXPECT_EQ(entry(draft, u"3.2"_s).page, 2);
}

TEST(MapDrafter, FollowsTheTableOfContentsOfADocumentWithoutOutline)
{
    PDFBuilder pdf;
    PDFPageBuilder &contents = pdf.addPage();
    contents.text(72, 700, u"Contents"_s, chapterStyle);
    for (int i = 1; i <= 3; ++i) {
        const double y = 720 - 48 * i;
        contents.text(72, y,
                      u"%1  Title Of Chapter %2 . . . . . . . %1"_s.arg(i).arg(QChar(u'A' + i)));
        contents.text(90, y - 14, u"%1.1  First things . . . . . . . . . %1"_s.arg(i));
        contents.text(90, y - 28, u"%1.2  Second “things” . . . . . . . %1"_s.arg(i));
    }
    addChapters(pdf, 3, 0);
    const MapDraft draft = drafted(pdf);
    EXPECT_EQ(draft.entries.size(), 9U);
    EXPECT_EQ(entry(draft, u"3.1"_s).page, 3);
    EXPECT_EQ(entry(draft, u"3.1"_s).title, u"First things"_s);
    EXPECT_THAT(draft.remarks.join(u' '), testing::Truly([](const QString &remarks) {
                    return remarks.contains(u"table of contents");
                }));
}

TEST(MapDrafter, FindsHeadingsOfADocumentThatListsNone)
{
    PDFBuilder pdf;
    addChapters(pdf, 4, 0);
    // A numbered list, a table row and a sentence are no headings.
    pdf.addPage()
        .text(72, 700, u"1. Open the cover and look."_s)
        .text(72, 680, u"7.5 V is the supply."_s, {Font::HelveticaBold, 10})
        .text(72, 660, u"Chapter 2 describes it."_s);
    const MapDraft draft = drafted(pdf);
    EXPECT_EQ(draft.entries.size(), 12U);
    EXPECT_EQ(entry(draft, u"4"_s).title, u"Title Of Chapter E"_s);
}

TEST(MapDrafter, CountsHeadingsThatOnlyTheirPrintTells)
{
    PDFBuilder pdf;
    for (const QString &title : {u"Scope"_s, u"Rules"_s}) {
        PDFPageBuilder &page = pdf.addPage();
        page.text(72, 700, title, chapterStyle).text(72, 600, u"Some things"_s, sectionStyle);
        addText(page, 580, 100);
    }
    EXPECT_THAT(titles(drafted(pdf)), ElementsAre(u"1 Scope"_s, u"1.1 Some things"_s, u"2 Rules"_s,
                                                  u"2.1 Some things"_s));
}

TEST(MapDrafter, PutsPlacesAboveHeadingsOfTurnedPages)
{
    for (const int rotation : {0, 90, 180, 270}) {
        PDFBuilder pdf;
        PDFPageBuilder &page = pdf.addPage().rotate(rotation).cropBox({{20, 30}, {500, 700}});
        const TextStyle turned{Font::HelveticaBold, 18, qRgb(0, 0, 0), 0, 0, double(rotation)};
        page.text(250, 350, u"1 Scope"_s, turned);
        pdf.outline({{u"1 Scope"_s, Dest::xyz(0, 250, 350)}});
        const auto document = CachingPDFDocument::open(pdf.build());
        const DraftEntry drafted = MapDrafter::draft(document).entries.at(0);
        const PageGeometry &geometry = document->page(0)->geometry();
        const Point place = geometry.toUpright(drafted.place);
        const Point origin = geometry.toUpright(Point{250, 350});
        EXPECT_THAT(place.y - origin.y, testing::AllOf(testing::Gt(13), testing::Lt(24)))
            << rotation;
        EXPECT_THAT(place.x - origin.x, testing::AllOf(testing::Gt(-2), testing::Lt(2)))
            << rotation;
    }
}

TEST(MapDrafter, SaysWhatItCouldNotTell)
{
    PDFBuilder pdf;
    addChapters(pdf, 3, 0);
    auto outline = chapterOutline(3);
    outline.push_back({u"Nowhere"_s});
    outline.push_back({u"Elsewhere"_s, Dest::xyz(1, 72, 300)});
    pdf.outline(outline);
    const MapDraft draft = drafted(pdf);
    EXPECT_THAT(draft.remarks, ElementsAre(u"without a place in the document (1): \"Nowhere\""_s,
                                           u"heading not found on its page (1): \"Elsewhere\""_s));
    EXPECT_EQ(entry(draft, u"nowhere"_s).page, -1);
    EXPECT_EQ(entry(draft, u"elsewhere"_s).page, 1);
    EXPECT_EQ(entry(draft, u"elsewhere"_s).place, (Point{72, 301}));
}

TEST(MapDrafter, NamesADocumentThatStatesNoTitle)
{
    PDFBuilder pdf;
    pdf.addPage()
        .text(100, 600, u"A Standard For"_s, {Font::TimesBold, 24})
        .text(100, 570, u"All Things"_s, {Font::TimesBold, 24})
        .text(100, 500, u"Version 4.2, a draft of X Version 11"_s)
        .column(72, 400, 12, {u"Text of the page."_s, u"More of it, and longer."_s});
    pdf.info("Title", u"standard.dvi"_s);
    pdf.catalogEntry("Lang", "(en-GB)");
    const MapDraft draft = drafted(pdf);
    EXPECT_EQ(draft.title, u"A Standard For All Things"_s);
    EXPECT_EQ(draft.identifier, u"a-standard-for-all-things"_s);
    EXPECT_EQ(draft.revision, u"4.2"_s);
    EXPECT_EQ(draft.language, u"en-GB"_s);

    PDFBuilder plain;
    addText(plain.addPage(), 700, 100);
    EXPECT_EQ(drafted(plain).title, u"file"_s);
    EXPECT_EQ(drafted(plain).revision, u"1"_s);
}

TEST(MapDrafter, WritesAMapThatBindsToItsDocument)
{
    PDFBuilder pdf;
    addChapters(pdf, 3, 0);
    pdf.outline(chapterOutline(3));
    const auto document = CachingPDFDocument::open(pdf.build());
    const MapDraft draft = MapDrafter::draft(document, u"file"_s);
    const auto specification = MapDrafter::specification(draft, document);
    EXPECT_EQ(specification->entryCount(), 9);
    const auto section = specification->destination(u"2.1"_s);
    ASSERT_TRUE(section && section->page());
    EXPECT_EQ(section->page()->index(), 1);
    const QString map = specification->writeSpecToXMLString(dtd());
    EXPECT_TRUE(map.contains(u"<name>%1</name>"_s.arg(draft.title)));
    EXPECT_TRUE(map.contains(u"<internal>destination:1,72,"_s));
    EXPECT_TRUE(map.contains(u"verifier=\"A,Standard,Chapter,1,"_s));
    EXPECT_EQ(map, MapDrafter::specification(MapDrafter::draft(document, u"file"_s), document)
                       ->writeSpecToXMLString(dtd()));
}

TEST(MapDrafter, StandsHostileOutlines)
{
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray &pdf : {HostilePDF::deepOutline(10000), HostilePDF::outlineLoop(),
                                  HostilePDF::outlineChildLoop()}) {
        const MapDraft draft = MapDrafter::draft(CachingPDFDocument::open(pdf));
        EXPECT_LE(draft.entries.size(), 10001U);
        for (const DraftEntry &entry : draft.entries)
            EXPECT_LT(entry.index.size(), 100U);
    }
    EXPECT_LT(timer.elapsed(), 20000);
}

TEST(MapDrafter, StandsManyItemsAndLongTitlesOnOnePage)
{
    PDFBuilder pdf;
    addText(pdf.addPage(), 700, 100);
    std::vector<OutlineItem> items(50000, {u"Scope"_s, Dest::xyz(0, 72, 400)});
    items.push_back({QString(1 << 20, u'x'), Dest::xyz(0, 72, 400)});
    pdf.outline(items);
    QElapsedTimer timer;
    timer.start();
    const MapDraft draft = drafted(pdf);
    EXPECT_LT(timer.elapsed(), 20000);
    EXPECT_EQ(draft.entries.size(), 50001U);
    EXPECT_LE(draft.entries.back().title.size(), 1000);
    EXPECT_LT(draft.remarks.size(), 10);
}

TEST(MapDrafter, GivesAnEmptyDraftOfPagesWithoutText)
{
    PDFBuilder pdf;
    pdf.addPage();
    const MapDraft draft = drafted(pdf);
    EXPECT_THAT(draft.entries, IsEmpty());
    EXPECT_EQ(draft.title, u"file"_s);
    EXPECT_FALSE(draft.pageBounds);
    EXPECT_FALSE(draft.remarks.isEmpty());
}
