// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QThreadPool>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <support/FinishTasks.h>

#include "AuditFixture.h"

namespace
{

class Auditor : public AuditFixture
{
protected:
    /// A page with sections below each other, from the top down, given in any order.
    QStringList addManySections(int count)
    {
        QStringList labels;
        for (int i = 0; i < count; ++i) {
            const QString label = u"S%1"_s.arg(i, 3, 10, QChar(u'0'));
            section(label, u"Title of %1"_s.arg(label), 4, 780 - 5 * i);
            labels.prepend(label);
        }
        return labels;
    }
    QByteArray rtf(const QString &name) const { return files.read(name); }

    SpecificationManager manager;
};

} // namespace

TEST_F(Auditor, MakesATable)
{
    auto other = Specification::make<Specification>();
    other->add(std::make_shared<SpecificationEntry>(
        other, u"far"_s, u"Elsewhere"_s, SpecificationEntryType::Table, std::vector<int>{7, 1}));
    manager.setSpecifications({specification, other});
    specification->entry(u"1.1"_s)->setRelatedEntries({u"2.1"_s, u"nowhere"_s, u"far"_s});
    bind();
    std::dynamic_pointer_cast<Entry>(specification->entry(u"1.2"_s))
        ->setSummaryText(StyledText(u"say “yes” or \"no\""_s));
    std::vector<double> progress;
    const auto rows =
        auditor().auditCSVComponents({u"1.1"_s, u"none"_s, u"Figure 2-1"_s, u"1.2"_s}, {}, {},
                                     [&](double done) { progress.push_back(done); });
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0], (QStringList{u"Reference"_s, u"Summary"_s, u"Related"_s, u"Label"_s}));
    EXPECT_EQ(rows[1][0], u"Section 1.1: Purpose"_s);
    EXPECT_EQ(rows[1][1], lines(u"Purpose"_s, 4).join(u'\n'));
    EXPECT_EQ(rows[1][2], u"Section 2.1: Speed\nTable 7-1: Elsewhere"_s);
    EXPECT_EQ(rows[1][3], u"1.1"_s);
    EXPECT_EQ(rows[2], QStringList(4)) << "an unknown reference";
    EXPECT_EQ(rows[3], (QStringList{u"Figure 2-1: Red"_s, u"n/a"_s, QString(), u"Figure 2-1"_s}));
    EXPECT_EQ(rows[4][1], u"say ''yes'' or ''no''"_s);
    EXPECT_EQ(progress, (std::vector<double>{0.25, 0.5, 0.75, 1}));
    EXPECT_EQ(auditor().auditCSVComponents({}).size(), 1U);
}

TEST_F(Auditor, WorksOnAnotherThread)
{
    auto other = Specification::make<Specification>();
    other->add(std::make_shared<SpecificationEntry>(
        other, u"far"_s, u"Elsewhere"_s, SpecificationEntryType::Table, std::vector<int>{7, 1}));
    manager.setSpecifications({specification, other});
    specification->entry(u"1.1"_s)->setRelatedEntries({u"spec://2.1/engine/7/3/0"_s, u"far"_s});
    bind();
    // A range of lines that ends before it begins would end the process if it was looked up.
    const QStringList labels{u"1.1"_s, u"spec://1.1/engine/7/3/0"_s, u"spec://1.1/engine/7/0/2"_s,
                             u"1.1"_s};
    const auto expected = auditor().auditCSVComponents(labels);
    EXPECT_EQ(expected[1][2], u"Table 7-1: Elsewhere"_s);
    EXPECT_EQ(expected[2], QStringList(4));
    EXPECT_EQ(expected[4], expected[1]);
    const PDFSpecAuditor detached = auditor().detached();
    manager.setSpecifications({});
    std::vector<PDFSpecAuditor::Row> rows;
    AuditReport report;
    startTask(backgroundPool(), [&] {
        rows = detached.auditCSVComponents(labels);
        report = detached.report(references(labels));
    });
    // As readers do meanwhile.
    for (int i = 0; i < 200; ++i)
        EXPECT_TRUE(specification->entry(u"spec://1.1/engine/7/%1/%2"_s.arg(i % 5).arg(i % 5 + 1)));
    finishTasks(backgroundPool());
    EXPECT_EQ(rows, expected);
    EXPECT_EQ(report.unknown.size(), 1U);
    EXPECT_EQ(report.citations.front().related.size(), 1U);
}

