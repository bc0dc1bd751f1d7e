// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/model/ReferenceResolver.h>
#include <Tavrin/model/Specification.h>

using Type = SpecificationEntryType;

namespace
{

/// A specification with sections 1 to 3 and three below each, and two figures and tables of
/// which one shares its number with a section.
class References : public testing::Test
{
protected:
    References()
    {
        for (int chapter = 1; chapter <= 3; ++chapter) {
            add(Type::Chapter, {chapter}, QString::number(chapter));
            for (int section = 1; section <= 3; ++section)
                add(Type::Section, {chapter, section}, u"%1.%2"_s.arg(chapter).arg(section));
        }
        add(Type::Figure, {3, 7}, u"pipeline"_s);
        add(Type::Figure, {2, 1}, u"overview"_s);
        add(Type::Table, {2, 1}, u"limits"_s);
        add(Type::Table, {2, 2}, u"units"_s);
        add(Type::Section, {}, u"Annex B"_s);
    }

    void add(Type type, const std::vector<int> &index, const QString &label)
    {
        specification->add(std::make_shared<SpecificationEntry>(
            specification, label, u"Title of "_s + label, type, index));
    }

    /// Each reference with the labels it leads to: "Table 2.2>units".
    QStringList resolved(const QString &text) const
    {
        QStringList result;
        for (const auto &reference : ReferenceResolver(*specification).resolve(text)) {
            QStringList labels;
            for (const auto &entry : reference.entries)
                labels.append(entry->label());
            result.append(reference.written + u'>' + labels.join(u','));
        }
        return result;
    }

    QStringList leadsTo(const QString &text) const
    {
        QStringList result;
        for (const auto &reference : ReferenceResolver(*specification).resolve(text)) {
            for (const auto &entry : reference.entries)
                result.append(entry->label());
        }
        return result;
    }

    std::shared_ptr<Specification> specification = Specification::make<Specification>();
};

} // namespace

TEST_F(References, AreFoundHoweverTheyAreWritten)
{
    for (const QString &text : {u"§ 2.1"_s, u"§2.1"_s, u"Sec. 2.1"_s, u"section 2.1"_s,
                                u"SECTION 2-1"_s, u"Clause 2.1"_s, u"  2.1 "_s, u"2.1."_s})
        EXPECT_EQ(leadsTo(text), QStringList{u"2.1"_s}) << text.toStdString();
    for (const QString &text : {u"Fig. 3-7"_s, u"FIGURE 3.7"_s, u"figure 3-7"_s, u"Fig 3.7"_s})
        EXPECT_EQ(leadsTo(text), QStringList{u"pipeline"_s}) << text.toStdString();
    EXPECT_EQ(leadsTo(u"Chapter 3"_s), QStringList{u"3"_s});
    EXPECT_EQ(leadsTo(u"Tbl. 2.2"_s), QStringList{u"units"_s});
}

TEST_F(References, WithoutAKindAreASectionsBeforeAFigures)
{
    EXPECT_EQ(leadsTo(u"2.1"_s), QStringList{u"2.1"_s});
    EXPECT_EQ(leadsTo(u"Figure 2.1"_s), QStringList{u"overview"_s});
    EXPECT_EQ(leadsTo(u"Table 2-1"_s), QStringList{u"limits"_s});
    EXPECT_EQ(leadsTo(u"3.7"_s), QStringList{u"pipeline"_s}) << "no section has the number";
}

TEST_F(References, ComeInListsAndRanges)
{
    EXPECT_EQ(resolved(u"Tables 2.1 and 2.2"_s),
              (QStringList{u"Tables 2.1>limits"_s, u"Tables 2.2>units"_s}));
    EXPECT_EQ(leadsTo(u"1.1-1.3"_s), (QStringList{u"1.1"_s, u"1.2"_s, u"1.3"_s}));
    EXPECT_EQ(leadsTo(u"Sections 1.3 – 2.1"_s), (QStringList{u"1.3"_s, u"2.1"_s}));
}

TEST_F(References, StayUnknownRatherThanNearlyRight)
{
    EXPECT_TRUE(leadsTo(u"2.4"_s).isEmpty());
    EXPECT_TRUE(leadsTo(u"2.1.1"_s).isEmpty());
    EXPECT_TRUE(leadsTo(u"Table 3.7"_s).isEmpty());
    EXPECT_TRUE(leadsTo(u"Figure 22"_s).isEmpty());
    EXPECT_TRUE(resolved(u"no reference at all"_s).isEmpty());
    EXPECT_TRUE(resolved(QString()).isEmpty());
    EXPECT_TRUE(resolved(QString(1 << 20, u'1')).size() <= 1) << "a megabyte of digits";
}
