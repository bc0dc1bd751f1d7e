// SPDX-License-Identifier: Apache-2.0
#include "AuditFixture.h"

namespace
{

class AuditReporting : public AuditFixture
{
protected:
    static QString shares(const AuditReport &report)
    {
        QStringList result;
        for (const AuditReport::Chapter &chapter : report.chapters)
            result += u"%1/%2"_s.arg(chapter.share.covered).arg(chapter.share.all);
        return result.join(u' ');
    }
    QString nearest(const QString &reference) const
    {
        const AuditReport audit = report({reference});
        if (audit.unknown.size() != 1)
            return u"known"_s;
        return audit.unknown[0].nearest ? audit.unknown[0].nearest->label() : u"nothing"_s;
    }
};

} // namespace

TEST_F(AuditReporting, FindsWhatPeopleWriteInDocumentOrder)
{
    bind();
    const QStringList written{u"§ A.1"_s,    u"Fig. 2.1"_s,  u"spec://2.1/engine/7"_s,
                              u"1.2"_s,      u"1.1 - 1.2"_s, u"2.1"_s,
                              u"chapter 2"_s};
    const AuditReport audit = report(written);
    EXPECT_EQ(cited(audit),
              (QStringList{u"1.1"_s, u"1.2"_s, u"2"_s, u"2.1"_s, u"Figure 2-1"_s, u"A.1"_s}));
    EXPECT_EQ(audit.referenceCount, 7);
    EXPECT_EQ(audit.citedEntries(), 6);
    EXPECT_EQ(audit.citations[1].references, references({u"1.2"_s, u"1.1 - 1.2"_s}));
    EXPECT_EQ(audit.citations[3].references, references({u"spec://2.1/engine/7"_s, u"2.1"_s}));
    EXPECT_TRUE(audit.unknown.empty());

    QStringList reversed = written;
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_EQ(cited(report(reversed)), cited(audit));
}

TEST_F(AuditReporting, CountsWhatIsCitedOrBelow)
{
    bind();
    EXPECT_EQ(shares(report({})), u"0/2 0/3 0/1"_s);
    EXPECT_EQ(shares(report({u"1.1"_s})), u"1/2 0/3 0/1"_s);
    EXPECT_EQ(shares(report({u"2"_s})), u"0/2 3/3 0/1"_s) << "all that lies below a chapter";
    EXPECT_EQ(shares(report({u"2.1.1"_s})), u"0/2 2/3 0/1"_s) << "not what lies above";
    EXPECT_EQ(shares(report({u"2.1"_s})), u"0/2 3/3 0/1"_s);
    EXPECT_EQ(shares(report({u"Figure 2-1"_s})), u"0/2 1/3 0/1"_s);
    const AuditReport audit = report({u"2.1"_s, u"1.2"_s, u"2.1.1"_s});
    EXPECT_EQ(audit.coverage, (AuditShare{4, 6}));
    EXPECT_EQ(audit.coverage.percent(), 66.6);
    EXPECT_EQ(audit.chapters[1].cited, 2);
    EXPECT_EQ(audit.chapters[1].title(), u"2 Motion"_s);

    EXPECT_EQ(report({u"spec://2.1/*/*/0/2"_s}).coverage.covered, 3)
        << "lines count as their entry";
    EXPECT_EQ(report({u"spec://2.1/*/*/0/2"_s, u"2.1"_s, u"spec://2.1/*/*/2/3"_s}).citedEntries(),
              1);
}

TEST_F(AuditReporting, CountsAChapterWithoutContentByItself)
{
    addChapter(u"4"_s, u"Alone"_s, 4, 740);
    bind();
    EXPECT_EQ(shares(report({})), u"0/2 0/3 0/1 0/1"_s);
    EXPECT_EQ(shares(report({u"4"_s})), u"0/2 0/3 0/1 1/1"_s);
}

TEST_F(AuditReporting, KeepsFiguresInTheChapterOfTheirNumber)
{
    figure(u"Figure 1-1"_s, u"Moved on"_s, 2, 780)->setIndex({1, 1});
    figure(u"Figure 9-9"_s, u"Of nowhere"_s, 0, 700)->setIndex({9, 9});
    bind();
    const AuditReport audit = report({u"Figure 1-1"_s, u"2"_s, u"1"_s, u"Figure 9-9"_s});
    EXPECT_EQ(shares(audit), u"3/3 3/3 0/1 1/1"_s);
    EXPECT_EQ(cited(audit), (QStringList{u"1"_s, u"Figure 1-1"_s, u"2"_s, u"Figure 9-9"_s}));
    EXPECT_EQ(audit.chapters.back().entry, nullptr);
}

