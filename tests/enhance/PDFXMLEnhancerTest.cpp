// SPDX-License-Identifier: Apache-2.0
#include "EnhancerFixture.h"

#include <Tavrin/platform/HostXMLDocument.h>

namespace
{

class PDFXMLEnhancerTest : public EnhancerFixture
{
protected:
    std::shared_ptr<PDFXMLEnhancer> enhanced()
    {
        addPages();
        addEntries();
        addDestinations();
        auto enhancer = make();
        load(*enhancer);
        return enhancer;
    }
};

} // namespace

TEST_F(PDFXMLEnhancerTest, linksEntriesAndTellsItsProgress)
{
    const auto enhancer = enhanced();
    EXPECT_EQ(entry(*enhancer, u"1"_s).internalLink(), u"ondry_ref_CLK1"_s);
    EXPECT_EQ(entry(*enhancer, u"2.2"_s).internalLink(), u"ondry_ref_SLKb2"_s);
    EXPECT_EQ(entry(*enhancer, u"F"_s).internalLink(), u"ondry_ref_FLK"_s);
    ASSERT_TRUE(entry(*enhancer, u"2.2"_s).destination());
    EXPECT_EQ(entry(*enhancer, u"2.2"_s).destination()->page()->index(), 2);
    EXPECT_EQ(printed, "\x1b[1;39mExtracting keywords...\x1b[0;39m\n"
                       "\x1b[1;39mScanning chapter 1 (1)...\x1b[0;39m\n"
                       "\x1b[1;39mScanning chapter 2 (2)...\x1b[0;39m\n"
                       "\x1b[1;39mComputing related items...\x1b[0;39m\n");
}

TEST_F(PDFXMLEnhancerTest, findsWhatASectionIsAbout)
{
    const auto enhancer = enhanced();
    EXPECT_THAT(entry(*enhancer, u"1.1"_s).keywords(), Contains(u"request"_s));
    EXPECT_THAT(entry(*enhancer, u"2.2"_s).keywords(), Contains(u"burst"_s));
    EXPECT_THAT(entry(*enhancer, u"2.2"_s).keywords(), Not(Contains(u"request"_s)));
    // A chapter has the terms of its sections, a figure those of its caption.
    EXPECT_THAT(entry(*enhancer, u"1"_s).keywords(), Not(IsEmpty()));
    EXPECT_THAT(entry(*enhancer, u"F"_s).keywords(), Contains(u"pulse"_s));
    for (const auto &any : enhancer->entries())
        EXPECT_LE(any->keywords().size(), 10);
}

TEST_F(PDFXMLEnhancerTest, relatesAFigureToItsSection)
{
    const auto enhancer = enhanced();
    EXPECT_THAT(entry(*enhancer, u"F"_s).relatedEntries(), Contains(u"spec://2.2/bus/*"_s));
}

TEST_F(PDFXMLEnhancerTest, countsTermsOfTextsAndOfTitlesAround)
{
    const auto enhancer = enhanced();
    const auto &sorted = enhancer->sortedEntries();
    enhancer->extractEntryKeywords();
    const auto counts = enhancer->computeWordFrequencies(sorted[1], 1);
    ASSERT_TRUE(counts);
    ASSERT_EQ(sorted[1]->label(), u"1.1"_s);
    // Twice in the text; in the chapter's title and in its own, which counts fully besides.
    EXPECT_DOUBLE_EQ(counts->value(u"arbiter"_s), 2);
    EXPECT_DOUBLE_EQ(counts->value(u"arbitration"_s), 1 + 2 * 0.75);
    EXPECT_DOUBLE_EQ(enhancer->totalFrequencies().value(u"arbitration"_s), 2);
    // A chapter inherits, and its own text does not count.
    const auto chapter = enhancer->computeWordFrequencies(sorted[0], 0);
    EXPECT_DOUBLE_EQ(chapter->value(u"request"_s), counts->value(u"request"_s));
    EXPECT_FALSE(enhancer->computeWordFrequencies(enhancer->sortedEntries().back(), 6) &&
                 enhancer->sortedEntries().back()->type() == SpecificationEntryType::Section);
}

TEST_F(PDFXMLEnhancerTest, writesTheSameMapEachTime)
{
    const QUrl dtd = files.write(u"own.dtd"_s, MapBuilder::grammar());
    const auto first = enhanced();
    const QString written = first->writeSpecToXMLString(dtd);
    const auto second = make();
    load(*second);
    EXPECT_EQ(second->writeSpecToXMLString(dtd), written);
    EXPECT_THAT(written.toStdString(), HasSubstr("<name>Bus Manual</name>"));
    first->extractEntryKeywords();
    first->computeRelatedEntries();
    EXPECT_EQ(first->writeSpecToXMLString(dtd), written);
    const auto read =
        Specification::withStructureFile(files.write(u"map.xml"_s, written.toUtf8()), {});
    read->loadStructure();
    EXPECT_EQ(read->entries().value(u"2.2"_s)->keywords(),
              first->entries().value(u"2.2"_s)->keywords());
}

