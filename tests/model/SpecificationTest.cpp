// SPDX-License-Identifier: Apache-2.0
#include "MapFixture.h"

#include <algorithm>
#include <random>
#include <typeindex>

using Type = SpecificationEntryType;

namespace
{

using EntryPtr = Specification::EntryPtr;

class Model : public MapFixture
{
protected:
    EntryPtr add(const QString &label, Type type = Type::Section,
                 const std::vector<int> &index = {1}, const QString &title = u"T"_s)
    {
        auto entry = std::make_shared<SpecificationEntry>(spec, label, title, type, index);
        spec->add(entry);
        return entry;
    }

    std::shared_ptr<Specification> spec = Specification::make<Specification>();
};

/// The literal look-up: an exact key, else the first that is equal in lower case.
EntryPtr naiveLookUp(const std::vector<std::pair<QString, EntryPtr>> &entries, const QString &text)
{
    for (const auto &[key, entry] : entries) {
        if (key == text)
            return entry;
    }
    for (const auto &[key, entry] : entries) {
        if (key.toLower() == text.toLower())
            return entry;
    }
    return nullptr;
}

/// Accepts PDF names only, and notes what it is asked.
class Recogniser : public Specification
{
public:
    QStringList asked;

    bool doesAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement) override
    {
        asked.append(requirement.verifier);
        return url.fileName() == requirement.verifier;
    }
    bool assignAuxiliaryFile(const QUrl &url, const AuxiliaryFileRequirement &requirement) override
    {
        return doesAuxiliaryFile(url, requirement);
    }
};

} // namespace

TEST_F(Model, PrintsEntriesByKind)
{
    const auto section = add(u"4.2.1"_s, Type::Section, {4, 2, 1}, u"Scope"_s);
    EXPECT_EQ(section->indexString(), u"Section 4.2.1");
    EXPECT_EQ(section->outlineTitle(), u"4.2.1 Scope");
    EXPECT_EQ(section->displayTitle(), u"Section 4.2.1 Scope");
    EXPECT_EQ(add(u"f"_s, Type::Figure, {3, 7})->indexString(), u"Figure 3-7");
    EXPECT_EQ(add(u"e"_s, Type::Table, {})->outlineTitle(), u" T");
    EXPECT_EQ(add(u"n"_s, Type::Table, {})->indexString(), u"Table ");
    section->setKeywords({u"k"_s});
    EXPECT_EQ(section->searchableItems(),
              (QStringList{u"Scope"_s, u"Scope"_s, u"Section 4.2.1"_s, u"k"_s}));
}

TEST_F(Model, ShowsRelatedEntriesOnlyIfThereAreSome)
{
    const auto entry = add(u"4.2"_s, Type::Section, {4, 2}, u"Scope"_s);
    EXPECT_EQ(entry->displayItems().size(), 2U);
    entry->setRelatedEntries({u"b"_s, u"a"_s});
    spec.reset();
    EXPECT_EQ(entry->specification(), nullptr);
    const auto rows = entry->bridgedDisplayItems();
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0]->label(), u"Section");
    EXPECT_EQ(rows[0]->objectValue().toString(), u"4.2 Scope");
    EXPECT_EQ(rows[1]->label(), u"Label");
    EXPECT_EQ(rows[2]->label(), u"Related");
    EXPECT_EQ(rows[2]->objectValue().toString(), u"b, a");
    EXPECT_EQ(entry->copy()->relatedEntries(), entry->relatedEntries());
}

TEST_F(Model, KeepsTheFirstEntryOfALabelUnderTheLabelItHad)
{
    const auto first = add(u"1"_s);
    add(u"1"_s);
    EXPECT_EQ(spec->entryCount(), 1);
    EXPECT_EQ(spec->entry(u"1"_s), first);
    const auto other = add(u"2"_s);
    first->setLabel(u"2"_s);
    spec->remove(*first);
    EXPECT_EQ(spec->entry(u"1"_s), first);
    EXPECT_EQ(spec->entry(u"2"_s), nullptr) << "removed by label, whatever object is there";
    EXPECT_EQ(spec->newEntry()->type(), Type::Chapter);
    EXPECT_EQ(spec->entryCount(), 1);
}

TEST_F(Model, FillsTheShortTitleFromTheFirstTitleOnly)
{
    spec->setTitle(u"Long"_s);
    spec->setTitle(u"Longer"_s);
    EXPECT_EQ(spec->shortTitle(), u"Long");
}

TEST_F(Model, FindsEntriesAsALiteralSearchWould)
{
    std::mt19937 random(7);
    const QStringList labels{u"a"_s, u"A"_s, u"ab"_s, u"aB"_s, u"AB"_s, u"É"_s, u"é"_s,
                             u"İ"_s, u"i̇"_s, u"ß"_s,  u""_s,   u"SS"_s, u"Σ"_s, u"ς"_s};
    std::uniform_int_distribution<qsizetype> anyLabel(0, labels.size() - 1);
    EntryTable table;
    std::vector<std::pair<QString, EntryPtr>> twin;
    for (int step = 0; step < 4000; ++step) {
        const QString &label = labels[anyLabel(random)];
        const auto known = std::find_if(twin.begin(), twin.end(),
                                        [&](const auto &pair) { return pair.first == label; });
        if (random() % 2 == 0) {
            const auto entry = spec->newEntry();
            entry->setLabel(label);
            EXPECT_EQ(table.insert(entry), known == twin.end());
            if (known == twin.end())
                twin.emplace_back(label, entry);
        } else {
            table.remove(label);
            if (known != twin.end())
                twin.erase(known);
        }
        const QString &text = labels[anyLabel(random)];
        const EntryPtr exact = table.value(text);
        EXPECT_EQ(exact ? exact : table.valueIgnoringCase(text), naiveLookUp(twin, text));
        EXPECT_TRUE(std::equal(table.begin(), table.end(), twin.begin(), twin.end(),
                               [](const EntryPtr &a, const auto &b) { return a == b.second; }));
    }
}

