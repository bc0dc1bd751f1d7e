// SPDX-License-Identifier: Apache-2.0
#include "PDFFixture.h"

#include <Tavrin/model/SpecURL.h>

namespace
{

class Binding : public PDFFixture
{
protected:
    Binding() : map(u"A"_s, u"2"_s)
    {
        pdf.addPage().text(72, 700, u"Überschrift: a Sample"_s);
        pdf.addPage().text(72, 600, u"1 Scope"_s).text(72, 300, u"2 Terms"_s);
        pdf.namedDestination("scope", Dest::xyz(1, 72, 620));
        map.title(u"Sample"_s);
    }

    std::shared_ptr<PDFSpecification> specification()
    {
        const QUrl url = map.write(files, u"map.xml"_s);
        return std::dynamic_pointer_cast<PDFSpecification>(
            Specification::withStructureFile(url, files.url(u"spec.dtd"_s)));
    }

    QUrl document(const QString &name = u"doc.pdf"_s) { return files.write(name, pdf.build()); }

    MapBuilder map;
};

} // namespace

TEST_F(Binding, GoesByTheWordsOfTheFirstPage)
{
    map.file(u"pdf"_s, u"sample, a; Überschrift"_s).entry({.label = u"x"_s, .name = u"X"_s});
    const auto spec = specification();
    ASSERT_TRUE(spec) << "one requirement for a PDF makes a PDF specification";
    EXPECT_FALSE(spec->isAuxiliaryFileCompatible(document())) << "case counts";
    const AuxiliaryFileRequirement right(u"pdf"_s, u"Sample a Überschrift"_s, {});
    EXPECT_TRUE(spec->doesAuxiliaryFile(document(), right)) << "order does not";
    EXPECT_FALSE(spec->doesAuxiliaryFile(document(), {u"pdf"_s, u"Sample a a Überschrift"_s, {}}));
    EXPECT_TRUE(spec->doesAuxiliaryFile(document(), {u"pdf"_s, u"Sample,a,Überschrift"_s, {}}));
    EXPECT_FALSE(spec->doesAuxiliaryFile(document(u"doc.PDF"_s), right)) << "nor is .PDF pdf";
    EXPECT_FALSE(spec->claimAuxiliaryFile(files.write(u"no.pdf"_s, "no pdf")));
    EXPECT_THAT(errors.messages(), testing::Contains(u"Unable to open the PDF at %1."_s.arg(
                                       files.url(u"no.pdf"_s).toString())));
    EXPECT_EQ(spec->entry(u"x"_s), nullptr) << "nothing loads while the file is missing";
}

TEST_F(Binding, GivesEntriesTheirPlaces)
{
    map.file(u"pdf"_s, u"Überschrift a Sample"_s, u"10,20.5,500,600"_s)
        .entry({.label = u"2"_s, .name = u"Terms"_s, .internal = u"destination:1,72,320"_s})
        .entry({.label = u"scope"_s, .name = u"Scope"_s})
        .entry({.label = u"lost"_s, .name = u"Lost"_s, .internal = u"nowhere"_s})
        .entry({.label = u"front"_s, .name = u"Front"_s, .internal = u"rects:0,0,0,10,20"_s});
    const auto spec = specification();
    EXPECT_TRUE(spec->claimAuxiliaryFile(document()));
    EXPECT_EQ(spec->pdfURL(), files.url(u"doc.pdf"_s));
    EXPECT_EQ(spec->pageBounds(), (Rect{{10, 20.5}, {500, 600}}));
    EXPECT_EQ(place(spec->destination(u"SCOPE"_s)), (Place{1, {72, 620}}));
    EXPECT_EQ(place(spec->destination(u"spec://2/A/2"_s)), (Place{1, {72, 320}}));
    EXPECT_EQ(spec->destination(u"lost"_s), std::nullopt);
    EXPECT_EQ(spec->entryCount(), 4);
    const auto &sorted = spec->sortedDestinations();
    ASSERT_EQ(sorted.size(), 2U);
    ASSERT_EQ(sorted[0].size(), 1U);
    ASSERT_EQ(sorted[1].size(), 2U);
    EXPECT_EQ(sorted[1][0]->label(), u"scope"_s) << "higher on the page, so read before";
    EXPECT_FALSE(spec->isAuxiliaryFileCompatible(document(u"again.pdf"_s)));
    EXPECT_EQ(errors.text(), QString());
}

TEST_F(Binding, NeedsNoReadInfo)
{
    map.file(u"pdf"_s, u"Überschrift a Sample"_s).entry({.label = u"x"_s, .name = u"X"_s});
    const auto spec = specification();
    for (const QString &info : {u""_s, u"1,2,3"_s, u"1,2,3,4,5"_s, u"1,2, 3,4"_s, u"1,2,3,x"_s}) {
        const StandardErrorCapture own;
        EXPECT_TRUE(
            spec->assignAuxiliaryFile(document(), {u"pdf"_s, u"Überschrift a Sample"_s, info}));
        EXPECT_EQ(spec->pageBounds(), std::nullopt);
        EXPECT_EQ(
            own.messages(),
            QStringList{u"Unable to parse PDF read info: %1. Expected a string of the form "
                        "x,y,width,height. Falling back to default page bounds."_s.arg(info)});
    }
}