TEST_F(PDFXMLEnhancerTest, wantsAPDFAndALink)
{
    addPages();
    addEntries();
    const QUrl dtd = files.write(u"spec.dtd"_s, MapBuilder::grammar());
    const auto without =
        Specification::make<PDFXMLEnhancer>(map.write(files, u"skeleton.xml"_s), dtd);
    without->loadStructure();
    EXPECT_EQ(without->entryCount(), 7);
    EXPECT_THAT(errors.messages(),
                ElementsAre(u"\x1b[0;31mNo PDF file provided to this XML enhancer.\x1b[0;39m"_s));
    EXPECT_THROW(load(*make()), EnhancerParseError);
}

TEST_F(PDFXMLEnhancerTest, keepsTheLinksOfTheMapWhereThePDFHasNone)
{
    addPages();
    addEntries();
    map.entry({.label = u"X"_s,
               .index = u"3"_s,
               .name = u"Extra"_s,
               .internal = u"destination:1,72,668"_s});
    const auto enhancer = make<PDFXMLEnhancer>(
        [](PDFXMLEnhancer &one) { one.setReadingPolicy(PDFReadingPolicy::Common); });
    load(*enhancer);
    ASSERT_TRUE(enhancer->labelLinkMapping());
    EXPECT_TRUE(enhancer->labelLinkMapping()->isEmpty());
    EXPECT_EQ(entry(*enhancer, u"X"_s).internalLink(), u"destination:1,72,668"_s);
}

TEST_F(PDFXMLEnhancerTest, takesLinksFromEntriesThatWereNotPaired)
{
    addPages();
    addEntries();
    addDestinations();
    map.entry({.label = u"X"_s,
               .index = u"3"_s,
               .name = u"Extra"_s,
               .internal = u"destination:1,72,668"_s});
    const auto enhancer = make();
    load(*enhancer);
    EXPECT_EQ(entry(*enhancer, u"X"_s).internalLink(), std::nullopt);
    EXPECT_THAT(errors.text().toStdString(), HasSubstr("wasn't one-to-one"));
}

TEST_F(PDFXMLEnhancerTest, findsTheNearestLinkOfAKind)
{
    const auto enhancer = enhanced();
    EXPECT_EQ(enhancer->closestInternalLink(600, 1, SpecificationEntryType::Section),
              u"ondry_ref_SLKb1"_s);
    EXPECT_EQ(enhancer->closestInternalLink(618, 1, SpecificationEntryType::Section),
              u"ondry_ref_SLKa1"_s);
    EXPECT_EQ(enhancer->closestInternalLink(0, 2, SpecificationEntryType::Figure),
              u"ondry_ref_FLK"_s);
    EXPECT_EQ(enhancer->closestInternalLink(600, 1, SpecificationEntryType::Table), std::nullopt);
    EXPECT_DEATH(enhancer->closestInternalLink(0, 99, SpecificationEntryType::Section), "page");
}

TEST_F(PDFXMLEnhancerTest, rewritesTheLinkOfAnElement)
{
    const auto enhancer = enhanced();
    const auto document = HostXMLDocument::open(files.write(
        u"entry.xml"_s,
        "<entry label=\"1.1\"><name>N</name><internal>a</internal><internal>b</internal></entry>"));
    const HostXMLNode element = *document.rootElement();
    enhancer->parseXMLEntry(element);
    EXPECT_EQ(element.xmlString(), u"<entry label=\"1.1\"><name>N</name><internal>b</internal>"
                                   "<internal>ondry_ref_SLKa1</internal></entry>"_s);
}

TEST_F(PDFXMLEnhancerTest, recognisesItsFileByNameAlone)
{
    addPages();
    addEntries();
    const auto enhancer = make();
    const AuxiliaryFileRequirement wanted(u"pdf"_s, u"other,words"_s, {});
    EXPECT_TRUE(enhancer->doesAuxiliaryFile(files.write(u"no.pdf"_s, "no PDF"), wanted));
    EXPECT_FALSE(enhancer->doesAuxiliaryFile(files.write(u"manual.PDF"_s, pdf.build()), wanted));
}

TEST_F(PDFXMLEnhancerTest, dropsTheShareOfRelationsThatItIsTold)
{
    const auto enhancer = enhanced();
    const auto count = [&] {
        qsizetype relations = 0;
        for (const auto &any : enhancer->entries())
            relations += any->relatedEntries().size();
        return relations;
    };
    enhancer->setRelatedEntryPruningFraction(0);
    enhancer->computeRelatedEntries();
    const qsizetype all = count();
    EXPECT_GT(all, 4);
    enhancer->setRelatedEntryPruningFraction(0.25);
    enhancer->computeRelatedEntries();
    EXPECT_EQ(count(), all - all / 4);
    enhancer->setMaxRelatedEntryCount(0);
    enhancer->computeRelatedEntries();
    EXPECT_EQ(count(), 0);
    enhancer->setRelatedEntryPruningFraction(1);
    enhancer->setMaxRelatedEntryCount(5);
    enhancer->computeRelatedEntries();
    EXPECT_EQ(count(), 0);
    enhancer->setRelatedEntryPruningFraction(std::numeric_limits<double>::quiet_NaN());
    EXPECT_DEATH(enhancer->computeRelatedEntries(), "number");
}

