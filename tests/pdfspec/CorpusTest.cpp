// SPDX-License-Identifier: Apache-2.0
// Real documents, whose places are known.
#include "PDFFixture.h"

#include <Tavrin/pdf/LineFinder.h>
#include <support/Corpus.h>

namespace
{

std::shared_ptr<PDFSpecification> loadCorpus(const QString &name, PDFReadingPolicy policy)
{
    const auto path = corpusFile(name);
    if (!path)
        return nullptr;
    auto specification = Specification::make<PDFSpecification>();
    specification->setReadingPolicy(policy);
    specification->loadPDFDocument(QUrl::fromLocalFile(*path));
    return specification;
}

/// The line at the top of what stands below a place.
QString lineBelow(const HostPDFDestination &place)
{
    const HostPDFPage &page = *place.page();
    for (const TextRange &range : LineFinder::lines(page)) {
        if (page.selection(range).bounds(page).maxY() <= place.point().y + 2)
            return page.string()->mid(range.location, range.length);
    }
    return {};
}

} // namespace

TEST(Corpus, NamedDestinationsLeadToTheirHeadings)
{
    const auto ngspice = loadCorpus(u"ngspice.pdf"_s, PDFReadingPolicy::Strict);
    if (!ngspice)
        GTEST_SKIP() << noCorpus;
    EXPECT_EQ(ngspice->linkDestinationMapping().size(), 6249);
    const std::vector<std::pair<QString, QString>> headings{
        {u"section.3.2"_s, u"3.2 Device Models"_s},
        {u"subsection.15.6.2"_s, u"15.6.2 .PRINT Lines"_s},
    };
    for (const auto &[name, heading] : headings) {
        const auto place = ngspice->destinationForLink(name);
        ASSERT_TRUE(place) << name.toStdString();
        EXPECT_EQ(lineBelow(*place).left(4), heading.left(4)) << name.toStdString();
    }
}

TEST(Corpus, CommonReadsWhatStrictDoesNot)
{
    const StandardErrorCapture errors;
    const auto strict = loadCorpus(u"theora.pdf"_s, PDFReadingPolicy::Strict);
    const auto common = loadCorpus(u"theora.pdf"_s, PDFReadingPolicy::Common);
    if (!strict)
        GTEST_SKIP() << noCorpus;
    EXPECT_EQ(strict->linkDestinationMapping().size(), 0) << "every destination is FitH";
    EXPECT_EQ(common->linkDestinationMapping().size(), 1362);
    EXPECT_EQ(strict->documentOutline().size(), 0) << "the outline has actions alone";
    EXPECT_GT(common->documentOutline().size(), 90);
}

TEST(Corpus, OutlinesAreWhole)
{
    const std::vector<std::pair<QString, std::size_t>> counts{
        {u"policy.pdf"_s, 339},  {u"theora.pdf"_s, 101},    {u"slepc.pdf"_s, 86},
        {u"ngspice.pdf"_s, 824}, {u"cplusplus.pdf"_s, 627}, {u"icccm.pdf"_s, 109}};
    const StandardErrorCapture errors;
    for (const auto &[name, count] : counts) {
        const auto specification = loadCorpus(name, PDFReadingPolicy::Common);
        if (!specification)
            GTEST_SKIP() << noCorpus;
        const auto items =
            specification->recursivelyCollectChildren(*specification->document()->outlineRoot());
        EXPECT_EQ(items.size(), count) << name.toStdString();
    }
}

TEST(Corpus, PagesReadAsPrinted)
{
    const auto slepc = loadCorpus(u"slepc.pdf"_s, PDFReadingPolicy::Common);
    if (!slepc)
        GTEST_SKIP() << noCorpus;
    const auto page = slepc->document()->page(11);
    EXPECT_EQ(page->label(), u"2"_s);
    const QString text = *page->string();
    EXPECT_TRUE(
        text.contains(u"1.1 SLEPc and PETSc\nThe slepc library is an attempt to provide"_s));
    const qsizetype at = text.indexOf(u"1.1 SLEPc and PETSc\nThe"_s);
    const auto styled = *page->attributedString();
    EXPECT_TRUE(styled.attributesAt(at).font->isBold());
    EXPECT_NEAR(styled.attributesAt(at).font->pointSize, 14.35, 0.01);
    const Rect heading = page->selection(TextRange{at, 19}).bounds(*page);
    EXPECT_NEAR(heading.minX(), 89.01, 1);
    EXPECT_NEAR(heading.maxY(), 323.83, 2);
}