TEST_F(Auditor, StopsAtWhatTheUpdaterThrows)
{
    int asked = 0;
    EXPECT_THROW(auditor().auditCSVComponents({u"1.1"_s, u"1.2"_s}, {}, {},
                                              [&asked](double) {
                                                  ++asked;
                                                  throw std::runtime_error("enough");
                                              }),
                 std::runtime_error);
    EXPECT_EQ(asked, 1);
}

TEST_F(Auditor, AddsColumnsOfTheHost)
{
    const std::vector<QStringList> extra{{u"a"_s, u"b"_s}, {u"c"_s, QString()}};
    const auto unnamed = auditor().auditCSVComponents({u"none"_s, u"none"_s}, extra);
    EXPECT_EQ(unnamed[0].mid(4), QStringList(2));
    EXPECT_EQ(unnamed[2], QStringList(4) + extra[1]);
    EXPECT_EQ(auditor().auditCSV({u"none"_s}, extra, QStringList{u"X"_s, u"Y"_s}),
              u"\"Reference\",\"Summary\",\"Related\",\"Label\",\"X\",\"Y\"\n"
              "\"<no value>\",\"<no value>\",\"<no value>\",\"<no value>\",\"a\",\"b\""_s);
    EXPECT_EQ(auditor().auditCSV({u"none"_s}, extra).section(u'\n', 0, 0),
              u"\"Reference\",\"Summary\",\"Related\",\"Label\",\"<no value>\",\"<no value>\""_s);
}

TEST_F(Auditor, ReportsThePositionsFrom60To119InDocumentOrder)
{
    QStringList labels = addManySections(125);
    labels += {u"unknown"_s, u"alsoUnknown"_s};
    bind();
    files.write(u"audit.rtf"_s, "what was there before, and is longer than nothing");
    testing::internal::CaptureStdout();
    CompletionWaiter waiter;
    auditor().writeAuditRTF(labels, files.url(u"audit.rtf"_s), waiter.completion());
    EXPECT_EQ(waiter.wait(), true);
    EXPECT_TRUE(waiter.isOnMainThread);
    const auto said = QString::fromStdString(testing::internal::GetCapturedStdout());
    QStringList expected;
    for (int i = 60; i < 120; ++i)
        expected += u"Auditing S%1..."_s.arg(i, 3, 10, QChar(u'0'));
    EXPECT_EQ(said.split(u'\n', Qt::SkipEmptyParts), expected);
    const QByteArray report = rtf(u"audit.rtf"_s);
    EXPECT_TRUE(report.startsWith("{\\rtf1"));
    EXPECT_EQ(report.count("Title of S"), 60);
    EXPECT_FALSE(report.contains("S059") || report.contains("S120"));
    EXPECT_LT(report.indexOf("S060"), report.indexOf("S061"));
    EXPECT_TRUE(report.contains("page 4, at (72.0, 480.0)")) << "of position 60";
}