TEST_F(AuditReporting, GoesByNumbersWithoutADocument)
{
    const AuditReport audit = report({u"A.1"_s, u"Figure 2-1"_s, u"2.1.1"_s, u"1.1"_s});
    EXPECT_EQ(cited(audit), (QStringList{u"1.1"_s, u"2.1.1"_s, u"Figure 2-1"_s, u"A.1"_s}));
    EXPECT_EQ(shares(audit), u"1/2 2/3 1/1"_s);
}

TEST_F(AuditReporting, ListsUnknownReferencesByNameWithTheNearest)
{
    bind();
    const AuditReport audit = auditor().report({{u"sections 1.1 and 1.7"_s, u"REQ-1"_s, u"r:3"_s},
                                                {u"qqqqqqqq"_s, {}, {}},
                                                {u"spec://2.1/*/*/5/2"_s, {}, {}}});
    EXPECT_EQ(cited(audit), QStringList{u"1.1"_s});
    ASSERT_EQ(audit.unknown.size(), 3U);
    EXPECT_EQ(audit.unknown[0].written, u"sections 1.7"_s);
    EXPECT_EQ(audit.unknown[0].reference.location, u"r:3"_s);
    EXPECT_EQ(audit.unknown[0].nearest->label(), u"1.2"_s);
    EXPECT_EQ(audit.unknown[1].written, u"qqqqqqqq"_s);
    EXPECT_EQ(audit.unknown[1].nearest, nullptr);
    EXPECT_EQ(audit.unknown[2].written, u"spec://2.1/*/*/5/2"_s);

    EXPECT_EQ(nearest(u"2.1.7"_s), u"2.1.1"_s);
    EXPECT_EQ(nearest(u"§ 2.11"_s), u"2.1"_s);
    EXPECT_EQ(nearest(u"Fig. 2-9"_s), u"Figure 2-1"_s);
    EXPECT_EQ(nearest(u"Figrue 2-1"_s), u"Figure 2-1"_s);
    EXPECT_EQ(nearest(u"A1"_s), u"A.1"_s);
    EXPECT_EQ(nearest(u"spec://1.3/engine/7"_s), u"1.2"_s);
    EXPECT_EQ(nearest(u"speed"_s), u"2.1"_s) << "by its title";
    EXPECT_EQ(nearest(u"77"_s), u"nothing"_s);
    EXPECT_EQ(nearest(QString(100000, u'1')), u"nothing"_s);
}

TEST_F(AuditReporting, HoldsRequirementsAgainstWhatIsCited)
{
    bind();
    const AuditDemands demands{{u"2.*"_s, u"figure *"_s, u"1.?"_s, u"9.*"_s}, 66.7};
    const AuditReport audit = report({u"2.1"_s, u"1.1"_s, u"1.2"_s, u"Fig. 2-1"_s}, demands);
    ASSERT_EQ(audit.requirements.size(), 4U);
    EXPECT_EQ(labels(audit.requirements[0].missing), QStringList{u"2.1.1"_s})
        << "to lie below a cited entry is not to be cited";
    EXPECT_FALSE(audit.requirements[0].isMet());
    EXPECT_TRUE(audit.requirements[1].isMet());
    EXPECT_EQ(audit.requirements[2].matched, 2);
    EXPECT_TRUE(audit.requirements[2].isMet());
    EXPECT_FALSE(audit.requirements[3].isMet()) << "a pattern that matches nothing is a mistake";
    EXPECT_TRUE(audit.isCoverageMet());
    EXPECT_FALSE(audit.areDemandsMet());

    EXPECT_FALSE(report({u"2.1"_s, u"1.1"_s}, {{}, 66.7}).isCoverageMet());
    EXPECT_TRUE(report({u"2.1"_s, u"1.1"_s}, {{u"2.1"_s}, 66.6}).areDemandsMet());
}

TEST_F(AuditReporting, NamesRelatedEntries)
{
    specification->entry(u"1.1"_s)->setRelatedEntries(
        {u"spec://A.1/engine/*"_s, u"nowhere"_s, u"spec://1/*/*/3/1"_s, u"2.1"_s});
    bind();
    const auto related = report({u"1.1"_s}).citations.at(0).related;
    ASSERT_EQ(related.size(), 2U);
    EXPECT_EQ(related[0].title, u"Section A.1 Limits"_s);
    EXPECT_EQ(related[1].entry->label(), u"2.1"_s);
}
