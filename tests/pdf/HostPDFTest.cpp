// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/pdf/HostPDFDocument.h>
#include <support/PDFBuilder.h>

namespace
{

std::shared_ptr<HostPDFDocument> opened(const PDFBuilder &pdf)
{
    return HostPDFDocument::open(pdf.build());
}

/// The cell of a text's first character.
Rect cellOf(const HostPDFPage &page, const QString &text)
{
    return page.characterBounds(page.string()->indexOf(text));
}

} // namespace

TEST(PDFPages, KeepTheirBoxesAndTurns)
{
    PDFBuilder pdf;
    pdf.inherited("MediaBox", "[0 0 300 400]");
    pdf.inherited("Rotate", "90");
    pdf.addPageWithoutBox();
    pdf.addPageWithBox(Rect{{-50, -20}, {300, 200}})
        .cropBox(Rect{{-40, 0}, {500, 100}})
        .rotate(-90);
    const auto document = opened(pdf);
    const auto first = document->page(0);
    EXPECT_EQ(first->bounds(PDFBox::Media), (Rect{{0, 0}, {300, 400}}));
    EXPECT_EQ(first->bounds(PDFBox::Crop), (Rect{{0, 0}, {300, 400}}));
    EXPECT_EQ(first->rotation(), 90);
    EXPECT_EQ(first->geometry().uprightSize(), (Size{400, 300}));
    const auto second = document->page(1);
    EXPECT_EQ(second->bounds(PDFBox::Crop), (Rect{{-40, 0}, {290, 100}})) << "cut to the media box";
    EXPECT_EQ(second->rotation(), 270);
    EXPECT_EQ(document->page(2), nullptr);
    EXPECT_EQ(document->page(-1), nullptr);
    EXPECT_EQ(document->indexForPage(*second), 1);
}

TEST(PDFPages, LocateTextInTheFilesOwnSpaceHoweverTheyAreTurned)
{
    for (const int rotation : {0, 90, 180, 270}) {
        PDFBuilder pdf;
        pdf.addPageWithBox(Rect{{100, 200}, {400, 400}})
            .cropBox(Rect{{120, 220}, {300, 300}})
            .rotate(rotation)
            .text(200, 300, u"Here"_s);
        const auto document = opened(pdf);
        const auto page = document->page(0);
        const Rect cell = cellOf(*page, u"H"_s);
        EXPECT_THAT(cell.minX(), DoubleNear(200, 0.1)) << rotation;
        EXPECT_LT(cell.minY(), 300) << rotation;
        EXPECT_GT(cell.maxY(), 306) << rotation;
        EXPECT_LT(cell.maxY(), 312) << rotation;
        EXPECT_EQ(page->characterIndex(cell.center()), 0) << rotation;
        const Point corner{page->geometry().cropBox.minX(), page->geometry().cropBox.maxY()};
        EXPECT_EQ(page->geometry().toPage(page->geometry().toUpright(corner)), corner) << rotation;
    }
}

TEST(PDFPages, TellFontSizeAndColourOfWhatIsPrinted)
{
    PDFBuilder pdf;
    pdf.addPage()
        .text(72, 700, u"plain"_s, {.font = Font::Times, .size = 11})
        .text(72, 660, u"heading"_s,
              {.font = Font::HelveticaBold, .size = 18, .color = qRgb(200, 0, 0)})
        .text(72, 620, u"slanted"_s, {.font = Font::TimesBoldItalic, .size = 9});
    const auto document = opened(pdf);
    const StyledText text = *document->attributedTextForPage(0);
    EXPECT_EQ(text.string(), *document->textForPage(0));
    const auto at = [&](const QString &word) {
        return text.attributesAt(text.string().indexOf(word));
    };
    EXPECT_THAT(at(u"plain"_s).font->pointSize, DoubleNear(11, 0.01));
    EXPECT_FALSE(at(u"plain"_s).font->isStyled());
    EXPECT_TRUE(at(u"plain"_s).font->family.contains(u"Times"_s));
    EXPECT_TRUE(at(u"heading"_s).font->isBold());
    EXPECT_THAT(at(u"heading"_s).font->pointSize, DoubleNear(18, 0.01));
    EXPECT_THAT(qRed(*at(u"heading"_s).foregroundColor),
                testing::AllOf(testing::Gt(190), testing::Lt(210)));
    EXPECT_LT(qBlue(*at(u"heading"_s).foregroundColor), 10);
    EXPECT_TRUE(at(u"slanted"_s).font->isBold());
    EXPECT_TRUE(at(u"slanted"_s).font->isItalic());
}

TEST(PDFPages, NameTheirNumbersAsPrinted)
{
    PDFBuilder pdf;
    for (int page = 0; page < 4; ++page)
        pdf.addPage();
    pdf.pageLabels(0, "<< /S /r >>");
    pdf.pageLabels(2, "<< /S /D /St 5 /P (A-) >>");
    const auto document = opened(pdf);
    QStringList labels;
    for (int page = 0; page < 4; ++page)
        labels.append(document->page(page)->label());
    EXPECT_EQ(labels, (QStringList{u"i"_s, u"ii"_s, u"A-5"_s, u"A-6"_s}));
}