TEST_F(Auditor, ReportsPicturesAndWhatIsMissing)
{
    QStringList labels = addManySections(119);
    section(u"lost"_s, u"Without a place"_s, 99, 0);
    bind();
    // The figure stands before all sections of the last page, the lost entry has no place at all.
    QStringList references{u"lost"_s};
    for (int i = 0; i < 60; ++i)
        references += u"1"_s;
    references += u"Figure 2-1"_s;
    references += labels.mid(0, 58);
    CompletionWaiter waiter;
    testing::internal::CaptureStdout();
    auditor().writeAuditRTF(references, files.url(u"audit.rtf"_s), waiter.completion());
    EXPECT_EQ(waiter.wait(), true);
    testing::internal::GetCapturedStdout();
    const QByteArray report = rtf(u"audit.rtf"_s);
    EXPECT_EQ(report.count("\\pngblip"), 1);
    EXPECT_TRUE(report.contains("Index: }") || report.contains("Index: "));
    EXPECT_TRUE(report.contains("Figure 2-1\\par"));
    EXPECT_TRUE(report.contains("error loading destination (destination:99,72,0)"));
}

TEST_F(Auditor, TrapsWhenThereIsNotEnoughToReport)
{
    // Other tests have left threads behind, so the dying process begins anew.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const QStringList labels = addManySections(119);
    bind();
    EXPECT_DEATH(
        {
            auditor().writeAuditRTF(labels, files.url(u"audit.rtf"_s), {});
            finishTasks(backgroundPool());
        },
        "needs 120 entries");
}

TEST_F(Auditor, SaysWhyAReportIsNotWritten)
{
    const QStringList labels = addManySections(120);
    bind();
    testing::internal::CaptureStdout();
    CompletionWaiter rtfWaiter;
    auditor().writeAuditRTF(labels, files.url(u"none/audit.rtf"_s), rtfWaiter.completion());
    EXPECT_EQ(rtfWaiter.wait(), false);
    testing::internal::GetCapturedStdout();
    EXPECT_TRUE(rtfWaiter.isOnMainThread);
    EXPECT_TRUE(messages().last().startsWith(u"Error writing audit: "_s));
    EXPECT_GT(messages().last().size(), u"Error writing audit: "_s.size());

    CompletionWaiter waiter;
    auditor().writeAudit(references({u"1"_s}), AuditFormat::HTML, files.url(), waiter.completion());
    EXPECT_EQ(waiter.wait(), false) << "a directory in the place of the file";
}

TEST_F(Auditor, WritesAnyListInTheBackground)
{
    bind();
    CompletionWaiter waiter;
    {
        const PDFSpecAuditor brief = auditor();
        brief.writeAudit(references({u"2.1"_s, u"7.7"_s}), AuditFormat::JSON,
                         files.url(u"audit.json"_s), waiter.completion());
    }
    EXPECT_EQ(waiter.wait(), true);
    EXPECT_EQ(files.read(u"audit.json"_s),
              written(report({u"2.1"_s, u"7.7"_s}), AuditFormat::JSON));
}

TEST_F(Auditor, LeavesTheFileAsItWasIfWritingFails)
{
    bind();
    files.write(u"audit.html"_s, "old");
    EXPECT_THROW(PDFSpecAuditor::write(report({u"1"_s, u"2"_s}), AuditFormat::HTML,
                                       files.url(u"audit.html"_s),
                                       [](double) { throw std::runtime_error("stopped"); }),
                 std::runtime_error);
    EXPECT_EQ(files.read(u"audit.html"_s), "old");
    EXPECT_EQ(QDir(files.path()).entryList(QDir::Files), QStringList{u"audit.html"_s});
}

TEST_F(Auditor, HasTheLooksOfTheReport)
{
    const PDFSpecAuditor one = auditor();
    EXPECT_EQ(one.headingAttributes().font, (TextFont{QString(), 14, 0}));
    EXPECT_EQ(one.subHeadingAttributes().font, (TextFont{QString(), 11, 0}));
    EXPECT_EQ(one.bodyAttributes(), one.subHeadingAttributes());
    EXPECT_EQ(one.bodyErrorAttributes().font, (TextFont{QString(), 11, TextFont::Bold}));
    EXPECT_GT(qRed(one.bodyErrorAttributes().foregroundColor.value()), 200);
    static_assert(!std::is_default_constructible_v<PDFSpecAuditor>);
}
