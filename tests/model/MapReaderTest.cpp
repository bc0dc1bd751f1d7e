// SPDX-License-Identifier: Apache-2.0
#include "MapFixture.h"

using Kind = XMLError::Kind;

namespace
{

class MapReader : public MapFixture
{
protected:
    XMLError structureError(const QByteArray &content)
    {
        const auto spec = Specification::make<Specification>(map(content), dtd);
        return errorOf([&] { spec->loadStructure(); });
    }

    std::shared_ptr<Specification> loaded(const QByteArray &content)
    {
        auto spec = Specification::make<Specification>(map(content), dtd);
        spec->loadStructure();
        return spec;
    }
};

} // namespace

TEST_F(MapReader, ReadsMetadataWithoutTheTable)
{
    const auto spec = Specification::make<Specification>(
        map("<shortname>L</shortname><auxfiles>\n <file type='pdf' verifier='a,b'/>\n</auxfiles>"
            "<toc><entry label='1'><index>1</index></entry></toc>",
            "id='A' revision='2' variant='v' lang='en' version='3' nopreviews='1' kelmor='k'"),
        dtd);
    EXPECT_EQ(spec->title(), u"Language");
    EXPECT_EQ(spec->shortTitle(), u"L");
    EXPECT_EQ(spec->identifier(), u"A");
    EXPECT_EQ(spec->revision(), u"2");
    EXPECT_EQ(spec->variant(), u"v");
    EXPECT_EQ(spec->language(), u"en");
    EXPECT_EQ(spec->version(), u"3");
    EXPECT_FALSE(spec->allowsPreviews());
    EXPECT_EQ(spec->entryCount(), 0);
    ASSERT_EQ(spec->auxiliaryFileRequirements().size(), 1U);
    EXPECT_EQ(spec->auxiliaryFileRequirements()[0]->verifier, u"a,b");
    EXPECT_EQ(spec->auxiliaryFileRequirements()[0]->readInfo, u"");
    EXPECT_EQ(spec->debugDescription(), u"<Language: Version 2, containing 0 entries>");
}

TEST_F(MapReader, KeepsOnAReloadWhatTheMapNoLongerStates)
{
    const auto spec = Specification::make<Specification>(
        map("<shortname>L</shortname><auxfiles><file type='pdf' verifier=''/></auxfiles>",
            "id='A' variant='v' lang='en' nopreviews='1'"),
        dtd);
    const auto requirement = spec->auxiliaryFileRequirements().front();
    requirement->fileURL = QUrl::fromLocalFile(u"/a.pdf"_s);
    map("<shortname>M</shortname>", "revision='3'");
    spec->loadMetadata(*spec->specMapURL(), spec->dtdURL());
    EXPECT_EQ(spec->shortTitle(), u"M");
    EXPECT_EQ(spec->language(), u"en");
    EXPECT_EQ(spec->variant(), u"");
    EXPECT_EQ(spec->identifier(), u"");
    EXPECT_TRUE(spec->allowsPreviews());
    EXPECT_EQ(spec->auxiliaryFileRequirements(), AuxiliaryFileRequirements{requirement});
    map("", "revision='4'");
    spec->loadMetadata(*spec->specMapURL(), spec->dtdURL());
    EXPECT_EQ(spec->shortTitle(), spec->title());
}

TEST_F(MapReader, ReadsEntriesOfAnIndentedMap)
{
    const auto spec = loaded(R"(
      <toc>
        <entry label="4.2" type="section">
          <index>4-2.x.+7. 1</index>
          <name>Scope &amp; purpose</name>
          <keywords>alpha, beta,,gam+ma</keywords>
          <related>
            <item>1</item>
            <item></item>
          </related>
        </entry>
        <entry type="Section"><name>No label</name></entry>
        <entry label="4.2"><name>Too late</name></entry>
        <entry label="T1" type="table"><index></index></entry>
      </toc>)");
    ASSERT_EQ(spec->entryCount(), 3);
    const auto entry = spec->entry(u"4.2"_s);
    EXPECT_EQ(entry->type(), SpecificationEntryType::Section);
    EXPECT_EQ(entry->index(), (std::vector<int>{4, 2, 7}));
    EXPECT_EQ(entry->title(), u"Scope & purpose");
    EXPECT_EQ(entry->keywords(), (QStringList{u"alpha"_s, u" beta"_s, u"gam+ma"_s}));
    EXPECT_EQ(entry->relatedEntries(), (QStringList{u"1"_s, u""_s}));
    EXPECT_EQ(entry->specification(), spec);
    EXPECT_EQ(spec->entry(u""_s)->type(), SpecificationEntryType::Chapter);
    EXPECT_TRUE(spec->entry(u"T1"_s)->index().empty());
}

TEST_F(MapReader, RefusesBadBooleansAndKeepsWhatStoodBefore)
{
    const auto spec = Specification::make<Specification>();
    const auto error =
        errorOf([&] { spec->loadMetadata(map("", "id='A' nopreviews='2' revision='7'"), dtd); });
    EXPECT_EQ(error.kind, Kind::InvalidValue);
    EXPECT_EQ(error.message, u"Invalid boolean value: 2. Expected 1 or 0");
    EXPECT_TRUE(spec->allowsPreviews());
    EXPECT_EQ(spec->identifier(), u"A");
    EXPECT_EQ(spec->title(), u"");
}