TEST(PDFPages, ListLinksAndNotes)
{
    PDFBuilder pdf;
    pdf.addPage()
        .link(Rect{{10, 10}, {50, 20}}, Dest::xyz(1, 30, 500))
        .uriLink(Rect{{10, 40}, {50, 20}}, "https://example.org/a")
        .note(Rect{{10, 70}, {20, 20}}, u"check"_s);
    pdf.addPage();
    const auto document = opened(pdf);
    const auto annotations = document->page(0)->annotations();
    ASSERT_EQ(annotations.size(), 3U);
    EXPECT_EQ(annotations[0].type, u"Link");
    EXPECT_EQ(annotations[0].bounds, (Rect{{10, 10}, {50, 20}}));
    ASSERT_TRUE(annotations[0].destination);
    EXPECT_EQ(annotations[0].destination->page(), document->page(1));
    EXPECT_EQ(annotations[0].destination->point(), (Point{30, 500}));
    EXPECT_EQ(annotations[1].url, QUrl(u"https://example.org/a"_s));
    EXPECT_FALSE(annotations[1].destination);
    EXPECT_EQ(annotations[2].contents, u"check");
    EXPECT_TRUE(document->page(1)->annotations().empty());
}

TEST(PDFPages, OutliveTheirDocumentWithoutValues)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"text"_s);
    auto document = opened(pdf);
    const auto page = document->page(0);
    document.reset();
    EXPECT_EQ(page->document(), nullptr);
    EXPECT_EQ(page->string(), std::nullopt);
    EXPECT_TRUE(page->annotations().empty());
    EXPECT_TRUE(page->draw(Rect{{0, 0}, {10, 10}}).isNull());
}

TEST(PDFSelections, TakeWordsLinesAndRectangles)
{
    PDFBuilder pdf;
    pdf.addPage()
        .text(72, 700, u"first line here"_s)
        .text(72, 680, u"second line"_s)
        .text(320, 700, u"aside"_s);
    pdf.addPage().text(72, 700, u"overleaf"_s);
    const auto document = opened(pdf);
    const auto page = document->page(0);
    const Point inLine = cellOf(*page, u"line here"_s).center();
    EXPECT_EQ(page->selectionForWord(inLine)->string(), u"line");
    EXPECT_EQ(page->selectionForLine(inLine)->string(), u"first line here");
    EXPECT_FALSE(page->selectionForWord({300, 100}));
    EXPECT_FALSE(page->selectionForLine({300, 100}));

    auto selection = page->selection(Rect{{60, 670}, {200, 50}});
    EXPECT_EQ(selection.string(), u"first line here\nsecond line");
    EXPECT_EQ(selection.pages(), std::vector{page});
    const Rect bounds = selection.bounds(*page);
    EXPECT_THAT(bounds.minX(), DoubleNear(72, 0.5));
    EXPECT_GT(bounds.size.height, 20);

    selection.addSelection(document->page(1)->selection(TextRange{0, 4}));
    EXPECT_EQ(selection.string(), u"first line here\nsecond line\nover");
    EXPECT_EQ(selection.pages().size(), 2U);
    EXPECT_EQ(selection.numberOfTextRanges(*document->page(1)), 1);
    selection.addSelection(document->page(1)->selection(TextRange{2, 100}));
    EXPECT_EQ(selection.range(0, *document->page(1)), (TextRange{0, 8})) << "united, and cut";
    EXPECT_FALSE(selection.range(1, *document->page(1)).isFound());
    EXPECT_TRUE(page->selection(Rect{{0, 0}, {5, 5}}).isEmpty());
}

TEST(PDFDestinations, CompareInReadingOrder)
{
    PDFBuilder pdf;
    pdf.addPage();
    pdf.addPage().rotate(180);
    const auto document = opened(pdf);
    const auto at = [&](int page, double x, double y) {
        return HostPDFDestination(document->page(page), {x, y});
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(at(0, 0, 100).compare(at(1, 0, 700)), std::weak_ordering::less);
    EXPECT_EQ(at(0, 0, 700).compare(at(0, 0, 100)), std::weak_ordering::less);
    EXPECT_EQ(at(0, 10, 100).compare(at(0, 20, 100)), std::weak_ordering::less);
    EXPECT_EQ(at(0, 10, 100).compare(at(0, 10, 100)), std::weak_ordering::equivalent);
    EXPECT_EQ(at(1, 0, 100).compare(at(1, 0, 700)), std::weak_ordering::less) << "upside down";
    EXPECT_EQ(at(0, nan, 100).compare(at(0, 0, 100)), std::weak_ordering::equivalent);
    EXPECT_EQ(at(1, 0, 0).compare(HostPDFDestination(nullptr, {})), std::weak_ordering::less);
}

TEST(PDFDocuments, TellWhatTheirInformationSays)
{
    PDFBuilder pdf;
    pdf.addPage();
    pdf.info("Title", u"Größe & Maß"_s);
    pdf.info("Author", u"A. Writer"_s);
    const auto document = opened(pdf);
    EXPECT_EQ(document->documentAttributes().value(u"Title"_s), u"Größe & Maß");
    EXPECT_EQ(document->documentAttributes().value(u"Author"_s), u"A. Writer");
    EXPECT_FALSE(document->outlineRoot());
    EXPECT_EQ(document->textForPage(7), std::nullopt);
}
