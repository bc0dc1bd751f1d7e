// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <support/MapBuilder.h>

namespace Tavrin::Testing
{

class EntryFinderTest : public testing::Test
{
protected:
    void addMap(const QString &name, const std::vector<MapEntry> &entries)
    {
        MapBuilder map(name, u"1"_s);
        map.title(u"The "_s + name);
        for (const MapEntry &entry : entries)
            map.entry(entry);
        manager.registerSpecification(map.write(files, name + u".xml"_s), files.url(u"spec.dtd"_s));
    }
    static MapEntry section(const QString &number, const QString &title,
                            const QStringList &keywords = {})
    {
        return {.label = number, .index = number, .name = title, .keywords = keywords};
    }
    std::vector<std::string> suggested(const QString &text, std::size_t limit = 10)
    {
        std::vector<std::string> result;
        for (const auto &hit : finder.suggestions(text, limit)) {
            result.push_back((hit.entry->specification()->identifier() + u' ' + hit.entry->label() +
                              u": "_s + description(hit))
                                 .toStdString());
        }
        return result;
    }

    TemporaryFiles files;
    SpecificationManager manager;
    EntryFinder finder{manager};
};

TEST_F(EntryFinderTest, SuggestsWhatIsReferredToThenWhatHoldsTheWords)
{
    addMap(u"alpha"_s, {section(u"2"_s, u"Limits"_s), section(u"3.2"_s, u"Two Limits"_s),
                        section(u"7"_s, u"Scope"_s, {u"rim"_s, u"limit"_s})});
    addMap(u"beta"_s, {section(u"2"_s, u"Other limits"_s)});
    EXPECT_THAT(suggested(u"§ 2"_s, 1), ElementsAre("alpha 2: reference"));
    EXPECT_THAT(suggested(u"limit"_s),
                testing::UnorderedElementsAre("alpha 2: title", "alpha 3.2: title",
                                              "alpha 7: keyword limit", "beta 2: title"));
    EXPECT_EQ(suggested(u"limit"_s).back(), "beta 2: title") << "one specification after the other";
    EXPECT_EQ(suggested(u"limit"_s, 2).size(), 2U);
    EXPECT_THAT(suggested(u"2"_s).front(), "alpha 2: reference");
    EXPECT_THAT(suggested(u"  "_s), IsEmpty());
    EXPECT_THAT(suggested(u"spec://2/beta/*/9/3"_s), IsEmpty()) << "lines that end too early";

    manager.setPrimarySpecification(manager.specifications().back());
    EXPECT_EQ(suggested(u"limit"_s).front(), "beta 2: title") << "the primary comes first";
    finder.setPreferred(manager.specifications().front());
    EXPECT_EQ(suggested(u"2"_s).front(), "alpha 2: reference") << "what is preferred before it";
    EXPECT_EQ(finder.resolve(u"2"_s).front().entries.front()->specification(), finder.preferred());
}

TEST_F(EntryFinderTest, SeesEntriesThatCome)
{
    addMap(u"alpha"_s, {section(u"2"_s, u"Limits"_s)});
    EXPECT_THAT(finder.resolve(u"§ 3"_s).front().entries, IsEmpty());
    const auto specification = manager.primarySpecification();
    specification->add(std::make_shared<SpecificationEntry>(
        specification, u"new"_s, u"New"_s, SpecificationEntryType::Section, std::vector{3}));
    ASSERT_EQ(finder.resolve(u"§ 3"_s).front().entries.size(), 1U);
    addMap(u"beta"_s, {section(u"9"_s, u"More"_s)});
    EXPECT_EQ(finder.resolve(u"Clause 9"_s).front().entries.size(), 1U);
}

} // namespace Tavrin::Testing
