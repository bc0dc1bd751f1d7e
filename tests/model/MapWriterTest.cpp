// SPDX-License-Identifier: Apache-2.0
#include "MapFixture.h"

using Type = SpecificationEntryType;

namespace
{

class MapWriter : public MapFixture
{
protected:
    MapWriter()
    {
        spec->setTitle(u"A >< B & \"C\""_s);
        spec->setIdentifier(u"id"_s);
        add(u"t"_s, Type::Table, {3, 7}, u"Table"_s);
        add(u"two"_s, Type::Chapter, {2}, u"Second\u0001"_s);
        const auto entry = add(u"one\n<1>"_s, Type::Section, {1, 2}, u"First 'é' 𝔘"_s);
        entry->setKeywords({u"well-known"_s, u"plain"_s});
        entry->setRelatedEntries({u"two"_s, u"spec://t"_s});
        add(u"f"_s, Type::Figure, {}, u""_s);
    }

    std::shared_ptr<SpecificationEntry> add(const QString &label, Type type,
                                            const std::vector<int> &index, const QString &title)
    {
        auto entry = std::make_shared<SpecificationEntry>(spec, label, title, type, index);
        spec->add(entry);
        return entry;
    }

    std::shared_ptr<Specification> spec = Specification::make<Specification>();
};

QStringList labels(const Specification &specification)
{
    QStringList result;
    for (const auto &entry : specification.entries())
        result.append(entry->label());
    return result;
}

} // namespace

TEST_F(MapWriter, WritesWhatTheReaderReadsBack)
{
    const QUrl file = write(u"out.xml"_s, spec->writeSpecToXMLString({}).toUtf8());
    const auto twin = Specification::make<Specification>(file, shippedDTD());
    twin->loadStructure();
    EXPECT_EQ(twin->title(), spec->title());
    EXPECT_EQ(labels(*twin), (QStringList{u"one\n<1>"_s, u"two"_s, u"f"_s, u"t"_s}));
    const auto entry = twin->entry(u"one\n<1>"_s);
    EXPECT_EQ(entry->title(), u"First 'é' 𝔘");
    EXPECT_EQ(entry->type(), Type::Section);
    EXPECT_EQ(entry->index(), (std::vector<int>{1, 2}));
    EXPECT_EQ(entry->keywords(), (QStringList{u"well"_s, u"known"_s, u"plain"_s}));
    EXPECT_EQ(entry->relatedEntries(), (QStringList{u"two"_s, u"spec://t"_s}));
    EXPECT_EQ(twin->entry(u"two"_s)->title(), u"Second") << "XML has no place for U+0001";
    EXPECT_TRUE(twin->entry(u"f"_s)->index().empty());
    const QUrl again = write(u"again.xml"_s, twin->writeSpecToXMLString({}).toUtf8());
    const auto third = Specification::make<Specification>(again, dtd);
    third->loadStructure();
    EXPECT_EQ(third->writeSpecToXMLString({}), twin->writeSpecToXMLString({}));
}

TEST_F(MapWriter, PutsOneElementOnALine)
{
    const QStringList lines = spec->writeSpecToXMLString({}).split(u'\n');
    EXPECT_EQ(lines[0], u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    EXPECT_THAT(lines[1], Begins(u"<spec id=\"id\""));
    EXPECT_EQ(lines.mid(2, 4),
              (QStringList{u"<auxfiles/>"_s, u"<name>A &gt;&lt; B &amp; \"C\"</name>"_s,
                           u"<shortname>A &gt;&lt; B &amp; \"C\"</shortname>"_s, u"<toc>"_s}));
    const qsizetype table = lines.indexOf(u"<entry label=\"t\" type=\"table\">"_s);
    EXPECT_EQ(lines.mid(table + 1, 3),
              (QStringList{u"<index>3-7</index>"_s, u"<name>Table</name>"_s, u"</entry>"_s}));
}

TEST_F(MapWriter, CarriesTheDTDAlongWhenGivenOne)
{
    write(u"part.mod"_s, "<!ENTITY % text '(#PCDATA)'><!ENTITY % more '%text;'>");
    const QUrl modular = write(
        u"modular.dtd"_s, "<!ENTITY % part SYSTEM 'part.mod'>%part;" +
                              MapBuilder::grammar()
                                  .mid(MapBuilder::grammar().indexOf("<!ELEMENT"))
                                  .replace("<!ELEMENT name (#PCDATA)>", "<!ELEMENT name %more;>"));
    const QUrl file = write(u"out.xml"_s, spec->writeSpecToXMLString(modular).toUtf8());
    const auto twin = Specification::make<Specification>(file);
    EXPECT_NE(twin->entry(u"one\n<1>"_s), nullptr);

    EXPECT_EQ(hostErrorOf([&] {
                  spec->writeSpecToXMLString(QUrl::fromLocalFile(u"/nowhere/spec.dtd"_s));
              }).kind,
              HostXMLError::Kind::BadDTD);
}

TEST_F(MapWriter, LosesRequirementsAndRefusesToReadAnEmptyTable)
{
    const auto empty = Specification::make<Specification>(
        map("<auxfiles><file type='pdf' verifier='a'/></auxfiles>"), dtd);
    ASSERT_EQ(empty->auxiliaryFileRequirements().size(), 1U);
    const QUrl file = write(u"out.xml"_s, empty->writeSpecToXMLString({}).toUtf8());
    const auto twin = Specification::make<Specification>(file, dtd);
    EXPECT_TRUE(twin->auxiliaryFileRequirements().empty());
    EXPECT_EQ(errorOf([&] { twin->loadStructure(); }).message, u"TOC element has no children.");
}