TEST_F(Binding, KeepsEntriesInWhatIsWritten)
{
    map.file(u"pdf"_s, u"Überschrift a Sample"_s, u"10,20.5,500,600"_s)
        .entry({.label = u"2"_s,
                .index = u"2"_s,
                .name = u"Terms"_s,
                .internal = u"destination:1,72,320"_s})
        .entry({.label = u"scope"_s, .index = u"1"_s, .name = u"Scope"_s});
    pdf.info("Title", u"The Title"_s);
    const auto spec = specification();
    spec->claimAuxiliaryFile(document());
    const QString text =
        spec->writeSpecToXMLString(QUrl::fromLocalFile(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd")));
    const QUrl url = files.write(u"written.xml"_s, text.toUtf8());
    const auto again = std::dynamic_pointer_cast<PDFSpecification>(
        Specification::withStructureFile(url, std::nullopt));
    ASSERT_TRUE(again);
    EXPECT_EQ(again->title(), u"The Title"_s) << "as the document says";
    EXPECT_TRUE(again->claimAuxiliaryFile(document(u"other.pdf"_s)));
    EXPECT_EQ(again->pageBounds(), spec->pageBounds());
    EXPECT_EQ(place(again->destination(u"2"_s)), (Place{1, {72, 320}}));
    EXPECT_EQ(place(again->destination(u"scope"_s)), (Place{1, {72, 620}}));
    EXPECT_EQ(again->writeSpecToXMLString(std::nullopt), spec->writeSpecToXMLString(std::nullopt));
    EXPECT_EQ(Specification::make<PDFSpecification>()
                  ->writeSpecToXMLString(std::nullopt)
                  .contains(u"file"_s + u' '),
              false);
}

TEST_F(Binding, ChildEntriesNameTheirLines)
{
    map.file(u"pdf"_s, u"Überschrift a Sample"_s).entry({.label = u"scope"_s, .name = u"Scope"_s});
    const auto spec = specification();
    spec->claimAuxiliaryFile(document());
    const auto child =
        std::dynamic_pointer_cast<PDFSpecification::Entry>(spec->entry(u"spec://scope/A/*/3/7"_s));
    ASSERT_TRUE(child);
    EXPECT_EQ(child->lineRange(), (StyledTextEditing::LineRange{3, 7}));
    EXPECT_EQ(child->parentEntry(), spec->entry(u"scope"_s));
    EXPECT_EQ(spec->entry(u"spec://scope/A/2/3/7"_s), child) << "one child for one range";
    EXPECT_EQ(spec->generateURL(*child, true, true), u"spec://scope/A/2/3/7"_s);
    EXPECT_EQ(spec->entry(u"spec://scope/A/2/3/x"_s), spec->entry(u"scope"_s));
    EXPECT_EQ(spec->entry(u"spec://scope/B/2/3/7"_s), nullptr);
    EXPECT_DEATH(spec->entry(u"spec://scope/A/2/7/3"_s), "ends before it begins");
}

TEST_F(Binding, ReportsADocumentThatCannotBeLoaded)
{
    const auto spec = Specification::make<PDFSpecification>();
    spec->loadPDFDocument(files.url(u"missing.pdf"_s));
    EXPECT_FALSE(spec->document());
    EXPECT_THAT(errors.text().toStdString(),
                testing::StartsWith("Couldn't load document from URL"));
}

TEST_F(Binding, TakesAnotherDocumentInPlaceOfTheFirst)
{
    map.file(u"pdf"_s, u"Überschrift a Sample"_s).entry({.label = u"scope"_s, .name = u"Scope"_s});
    pdf.outline({{u"First"_s, Dest::xyz(1, 72, 620)}});
    const auto spec = specification();
    spec->claimAuxiliaryFile(document());
    PDFBuilder second;
    second.addPage().text(72, 600, u"1 Scope"_s);
    second.namedDestination("scope", Dest::xyz(0, 72, 640));
    second.outline({{u"Second"_s, Dest::xyz(0, 72, 640)}});
    spec->loadPDFDocument(files.write(u"second.pdf"_s, second.build()));
    const auto expectSecond = [&] {
        EXPECT_EQ(spec->document()->pageCount(), 1);
        EXPECT_EQ(spec->pageDictionaries().size(), 1U);
        EXPECT_EQ(spec->sortedDestinations().size(), 1U);
        EXPECT_EQ(place(spec->destination(u"scope"_s)), (Place{0, {72, 640}}));
        EXPECT_EQ(spec->documentOutline().keys(), QStringList{u"Second"_s});
    };
    expectSecond();
    const auto bound = spec->document();
    spec->loadPDFDocument(files.url(u"missing.pdf"_s));
    spec->loadPDFDocument(files.write(u"no.pdf"_s, "no pdf"));
    EXPECT_EQ(errors.messages().filter(u"Couldn't load document from URL"_s).size(), 2);
    EXPECT_EQ(spec->document(), bound) << "what can't be opened leaves all as it was";
    expectSecond();
    PDFBuilder broken;
    broken.catalogEntry("Pages", "[]");
    EXPECT_THROW(spec->loadPDFStructure(CachingPDFDocument::open(broken.build())),
                 PDFSpecification::ParseError);
    spec->loadPDFDocument(files.url(u"second.pdf"_s));
    expectSecond();
}

TEST_F(Binding, TakesTheOutlineThatItIsGiven)
{
    pdf.outline({{u"First"_s, Dest::xyz(1, 72, 620)}});
    const auto spec = load();
    EXPECT_EQ(spec->documentOutline().keys(), QStringList{u"First"_s});
    pdf.outline({{u"Second"_s, Dest::xyz(1, 72, 320)}});
    const auto other = CachingPDFDocument::open(pdf.build());
    spec->loadPDFStructure(other);
    spec->setDocumentOutline(spec->parseOutline(*other));
    EXPECT_EQ(place(spec->destinationForLink(u"outline:Second"_s)), (Place{1, {72, 320}}));
}