TEST_F(Model, OrdersTextBeforeFiguresBeforeTables)
{
    std::vector<EntryPtr> entries;
    for (const Type type : {Type::Section, Type::Chapter, Type::Figure, Type::Table}) {
        for (const auto &index : {std::vector<int>{}, {1}, {1, -1}, {1, 2}, {2}})
            entries.push_back(add(QString::number(entries.size()), type, index));
    }
    for (const auto &a : entries) {
        EXPECT_FALSE(entryPrecedes(*a, *a));
        for (const auto &b : entries) {
            EXPECT_FALSE(entryPrecedes(*a, *b) && entryPrecedes(*b, *a));
            const bool aIsText = isTextual(a->type());
            if (aIsText && !isTextual(b->type())) {
                EXPECT_TRUE(entryPrecedes(*a, *b));
            } else if (aIsText) {
                EXPECT_EQ(entryPrecedes(*a, *b), a->index() < b->index());
            }
            for (const auto &c : entries)
                EXPECT_TRUE(!entryPrecedes(*a, *b) || !entryPrecedes(*b, *c) ||
                            entryPrecedes(*a, *c));
        }
    }
}

TEST_F(Model, LoadsTheTableOnTheFirstLookUpOnceTheFilesAreThere)
{
    const auto lazy = Specification::make<Specification>(
        map("<auxfiles><file type='x' verifier=''/></auxfiles>"
            "<toc><entry label='Abc'><name>N</name></entry></toc>"),
        dtd);
    EXPECT_EQ(lazy->entry(u"Abc"_s), nullptr);
    EXPECT_EQ(lazy->entryCount(), 0);
    lazy->auxiliaryFileRequirements()[0]->fileURL = dtd;
    EXPECT_EQ(lazy->entry(u"aBC"_s)->title(), u"N");
    lazy->loadMetadata(*lazy->specMapURL(), dtd);
    EXPECT_EQ(lazy->entryCount(), 0);
    EXPECT_NE(lazy->entry(u"Abc"_s), nullptr);
}

TEST_F(Model, OffersFilesToOpenRequirementsInOrder)
{
    const QUrl b = QUrl::fromLocalFile(u"/x/b"_s);
    const auto recogniser = Specification::make<Recogniser>(
        map("<auxfiles><file type='pdf' verifier='a'/><file type='pdf' verifier='b'/></auxfiles>"),
        dtd);
    EXPECT_TRUE(recogniser->isAuxiliaryFileCompatible(b));
    EXPECT_TRUE(recogniser->claimAuxiliaryFile(b));
    EXPECT_EQ(recogniser->auxiliaryFileRequirements()[1]->fileURL, b);
    EXPECT_FALSE(recogniser->areFileRequirementsSatisfied());
    recogniser->asked.clear();
    EXPECT_FALSE(recogniser->isAuxiliaryFileCompatible(b)) << "what is bound takes no part";
    EXPECT_EQ(recogniser->asked, QStringList{u"a"_s});
    EXPECT_FALSE(spec->claimAuxiliaryFile(b));
    EXPECT_TRUE(spec->areFileRequirementsSatisfied());
}

TEST_F(Model, ChoosesTheClassByWhatTheMapAsksFor)
{
    class First : public Recogniser
    {
    };
    class Last : public Recogniser
    {
    };
    const auto mapWith = [&](const QByteArray &id, const QByteArray &requirements) {
        return map("<auxfiles>" + requirements + "</auxfiles>", "id='" + id + "'");
    };
    const auto classOf = [&](const QUrl &file) {
        const auto made = Specification::withStructureFile(file, dtd);
        const Specification &object = *made;
        return std::type_index(typeid(object));
    };
    const QByteArray pdf = "<file type='pdf' verifier=''/>";
    Specification::registerSpecType(SpecType::of<First>(), true, [](const Specification &probe) {
        return probe.identifier() == u"first";
    });
    Specification::registerSpecType(SpecType::of<Last>(), false, [](const Specification &probe) {
        return probe.auxiliaryFileRequirements().size() < 2 && !probe.variant().isNull();
    });
    EXPECT_EQ(classOf(mapWith("first", pdf)), typeid(First));
    const auto builtin = classOf(mapWith("second", pdf));
    EXPECT_NE(builtin, typeid(Last));
    EXPECT_NE(builtin, typeid(Specification));
    EXPECT_EQ(classOf(mapWith("second", pdf + pdf)), typeid(Specification));
}

TEST_F(Model, ConfiguresAnObjectBeforeItReads)
{
    bool sawNothing = false;
    const auto type = SpecType::of<Recogniser>(
        [&](Recogniser &object) { sawNothing = object.title().isEmpty(); });
    EXPECT_EQ(type.make(map(""), dtd)->title(), u"Language");
    EXPECT_TRUE(sawNothing);
}
