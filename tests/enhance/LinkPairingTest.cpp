// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/enhance/EntryGraphNode.h>
#include <Tavrin/enhance/LinkPairing.h>
#include <support/StandardErrorCapture.h>

using Type = Tavrin::SpecificationEntryType;

namespace
{

class PairingOfLinks : public testing::Test
{
protected:
    void add(const QString &label, Type type, const std::vector<int> &index)
    {
        entries.insert(std::make_shared<EntryGraphNode>(nullptr, label, u"Title"_s, type, index));
    }

    PDFXMLEnhancer::LabelLinkMapping pair(const std::vector<QStringList> &names)
    {
        std::vector<std::vector<PDFXMLEnhancer::NamedPlace>> links;
        for (const QStringList &page : names) {
            links.emplace_back();
            for (const QString &name : page)
                links.back().emplace_back(name, HostPDFDestination(nullptr, Point{}));
        }
        const PDFXMLEnhancer enhancer;
        return LinkPairing::pair(entries, links,
                                 {enhancer.entryTypeMarkers(), enhancer.ignoreLinkMarkers(),
                                  enhancer.requiredLinkMarkers()});
    }

    EntryTable entries;
    Testing::StandardErrorCapture errors;
};

} // namespace

TEST_F(PairingOfLinks, givesTheNthLinkToTheNthEntryOfItsKind)
{
    add(u"3"_s, Type::Chapter, {3});
    add(u"2.1"_s, Type::Section, {2, 1});
    add(u"2"_s, Type::Chapter, {2});
    add(u"F"_s, Type::Figure, {2, 1});
    const auto mapping = pair({{u"ondry_ref_CLK_a"_s, u"ondry_ref_FLK_f"_s},
                               {},
                               {u"ondry_ref_SLK_b"_s, u"ondry_ref_CLK_c"_s}});
    EXPECT_EQ(mapping.value(u"2"_s), u"ondry_ref_CLK_a"_s);
    EXPECT_EQ(mapping.value(u"2.1"_s), u"ondry_ref_SLK_b"_s);
    EXPECT_EQ(mapping.value(u"3"_s), u"ondry_ref_CLK_c"_s);
    EXPECT_EQ(mapping.value(u"F"_s), u"ondry_ref_FLK_f"_s);
    EXPECT_THAT(errors.messages(), IsEmpty());
}

TEST_F(PairingOfLinks, dropsLinksByTheirMarkers)
{
    add(u"1"_s, Type::Section, {1});
    const auto mapping =
        pair({{u"SLK_other"_s, u"ondry_ref_TOC_SLK"_s, u"ondry_ref_XLK"_s, u"ondry_ref_SLK"_s}});
    EXPECT_EQ(mapping.value(u"1"_s), u"ondry_ref_SLK"_s);
    EXPECT_THAT(errors.messages(), ElementsAre(u"Invalid internal link: ondry_ref_XLK"_s));
}

TEST_F(PairingOfLinks, tellsOfEachLinkTooMany)
{
    add(u"1"_s, Type::Section, {1});
    const auto mapping = pair({{u"ondry_ref_SLK1"_s, u"ondry_ref_SLK2"_s, u"ondry_ref_FLK1"_s}});
    EXPECT_EQ(mapping.size(), 1);
    EXPECT_THAT(errors.messages(),
                ElementsAre(u"\x1b[0;31mNo current entry for Section\x1b[0;39m"_s,
                            u"\x1b[0;31mNo current entry for Figure\x1b[0;39m"_s));
}

TEST_F(PairingOfLinks, tellsOnceOfLinksTooFew)
{
    add(u"1"_s, Type::Section, {1});
    add(u"2"_s, Type::Section, {2});
    add(u"none"_s, Type::Section, {});
    EXPECT_THAT(pair({{u"ondry_ref_SLK1"_s}}).keys(), ElementsAre(u"1"_s));
    EXPECT_THAT(errors.messages(),
                ElementsAre(u"\x1b[0;33mThe mapping between internal links and entries wasn't "
                            "one-to-one -- there may be some mismatched entries.\x1b[0;39m"_s));
}
