// SPDX-License-Identifier: Apache-2.0
#include "ReadingFixture.h"

namespace
{

class LinkReading : public ReadingFixture
{
protected:
    std::vector<LinkRecord> links(int index)
    {
        return specification->readLinks(
            *specification->pageDictionaries().at(static_cast<std::size_t>(index)));
    }
    /// The linked stretches of a text, with their targets.
    static QStringList linked(const StyledText &text)
    {
        QStringList result;
        text.enumerateLinks({0, text.length()}, [&](const QString *link, TextRange run, bool &) {
            if (link)
                result += text.string().mid(run.location, run.length) + u" → "_s + *link;
        });
        return result;
    }
};

constexpr Rect area{{70, 698}, {40, 10}};

} // namespace

TEST_F(LinkReading, ReadsLinksToNames)
{
    addPages(3);
    page(1)
        .link(area, Dest::named("one"))
        .note({{0, 0}, {9, 9}}, u"no link"_s)
        .link(area, Dest::xyz(2, 72, 500))
        .actionLink(area, Dest::named("two"))
        .annotation("<< /Subtype /Link /Rect [1 2 3] /Dest (short) >>")
        .annotation("<< /Subtype /Link /Rect [110 708 70 698] /Dest (turned) >>");
    pdf.namedDestination("one", Dest::xyz(2, 72, 600));
    bind();
    EXPECT_EQ(links(1), (std::vector<LinkRecord>{{u"one"_s, area}, {u"turned"_s, area}}));
    EXPECT_TRUE(links(2).empty());
    EXPECT_TRUE(messages().isEmpty());
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    EXPECT_EQ(links(1).size(), 3U) << "actions are read if the policy says so";
    specification->setReadingPolicy(PDFReadingPolicy::Strict);
    const auto places = specification->readDestinationsFromPages(*specification->document());
    ASSERT_EQ(places.size(), 3U);
    ASSERT_EQ(places[1].size(), 2U) << "by name and by array; one name leads nowhere";
    EXPECT_EQ(places[1][0].point(), (Point{72, 600}));
    EXPECT_EQ(places[1][1].point(), (Point{72, 500}));
    EXPECT_EQ(messages(), (QStringList{u"Page 0 has no annotations dictionary"_s,
                                       u"Page 2 has no annotations dictionary"_s}));
}

TEST_F(LinkReading, WritesSpecURLsOverTheWords)
{
    addPages(3);
    page(1).text(72, 720, u"1 Scope"_s, heading);
    page(1).text(72, 700, u"See Terms and Terms, and see nothing else on this line of text"_s,
                 body);
    // "Terms" twice; the rectangles are a little small, as they are in real files.
    page(1).link({{91, 700}, {22, 5}}, Dest::named("a b"));
    page(1).link({{136, 700}, {22, 5}}, Dest::named("c"));
    page(1).link({{400, 300}, {20, 10}}, Dest::named("c"));
    pdf.namedDestination("a b", Dest::xyz(2, 72, 600));
    const auto scope = section(u"1"_s, u"Scope"_s, 1, 740);
    bind();
    const auto text = scope->summaryText();
    ASSERT_TRUE(text);
    EXPECT_EQ(linked(*text), (QStringList{u"Terms → spec://a%20b"_s, u"Terms → spec://c"_s}));
    EXPECT_EQ(messages(), QStringList{u"The link doesn't have a text range"_s});
}

TEST_F(LinkReading, LeadsToEntriesWhereTheMapHasOtherNamesThanTheFile)
{
    addPages(3);
    page(1).text(72, 720, u"1 Scope"_s, heading).text(72, 700, u"Terms are elsewhere"_s, body);
    page(1).link({{72, 698}, {24, 10}}, Dest::named("section.2"));
    page(2).text(72, 720, u"2 Terms"_s, heading);
    pdf.namedDestination("section.2", Dest::xyz(2, 72, 745));
    const auto scope = section(u"1"_s, u"Scope"_s, 1, 740);
    section(u"2"_s, u"Terms"_s, 2, 735);
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    bind();
    EXPECT_EQ(linked(scope->summaryText().value()), QStringList{u"Terms → spec://2"_s});
}