TEST_F(MapReader, SaysWhatTheMetadataLack)
{
    const auto read = [&](const QByteArray &text) {
        return errorOf([&] { Specification::make<Specification>(write(u"m.xml"_s, text), dtd); });
    };
    EXPECT_EQ(read("<spec><name/></spec>").message, u"Root element has no attributes.");
    EXPECT_EQ(read("<spec><name/></spec>").kind, Kind::InvalidAttribute);
    EXPECT_EQ(read("<spec id=''> </spec>").message, u"Root element has no children.");
    EXPECT_EQ(read("<spec id=''><toc/></spec>").message, u"No name element found.");
    EXPECT_EQ(read("<spec id=''><name/><auxfiles><file type=''/></auxfiles></spec>").message,
              u"Aux file requirement is missing one or more attributes.");
    EXPECT_EQ(errorOf([&] { Specification::make<Specification>(map("")); }).kind, Kind::NoDTDFound);
}

TEST_F(MapReader, SaysWhatIsWrongInTheTable)
{
    EXPECT_EQ(structureError("").message, u"No TOC element found.");
    EXPECT_EQ(structureError("<toc> </toc>").message, u"TOC element has no children.");
    EXPECT_EQ(structureError("<toc><!-- note --><entry/></toc>").message,
              u"Child of TOC element has inappropriate name nil.");
    EXPECT_EQ(structureError("<toc><x/></toc>").message,
              u"Child of TOC element has inappropriate name Optional(\"x\").");
    EXPECT_EQ(structureError("<toc><?entry x?></toc>").message,
              u"Could not parse child of TOC element.");
    EXPECT_EQ(structureError("<toc><entry label=\"a\"/></toc>").message,
              u"Entry <entry label=\"a\"/> has no children.");
    const auto unknown = structureError("<toc><entry><x>1</x></entry></toc>");
    EXPECT_EQ(unknown.kind, Kind::InvalidKey);
    EXPECT_EQ(unknown.message, u"Found unexpected key in entry: Optional(\"x\")");
    EXPECT_EQ(structureError("<toc><entry><related/></entry></toc>").message,
              u"Found unexpected key in entry: Optional(\"related\")");
    EXPECT_EQ(structureError("<toc><entry>text<name/></entry></toc>").message,
              u"Child node of entry has invalid name.");
}

TEST_F(MapReader, KeepsTheEntriesBeforeAFailure)
{
    const auto spec = Specification::make<Specification>(
        map("<toc><entry label='1'><name/></entry><x/></toc>"), dtd);
    EXPECT_NE(spec->entry(u"1"_s), nullptr) << "a look-up swallows the error";
    EXPECT_EQ(spec->entry(u"2"_s), nullptr);
}

TEST_F(MapReader, NamesANodeThatIsNoTable)
{
    class Reader : public Specification
    {
    public:
        using Specification::parseXMLEntries;
    };
    const HostXMLElement node = HostXMLElement::element(u"tocs"_s, u"a<b"_s);
    const auto spec = Specification::make<Reader>();
    EXPECT_EQ(errorOf([&] { spec->parseXMLEntries(node); }).message,
              u"Node <tocs>a&lt;b</tocs> has invalid name Optional(\"tocs\").");
}

TEST_F(MapReader, AsksDerivedClassesForTheirElements)
{
    class Entry : public SpecificationEntry
    {
    public:
        using SpecificationEntry::SpecificationEntry;
        QString link;
    };
    class Reader : public Specification
    {
    public:
        EntryClass entryClass() const override { return EntryClass::of<Entry>(); }

    protected:
        bool parseXMLEntryChild(const HostXMLNode &node, SpecificationEntry &entry) override
        {
            if (node.name() != u"internal")
                return Specification::parseXMLEntryChild(node, entry);
            dynamic_cast<Entry &>(entry).link = node.stringValue().value_or(QString());
            return true;
        }
    };
    const auto spec = Specification::make<Reader>(
        map("<toc><entry label='1'><name>N</name><internal>outline:N</internal></entry></toc>"),
        dtd);
    const auto entry = std::dynamic_pointer_cast<Entry>(spec->entry(u"1"_s));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->link, u"outline:N");
    EXPECT_EQ(entry->title(), u"N");
}

TEST_F(MapReader, RefusesReferencesThatEndAProcess)
{
    for (const QByteArray reversed : {"spec://1/A/2/7/3", "spec://1/*/*/7/-3"}) {
        const auto spec = Specification::make<Specification>();
        const auto load = [&](const QByteArray &toc) {
            return errorOf([&] { spec->loadStructure(map("<toc>" + toc + "</toc>"), dtd); });
        };
        const QByteArray item = "<related><item>" + reversed + "</item></related>";
        EXPECT_EQ(load("<entry label='1' type='section'><name>x</name>" + item + "</entry>").kind,
                  Kind::InvalidValue);
        EXPECT_EQ(
            load("<entry label='" + reversed + "' type='section'><name>x</name></entry>").kind,
            Kind::InvalidValue);
        EXPECT_EQ(load("<entry label='1/*/*/7/3' type='section'><name>x</name></entry>").kind,
                  Kind::InvalidValue);
    }
}
