// SPDX-License-Identifier: Apache-2.0
#include "PDFFixture.h"

namespace
{

class Destinations : public PDFFixture
{
protected:
    Destinations()
    {
        pdf.addPage();
        pdf.addPageWithBox({{10, 20}, {400, 600}});
    }

    std::optional<Place> named(const std::shared_ptr<PDFSpecification> &specification,
                               const QString &name)
    {
        return place(specification->destinationForLink(name));
    }
};

} // namespace

TEST_F(Destinations, StrictReadsXYZDictionariesOfTheNameTreeAlone)
{
    pdf.namesPerLeaf(2);
    pdf.namedDestination("a", Dest::xyz(1, 100, 200));
    pdf.namedDestination("b", Dest::xyz(1, {}, 700, 0));
    pdf.namedDestination("bare", Dest::xyz(1, 1, 2), NameForm::BareArray);
    pdf.namedDestination("fit", Dest::fitting(1, "FitH", {300}));
    pdf.namedDestination("few", Dest::raw("[0 /XYZ 1]"));
    const auto specification = load();
    EXPECT_EQ(named(specification, u"a"_s), (Place{1, {100, 200}}));
    EXPECT_EQ(named(specification, u"b"_s), (Place{1, {700, 0}})) << "a null takes no place";
    EXPECT_EQ(named(specification, u"bare"_s), std::nullopt);
    EXPECT_EQ(named(specification, u"fit"_s), std::nullopt);
    EXPECT_EQ(specification->linkDestinationMapping().size(), 3)
        << "a, b, and few with the page number as a coordinate";
    EXPECT_THAT(errors.messages(),
                testing::Contains(u"Don't know how to handle destinations with mode FitH"_s));
}

TEST_F(Destinations, CommonReadsWhatProducersWrite)
{
    pdf.namedDestination("bare", Dest::xyz(1, 1, 2), NameForm::BareArray);
    pdf.namedDestination("null", Dest::xyz(1, {}, 500));
    pdf.namedDestination("fit", Dest::fitting(1, "Fit"));
    pdf.namedDestination("fith", Dest::fitting(1, "FitH", {300}));
    pdf.namedDestination("fitv", Dest::fitting(1, "FitV", {55}));
    pdf.namedDestination("fitr", Dest::fitting(1, "FitR", {30, 40, 50, 60}));
    pdf.namedDestination("fitbh", Dest::fitting(1, "FitBH", {std::nullopt}));
    pdf.namedDestination("number", Dest::raw("[1 /XYZ 7 8 0]"));
    pdf.namedDestination("gone", Dest::raw("[99 /XYZ 7 8 0]"));
    pdf.namedDestination("old", Dest::xyz(0, 3, 4), NameForm::BareArray,
                         NameListing::CatalogDictionary);
    const auto specification = load(PDFReadingPolicy::Common);
    EXPECT_EQ(named(specification, u"bare"_s), (Place{1, {1, 2}}));
    EXPECT_EQ(named(specification, u"null"_s), (Place{1, {10, 500}}));
    EXPECT_EQ(named(specification, u"fit"_s), (Place{1, {10, 620}}));
    EXPECT_EQ(named(specification, u"fith"_s), (Place{1, {10, 300}}));
    EXPECT_EQ(named(specification, u"fitv"_s), (Place{1, {55, 620}}));
    EXPECT_EQ(named(specification, u"fitr"_s), (Place{1, {30, 60}}));
    EXPECT_EQ(named(specification, u"fitbh"_s), (Place{1, {10, 620}}));
    EXPECT_EQ(named(specification, u"number"_s), (Place{1, {7, 8}}));
    EXPECT_EQ(named(specification, u"gone"_s), std::nullopt);
    EXPECT_EQ(named(specification, u"old"_s), (Place{0, {3, 4}}));
}

TEST_F(Destinations, CatalogWithoutNamesBindsAndWithBrokenNamesDoesNot)
{
    const auto bound = load();
    EXPECT_TRUE(bound->document());
    EXPECT_THAT(errors.text().toStdString(), testing::StartsWith("No way to get named"));

    pdf.catalogEntry("Names", "<< /EmbeddedFiles << >> >>");
    try {
        load();
        FAIL() << "a name tree without destinations is an error";
    } catch (const PDFSpecification::ParseError &error) {
        EXPECT_EQ(error.kind, PDFSpecification::ParseError::Kind::StructureReadError);
        EXPECT_THAT(error.what(), testing::HasSubstr("wasn't found in either the top-level"));
    }
    const StandardErrorCapture complaints;
    EXPECT_NO_THROW(load(PDFReadingPolicy::Common)) << "such files are common";
    EXPECT_EQ(complaints.text(), QString());

    pdf.catalogEntry("Dests", "7");
    EXPECT_THROW(load(), PDFSpecification::ParseError);
    pdf.catalogEntry("Names", "7");
    EXPECT_NO_THROW(load());
}

TEST_F(Destinations, PageTreeNeedsToBeADictionary)
{
    pdf.catalogEntry("Pages", "[]");
    try {
        load();
        FAIL();
    } catch (const PDFSpecification::ParseError &error) {
        EXPECT_EQ(error.message, u"The PDF document catalog doesn't have a page tree."_s);
    }
}

TEST_F(Destinations, OutlineItemsAreFoundByLabel)
{
    pdf.outline({{u"One"_s, Dest::xyz(0, 1, 2), {{u"Twice"_s, Dest::xyz(0, 5, 6)}}},
                 {u"Nowhere"_s, std::nullopt, {{u"Child"_s, Dest::xyz(1, 3, 4)}}},
                 {u"Twice"_s, Dest::xyz(1, 7, 8)},
                 {u"Action"_s, Dest::xyz(1, 9, 10), {}, OutlineItem::Target::GoToAction}});
    const auto strict = load();
    EXPECT_EQ(named(strict, u"outline:One"_s), (Place{0, {1, 2}}));
    EXPECT_EQ(named(strict, u"outline:Twice"_s), (Place{1, {7, 8}})) << "the later one wins";
    EXPECT_EQ(named(strict, u"outline:Child"_s), (Place{1, {3, 4}}));
    EXPECT_EQ(named(strict, u"outline:Nowhere"_s), std::nullopt);
    EXPECT_EQ(named(strict, u"outline:Action"_s), std::nullopt);
    EXPECT_EQ(strict->documentOutline().keys(), (QStringList{u"Child"_s, u"One"_s, u"Twice"_s}));

    const auto common = load(PDFReadingPolicy::Common);
    EXPECT_EQ(named(common, u"outline:Action"_s), (Place{1, {9, 10}}));
    EXPECT_TRUE(Specification::make<PDFSpecification>()->documentOutline().isEmpty());
}

TEST_F(Destinations, NestedPageTreesKeepTheirOrder)
{
    PDFBuilder large;
    large.pagesPerNode(3);
    for (int page = 0; page < 10; ++page)
        large.addPage().text(72, 700, u"page %1"_s.arg(page));
    large.namedDestination("last", Dest::xyz(9, 1, 2));
    const auto specification = load(large.build());
    EXPECT_EQ(specification->pageDictionaries().size(), 10U);
    EXPECT_EQ(named(specification, u"last"_s), (Place{9, {1, 2}}));
    EXPECT_EQ(specification->document()->textForPage(7), u"page 7"_s);
}
