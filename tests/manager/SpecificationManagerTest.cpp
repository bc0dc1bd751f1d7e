// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/XMLError.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <support/MapBuilder.h>
#include <support/PDFBuilder.h>
#include <support/StandardErrorCapture.h>

namespace
{

class Manager : public testing::Test
{
protected:
    /// Writes a map with one entry besides those that all share.
    void writeMap(const QString &identifier, const QString &entry, bool withDTD = true)
    {
        MapBuilder map(identifier, u"1"_s);
        map.title(identifier)
            .entry({.label = entry, .name = u"of "_s + identifier})
            .entry({.label = u"shared"_s, .name = u"of "_s + identifier});
        map.write(files, identifier + u".xml"_s);
        if (withDTD)
            files.write(identifier + u".dtd"_s, MapBuilder::grammar());
    }

    QStringList order() const
    {
        QStringList identifiers;
        for (const auto &specification : manager.specifications())
            identifiers += specification->identifier();
        return identifiers;
    }

    TemporaryFiles files;
    SpecificationManager manager;
};

std::weak_ordering backwards(const Specification &a, const Specification &b)
{
    return b.identifier().compare(a.identifier()) <=> 0;
}

} // namespace

TEST_F(Manager, RegistersTheMapsOfADirectory)
{
    writeMap(u"b"_s, u"2"_s);
    writeMap(u"a"_s, u"1"_s);
    files.write(u"C.XML"_s, "not taken");
    files.write(u"d.txt"_s, "not taken");
    manager.loadSpecInformation(files.url());
    EXPECT_EQ(order(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(manager.primarySpecification(), manager.specifications().front());
    EXPECT_EQ(manager.primarySpecification()->entryCount(), 2) << "the primary's table is loaded";
    EXPECT_EQ(manager.specifications().back()->entryCount(), 0) << "that of the others is not";
    EXPECT_EQ(manager.entryWhere([](const auto &entry) { return entry.label() == u"2"; }), nullptr);
    ASSERT_TRUE(manager.entry(u"2"_s));
    EXPECT_EQ(manager.specifications().back()->entryCount(), 2);
    EXPECT_TRUE(manager.entryWhere([](const auto &entry) { return entry.label() == u"2"; }));
}

TEST_F(Manager, StopsAtTheFirstFaultyMap)
{
    writeMap(u"a"_s, u"1"_s);
    writeMap(u"b"_s, u"2"_s, false);
    writeMap(u"c"_s, u"3"_s);
    try {
        manager.loadSpecInformation(files.url());
        FAIL() << "b has no DTD";
    } catch (const XMLError &error) {
        EXPECT_EQ(error.kind, XMLError::Kind::NoDTDFound);
    }
    EXPECT_EQ(order(), QStringList{u"a"_s});
    EXPECT_THROW(manager.loadSpecInformation(files.url(u"none"_s)),
                 SpecificationManager::DirectoryError);
}

TEST_F(Manager, AsksThePrimaryFirst)
{
    writeMap(u"a"_s, u"1"_s);
    writeMap(u"b"_s, u"2"_s);
    manager.loadSpecInformation(files.url());
    EXPECT_EQ(manager.entry(u"shared"_s)->title(), u"of a"_s);
    manager.setPrimarySpecificationPredicate(
        [](const Specification &spec) { return spec.identifier() == u"b"; });
    EXPECT_EQ(manager.entry(u"SHARED"_s)->title(), u"of b"_s);
    EXPECT_EQ(manager.entry(u"spec://shared/a/1"_s)->title(), u"of a"_s);
    EXPECT_EQ(manager.entry(u"spec://shared/c/1"_s), nullptr);
    const auto onlyA = [](const Specification &spec) { return spec.identifier() == u"a"; };
    EXPECT_EQ(manager.entry(u"shared"_s, onlyA)->title(), u"of a"_s);
    EXPECT_EQ(manager.entry(u"2"_s, onlyA), nullptr);
    manager.setPrimarySpecificationPredicate([](const Specification &) { return false; });
    EXPECT_EQ(manager.primarySpecification(), nullptr);
    EXPECT_EQ(manager.entry(u"shared"_s)->title(), u"of a"_s) << "in list order without a primary";
    EXPECT_EQ(manager.specificationWhere(onlyA)->identifier(), u"a"_s);
}

TEST_F(Manager, KeepsTheOrderOfItsComparators)
{
    for (const QString &identifier : {u"a"_s, u"b"_s, u"c"_s})
        writeMap(identifier, identifier);
    manager.setSpecComparators(
        {[](const auto &, const auto &) { return std::weak_ordering::equivalent; }, backwards});
    manager.loadSpecInformation(files.url());
    EXPECT_EQ(order(), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(manager.primarySpecification()->identifier(), u"c"_s);
    manager.setSpecComparators({});
    EXPECT_EQ(order(), (QStringList{u"c"_s, u"b"_s, u"a"_s})) << "none leave the order as it is";
    manager.setBridgedSpecComparators({std::make_shared<SpecificationComparator>(
        [](const auto &a, const auto &b) { return backwards(b, a); })});
    EXPECT_EQ(order().front(), u"a"_s);
    EXPECT_EQ(manager.bridgedSpecComparators().size(), 1U);
    auto reversed = manager.specifications();
    std::reverse(reversed.begin(), reversed.end());
    manager.setSpecifications(reversed);
    EXPECT_EQ(order().front(), u"a"_s);
}

TEST_F(Manager, BindsFilesToWhatRecognisesThem)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"Sample Document"_s).text(72, 500, u"1 Scope"_s);
    MapBuilder map(u"sample"_s, u"1"_s);
    map.title(u"Sample"_s)
        .file(u"pdf"_s, u"Sample,Document,1,Scope"_s, u"0,0,612,792"_s)
        .entry({.label = u"1"_s, .name = u"Scope"_s, .internal = u"destination:0,72,512"_s});
    map.write(files, u"sample.xml"_s);
    files.write(u"sample.dtd"_s, MapBuilder::grammar());
    const StandardErrorCapture errors;
    manager.loadSpecInformation(files.url(), {files.write(u"s.pdf"_s, pdf.build())});
    const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(manager.entry(u"1"_s));
    ASSERT_TRUE(entry);
    ASSERT_TRUE(entry->destination());
    EXPECT_EQ(entry->destination()->point(), (Point{72, 512}));
}

TEST_F(Manager, KeepsAPrimaryWhoseTableIsFaulty)
{
    MapBuilder map(u"a"_s, u"1"_s);
    map.title(u"a"_s).entry({.label = u"1"_s, .name = u"One"_s});
    const QByteArray text = map.xml().replace("<entry", "<?entry data?><entry");
    files.write(u"spec.dtd"_s, MapBuilder::grammar());
    manager.registerSpecification(files.write(u"a.xml"_s, text), files.url(u"spec.dtd"_s));
    ASSERT_TRUE(manager.primarySpecification());
    EXPECT_EQ(manager.primarySpecification()->entryCount(), 0);
    EXPECT_EQ(manager.entry(u"1"_s), nullptr);
}