TEST_F(PDFXMLEnhancerTest, bearsAMapThatHasLittleToDoWithThePDF)
{
    pdf.addPage();
    pdf.addPage().fill({{72, 72}, {400, 600}});
    pdf.namedDestination("ondry_ref_SLK", Dest::xyz(1, 0, 700));
    for (const QString &index : {u""_s, u"1"_s, u"1,1"_s, u"1"_s, u"7,7,7"_s})
        map.entry({.label = u"l"_s + index, .index = index, .name = u"Nowhere"_s});
    map.entry({.label = u"l1"_s, .index = u"1"_s, .name = u"Again"_s});
    map.entry({.label = u"fig"_s, .type = u"figure"_s, .name = u""_s});
    const auto enhancer = make();
    load(*enhancer);
    EXPECT_EQ(enhancer->entryCount(), 5);
    EXPECT_FALSE(enhancer->writeSpecToXMLString({}).isEmpty());
}

using PDFDestinationApproximatorTest = EnhancerFixture;

TEST_F(PDFDestinationApproximatorTest, takesLinksFromOutlineAndCaptions)
{
    addPages();
    addEntries();
    pdf.outline({{u"Preface"_s, Dest::xyz(0, 0, 700)},
                 {u"1 Arbitration"_s,
                  Dest::xyz(1, 72, 720),
                  {{u"1.1 Rules of Arbitration"_s, Dest::xyz(1, 72, 668)},
                   {u"1.2 Something else"_s, Dest::xyz(1, 72, 568)}}},
                 {u"2 Transfers"_s,
                  Dest::xyz(2, 72, 720),
                  {{u"2.1 Rules of Transfers"_s, Dest::xyz(2, 72, 668)}}}});
    const auto enhancer = make<PDFDestinationApproximator>();
    load(*enhancer);
    EXPECT_THAT(printed, HasSubstr("Inferring links from outline and layout-breaking regions..."));
    EXPECT_EQ(entry(*enhancer, u"1.1"_s).internalLink(), u"outline:1.1 Rules of Arbitration"_s);
    EXPECT_EQ(entry(*enhancer, u"2.1"_s).internalLink(), u"outline:2.1 Rules of Transfers"_s);
    // The outline does not have it; its heading is found on the page.
    ASSERT_TRUE(entry(*enhancer, u"1.2"_s).destination());
    EXPECT_EQ(entry(*enhancer, u"1.2"_s).destination()->page()->index(), 1);
    EXPECT_NEAR(entry(*enhancer, u"1.2"_s).destination()->point().y, 550 + 14, 6);
    EXPECT_THAT(errors.messages(),
                AllOf(Contains(u"Entry mismatch: expected outline item 1.2 Something else to be "
                               "entry Limits of Arbitration"_s),
                      Contains(u"Not enough outline items"_s)));
    const auto &figure = entry(*enhancer, u"F"_s);
    ASSERT_TRUE(figure.destination());
    EXPECT_EQ(figure.destination()->page()->index(), 2);
    // Forty points above the top of the caption, whose baseline is at 340.
    EXPECT_NEAR(figure.destination()->point().y, 340 + 8 + 40, 4);
}

TEST_F(PDFDestinationApproximatorTest, tellsWhatItDoesNotFind)
{
    addPages();
    addEntries();
    map.entry({.label = u"G"_s, .type = u"figure"_s, .index = u"2,2"_s, .name = u"No such"_s});
    pdf.outline({{u"1 Arbitration"_s, Dest::xyz(1, 72, 720)},
                 {u"1.1 Rules of Arbitration"_s, Dest::xyz(1, 72, 668)},
                 {u"1.2 Limits of Arbitration"_s, Dest::xyz(1, 72, 568)},
                 {u"2 Transfers"_s, Dest::xyz(2, 72, 720)},
                 {u"2.1 Rules of Transfers"_s, Dest::xyz(2, 72, 668)},
                 {u"2.2 Limits of Transfers"_s, Dest::xyz(2, 72, 568)}});
    const auto enhancer = make<PDFDestinationApproximator>();
    load(*enhancer);
    EXPECT_THAT(errors.messages(),
                Contains(u"1 outstanding entries of type Figure in chapter 2"_s));
    EXPECT_EQ(entry(*enhancer, u"G"_s).internalLink(), std::nullopt);
    EXPECT_TRUE(entry(*enhancer, u"F"_s).internalLink());
}
