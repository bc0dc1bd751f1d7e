// SPDX-License-Identifier: Apache-2.0
#include "ReadingFixture.h"

namespace
{

class Layout : public ReadingFixture
{
protected:
    struct Found {
        QString text;
        TextRange range;
        friend bool operator==(const Found &, const Found &) = default;
    };

    static TextAttributes style(double size, quint32 traits = 0)
    {
        TextAttributes attributes;
        attributes.font = TextFont{u"Serif"_s, size, traits};
        return attributes;
    }

    std::vector<Found> headings(const StyledText &text, int stopAfter = -1)
    {
        std::vector<Found> found;
        specification->enumerateHeadings(text,
                                         [&](const QString &words, TextRange range, bool &stop) {
                                             found.push_back({words, range});
                                             stop = static_cast<int>(found.size()) == stopAfter;
                                         });
        return found;
    }

    /// Ten-point body on every page but those of the list, which are set in twenty points.
    void addSizedPages(int count, const std::set<int> &large)
    {
        for (int i = 0; i < count; ++i) {
            const double size = large.contains(i) ? 20 : 10;
            pdf.addPage().text(large.contains(i) ? 100.6 : 72.9, 700, u"Some words here"_s,
                               {Font::Times, size});
        }
    }
};

} // namespace

TEST_F(Layout, SamplesEveryHundredthPageForTheSizeAndEveryFiftiethForTheMargin)
{
    addSizedPages(102, {101});
    pdf.addPage();
    bind();
    EXPECT_EQ(specification->normalTextSize(), 10) << "one page each way: the smaller size stays";
    EXPECT_EQ(specification->leftMargin(), 72) << "cut to whole points, by pages 1, 51 and 101";
    EXPECT_EQ(specification->computeNormalTextSize(*specification->document(), 1000), 10);
    EXPECT_EQ(specification->computeLeftMargin(*specification->document(), PDFBox::Media, 100), 72)
        << "met first";
    EXPECT_EQ(specification->computeNormalTextSize(*CachingPDFDocument::open([] {
        PDFBuilder large;
        for (int i = 0; i < 101; ++i) {
            large.addPage().text(72, 700, u"Some words here"_s,
                                 {Font::Times, i == 1 ? 10.0 : 20.0});
        }
        return large.build();
    }()),
                                                   100),
              10)
        << "of 101 pages, the one at index 1 alone counts";
}

TEST_F(Layout, KnowsNothingOfOnePageOrNone)
{
    EXPECT_EQ(specification->normalTextSize(), 0);
    EXPECT_EQ(specification->leftMargin(), 0);
    addSizedPages(1, {});
    bind();
    EXPECT_EQ(specification->normalTextSize(), 0) << "nothing was stored while unbound";
    EXPECT_EQ(specification->leftMargin(), 0);
}

TEST_F(Layout, KeepsItsMeasuresWhenAnotherDocumentIsBound)
{
    addSizedPages(3, {});
    bind();
    EXPECT_EQ(specification->leftMargin(), 72);
    PDFBuilder other;
    other.addPage();
    other.addPage().text(150, 700, u"Some words here"_s, {Font::Times, 12});
    specification->loadPDFStructure(CachingPDFDocument::open(other.build()));
    EXPECT_EQ(specification->leftMargin(), 72);
    EXPECT_EQ(specification->normalTextSize(), 12) << "this was never asked for before";
}

TEST_F(Layout, MergesRunsOfOneStyleIntoHeadings)
{
    addSizedPages(3, {});
    bind();
    StyledText text(u"Large\nand long"_s, style(14));
    text.append(u" body "_s, style(10));
    text.append(u"Bold"_s, style(10, TextFont::Bold));
    text.append(u"Italic"_s, style(10, TextFont::Italic));
    text.append(u" body "_s, style(10));
    text.append(u"Abc"_s, style(20));
    text.append(u" body "_s, style(10));
    text.append(u"Xyz"_s, style(20));
    const std::vector<Found> all{
        {u"Large and long"_s, {0, 14}}, {u"BoldItalic"_s, {20, 10}}, {u"Xyz"_s, {45, 3}}};
    EXPECT_EQ(headings(text), all)
        << "bold and italic are one style; three letters count at the end alone";
    EXPECT_EQ(headings(text, 1), std::vector<Found>{all[0]});
    StyledText ending(u"body "_s, style(10));
    ending.append(u"Bold at the end"_s, style(10, TextFont::Bold));
    EXPECT_TRUE(headings(ending).empty());
    EXPECT_TRUE(headings(StyledText(u"no font"_s)).empty());
}

TEST_F(Layout, TellsHeadingsBodyLinesAndTitles)
{
    addSizedPages(3, {});
    bind();
    const auto page = specification->document()->page(1);
    EXPECT_FALSE(specification->isTextHeading(StyledText(u"x"_s, style(10)), {}, *page));
    EXPECT_TRUE(specification->isTextHeading(StyledText(u"x"_s, style(10.5)), {}, *page));
    EXPECT_TRUE(
        specification->isTextHeading(StyledText(u"x"_s, style(8, TextFont::Italic)), {}, *page));
    EXPECT_FALSE(specification->isTextHeading(StyledText(u"x"_s), {}, *page));
    EXPECT_FALSE(specification->isLinePartOfLayoutBreak({{72.5, 0}, {9, 9}}, *page));
    EXPECT_TRUE(specification->isLinePartOfLayoutBreak({{73, 0}, {9, 9}}, *page));
    EXPECT_TRUE(specification->isLinePartOfLayoutBreak({{71, 0}, {9, 9}}, *page));
    EXPECT_TRUE(specification->textContainsTitle(u"4.2TheScope"_s, u"The Scope"_s));
    EXPECT_FALSE(specification->textContainsTitle(u"4.2 The Scope"_s, u"TheScope"_s));
    EXPECT_FALSE(specification->textContainsTitle(u"the scope"_s, u"The Scope"_s));
}
