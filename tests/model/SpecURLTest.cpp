// SPDX-License-Identifier: Apache-2.0
#include "MapFixture.h"

#include <Tavrin/model/SpecURL.h>

namespace
{

class SpecURLs : public testing::Test
{
protected:
    SpecURLs()
    {
        spec->setIdentifier(u"A"_s);
        spec->setRevision(u"2"_s);
    }

    std::shared_ptr<SpecificationEntry> add(const QString &label)
    {
        auto entry = spec->newEntry();
        entry->setLabel(label);
        spec->add(entry);
        return entry;
    }

    std::shared_ptr<Specification> spec = Specification::make<Specification>();
};

} // namespace

TEST_F(SpecURLs, NameEntriesBoundOrOpen)
{
    const auto entry = add(u"4.2.1"_s);
    EXPECT_EQ(spec->generateURL(*entry, true, true), u"spec://4.2.1/A/2");
    EXPECT_EQ(spec->generateURL(*entry, true, false), u"spec://4.2.1/A/*");
    EXPECT_EQ(spec->generateURL(*entry, false, false), u"spec://4.2.1/*/*");
    EXPECT_EQ(spec->generateURL(u"4.2.1"_s), u"spec://4.2.1");
    const auto other = Specification::make<Specification>();
    other->setIdentifier(u"B/C d"_s);
    const auto foreign = std::make_shared<SpecificationEntry>(other);
    foreign->setLabel(u"x"_s);
    EXPECT_EQ(spec->generateURL(*foreign, true, false), u"spec://x/B/C%20d/*");
    const SpecificationEntry orphan(nullptr, u"x"_s, u""_s, SpecificationEntryType::Section, {});
    EXPECT_EQ(spec->generateURL(orphan, true, true), u"spec://x/*/*");
}

TEST_F(SpecURLs, SurviveLabelsThatHostsCouldNotHave)
{
    for (const QString &label : {u"4.2.1"_s, u"Annex B"_s, u"é 100%25 #?"_s, u"[12]"_s, u"a:b@c"_s,
                                 u"𝔘"_s, u"["_s, u"a%zz"_s, u"\\"_s}) {
        const auto entry = add(label);
        EXPECT_EQ(spec->entry(spec->generateURL(*entry, true, true)), entry) << label.toStdString();
        EXPECT_EQ(spec->entry(spec->generateURL(label)), entry) << label.toStdString();
    }
    EXPECT_EQ(spec->generateURL(*spec->entry(u"["_s), true, true), u"spec://[")
        << "no host has a single bracket";
    EXPECT_EQ(spec->generateURL(*spec->entry(u"[12]"_s), true, true), u"spec://[12]/A/2");
    EXPECT_EQ(spec->generateURL(u"a/b c:!$&'()*+,;=[]~%"_s), u"spec://a%2Fb%20c:!$&'()*+,;=[]~%25");
    const QString broken = u"x"_s + QChar(0xD800);
    EXPECT_EQ(spec->generateURL(broken), u"spec://"_s + broken);
}

TEST_F(SpecURLs, DoNotCarrySlashes)
{
    const auto entry = add(u"a/b"_s);
    EXPECT_EQ(spec->entry(spec->generateURL(*entry, false, false)), nullptr);
    const auto part = add(u"a"_s);
    EXPECT_EQ(spec->entry(spec->generateURL(u"a/b"_s)), part) << "decoded before it is split";
}

TEST_F(SpecURLs, MeanTheSpecificationTheyName)
{
    const auto entry = add(u"Scope"_s);
    EXPECT_EQ(spec->entry(u"spec://scope/A/2"_s), entry);
    EXPECT_EQ(spec->entry(u"spec://Scope/*/2/3/7"_s), entry);
    EXPECT_EQ(spec->entry(u"spec://Scope/a/2"_s), nullptr);
    EXPECT_EQ(spec->entry(u"spec://Scope/A/3"_s), nullptr);
    EXPECT_EQ(spec->entry(u"spec://Scope/B"_s), entry) << "two parts are not checked";
    EXPECT_EQ(spec->entry(u"spec://"_s), nullptr);
    EXPECT_EQ(spec->entry(u"spec:///"_s), nullptr);
    EXPECT_EQ(spec->entry(u"see spec://Scope"_s), nullptr);
    EXPECT_EQ(spec->entry(u"SPEC://Scope"_s), nullptr);
    const auto plain = add(u"see spec://Scope"_s);
    EXPECT_EQ(spec->entry(u"see spec://Scope"_s), plain);
}

TEST_F(SpecURLs, AreTakenApartByComponents)
{
    EXPECT_EQ(SpecURL::components(u"spec://4%2E2/A%20b/*/3/7"_s),
              (QStringList{u"4.2"_s, u"A b"_s, u"*"_s, u"3"_s, u"7"_s}));
    EXPECT_EQ(SpecURL::components(u"spec://a%4/b"_s), (QStringList{u"a%4"_s, u"b"_s}));
    EXPECT_EQ(SpecURL::components(u"spec://a%FF/%41"_s), (QStringList{u"a%FF"_s, u"%41"_s}));
    EXPECT_EQ(SpecURL::components(u"x"_s), std::nullopt);
}
