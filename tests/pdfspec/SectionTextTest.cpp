// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/EntryExtractionError.h>

#include "ReadingFixture.h"

namespace
{

class SectionText : public ReadingFixture
{
protected:
    EntryExtractionError failure(const EntryPtr &entry)
    {
        try {
            LineLocations lines;
            specification->extractText(*entry, lines);
        } catch (const EntryExtractionError &error) {
            return error;
        }
        ADD_FAILURE() << "nothing was thrown";
        return EntryExtractionError(EntryExtractionError::Kind::EntryTitleNotFound);
    }
};

} // namespace

TEST_F(SectionText, RunsFromHeadingToHeading)
{
    addPages(4);
    printSection(1, 700, u"1 Scope"_s, u"scope"_s, 3);
    printSection(1, 600, u"1.1 Terms"_s, u"terms"_s, 2);
    page(2).column(left, 700, 12, lines(u"middle"_s, 2), body);
    page(3).column(left, 700, 12, lines(u"end"_s, 2), body);
    printSection(3, 600, u"2 Rules"_s, u"rules"_s, 2);
    const auto scope = section(u"1"_s, u"Scope"_s, 1, 720);
    const auto terms = section(u"1.1"_s, u"Terms"_s, 1, 620);
    const auto rules = section(u"2"_s, u"Rules"_s, 3, 620);
    bind();
    EXPECT_EQ(summary(scope), lines(u"scope"_s, 3).join(u'\n'));
    EXPECT_EQ(summary(terms),
              (lines(u"terms"_s, 2) + lines(u"middle"_s, 2) + lines(u"end"_s, 2)).join(u'\n'));
    EXPECT_EQ(summary(rules), lines(u"rules"_s, 2).join(u'\n')) << "to the end of its page";
    const auto places = terms->lineLocations().value();
    ASSERT_EQ(places.size(), 6U);
    const QString text = summary(terms);
    EXPECT_EQ(text.mid(places[3].range.location, places[3].range.length), lines(u"middle"_s, 2)[1]);
    EXPECT_EQ(places[3].page, 2);
    EXPECT_NEAR(places[3].bounds.minX(), left, 1);
    EXPECT_NEAR(places[3].bounds.center().y, 691, 4);
    EXPECT_TRUE(messages().isEmpty()) << messages().join(u'\n').toStdString();
}

TEST_F(SectionText, LeavesOutWhatThePrintedAreaLeavesOut)
{
    addPages(3);
    for (int i = 1; i < 3; ++i)
        page(i).text(left, 750, u"2 Rules"_s, {Font::TimesItalic, 10}).text(300, 30, u"17"_s, body);
    printSection(1, 700, u"1 Scope"_s, u"a"_s, 2);
    page(2).column(left, 700, 12, lines(u"b"_s, 2), body).text(left, 500, u"2 Rules"_s, heading);
    const auto scope = section(u"1"_s, u"Scope"_s, 1, 720);
    const auto rules = section(u"2"_s, u"Rules"_s, 2, 760);
    bind();
    EXPECT_THAT(summary(scope).toStdString(), HasSubstr("17")) << "without bounds furniture stays";
    scope->setSummaryText({});
    scope->setNeedsComputeDisplay(true);
    specification->setPageBounds(Rect{{0, 60}, {612, 670}});
    EXPECT_EQ(summary(scope), (lines(u"a"_s, 2) + lines(u"b"_s, 2)).join(u'\n'))
        << "nor is a running head the next heading";
}

TEST_F(SectionText, FindsHeadingsHoweverTheyAreSet)
{
    addPages(4);
    printSection(1, 700, u"Scope  of  this"_s, u"a"_s, 2);
    page(1)
        .text(left, 600, u"A heading that is bro-"_s, heading)
        .text(left, 585, u"ken over \u201Clines\u201D"_s, heading)
        .column(left, 560, 12, lines(u"b"_s, 2), body);
    page(1)
        .text(left, 400, u"Run-in."_s, {Font::TimesBold, 10})
        .text(left + 45, 400, u"Text that goes on behind the title in the same line"_s, body);
    page(2)
        .text(left, 740, u"Chapter 3"_s, {Font::HelveticaBold, 18})
        .text(left, 700, u"Left behind"_s, {Font::HelveticaBold, 18})
        .column(left, 660, 12, lines(u"c"_s, 2), body);
    page(3)
        .text(left, 700, u"Baseline"_s, heading)
        .column(left, 680, 12, lines(u"Baseline d"_s, 1), body)
        .text(left, 600, u"ALTERNATIVES OF AN INTERFACE -"_s, heading)
        .text(left, 585, u"UPDATE-ALTERNATIVES"_s, heading)
        .column(left, 560, 12, lines(u"e"_s, 2), body);
    const auto blanks = section(u"1"_s, u"Scope of this"_s, 1, 720);
    const auto broken = section(u"2"_s, u"A heading that is broken over \"lines\""_s, 1, 620);
    const auto runIn = section(u"2.1"_s, u"Run-in."_s, 1, 415);
    const auto behind = section(u"3"_s, u"Left behind"_s, 1, 60);
    const auto baseline = section(u"4"_s, u"Baseline"_s, 3, 700);
    const auto capitals =
        section(u"5"_s, u"Alternatives of an interface - update-alternatives"_s, 3, 615);
    bind();
    EXPECT_EQ(summary(blanks), lines(u"a"_s, 2).join(u'\n'));
    EXPECT_EQ(summary(broken), lines(u"b"_s, 2).join(u'\n'));
    EXPECT_EQ(summary(runIn), u"Run-in. Text that goes on behind the title in the same line"_s)
        << "kept with the text behind it, and nothing of the next chapter's number";
    EXPECT_EQ(summary(behind), lines(u"c"_s, 2).join(u'\n'));
    EXPECT_EQ(summary(baseline), lines(u"Baseline d"_s, 1).join(u'\n'));
    EXPECT_EQ(summary(capitals), lines(u"e"_s, 2).join(u'\n'));
}

TEST_F(SectionText, KeepsAHeadingLineThatIsMuchLongerThanTheTitle)
{
    Entry entry(specification, u"1"_s, u"Title"_s, SpecificationEntryType::Section, {});
    EXPECT_FALSE(specification->shouldIncludeHeadingLine(QString(5 + 19, u'x'), entry));
    EXPECT_TRUE(specification->shouldIncludeHeadingLine(QString(5 + 20, u'x'), entry));
}

TEST_F(SectionText, MakesBulletsBeginLines)
{
    TextAttributes serif;
    serif.font = TextFont{u"Serif"_s, 10, 0};
    TextAttributes symbol;
    symbol.font = TextFont{u"Symbol"_s, 10, 0};
    StyledText text(u"Things are: "_s, serif);
    text.append(u"●"_s, symbol);
    text.append(u" one ● two"_s, serif);
    specification->preformatPDFText(text);
    EXPECT_EQ(text.string(), u"Things are:\n∙ one\n∙ two"_s);
    EXPECT_EQ(text.attributesAt(12).font, (TextFont{QString(), 11, 0}));
    EXPECT_EQ(text.attributesAt(0).font, (TextFont{QString(), 11, 0}));
}

TEST_F(SectionText, LeavesFiguresOutAndReadsThemByThemselves)
{
    addPages(3);
    printSection(1, 720, u"1 Scope"_s, u"above"_s, 4);
    page(1)
        .stroke({{150, 500}, {200, 120}})
        .text(200, 560, u"label"_s, {Font::Helvetica, 8})
        .text(180, 480, u"Figure 1: The parts"_s, body);
    page(1).column(left, 440, 12, lines(u"below"_s, 4), body);
    const auto scope = section(u"1"_s, u"Scope"_s, 1, 740);
    const auto parts = figure(u"Figure 1"_s, u"The parts"_s, 1, 630);
    bind();
    EXPECT_EQ(summary(scope), (lines(u"above"_s, 4) + lines(u"below"_s, 4)).join(u'\n'));
    LineLocations none;
    EXPECT_EQ(specification->extractText(*parts, none)->string().trimmed(),
              u"label\nFigure 1: The parts"_s);
    EXPECT_EQ(parts->summaryText(), std::nullopt);
    EXPECT_FALSE(specification->extractTextFromGraphicalEntry(*scope));
}

TEST_F(SectionText, SaysWhatIsWrongWithAMap)
{
    addPages(3);
    printSection(1, 700, u"1 Scope"_s, u"a"_s, 2);
    const auto wrongTitle = section(u"x"_s, u"Nothing like it"_s, 1, 720);
    const auto wrongCase = section(u"y"_s, u"scope"_s, 1, 719);
    const auto empty = section(u"z"_s, u"Void"_s, 2, 700);
    const auto nowhere = section(u"n"_s, u"Nowhere"_s, 99, 700);
    bind();
    const auto error = failure(wrongTitle);
    EXPECT_EQ(error.kind, EntryExtractionError::Kind::EntryTitleNotFound);
    EXPECT_EQ(error.page, 1);
    EXPECT_EQ(error.text.left(7), u"1 Scope"_s);
    EXPECT_EQ(error.text.size(), 100);
    EXPECT_EQ(failure(wrongCase).kind, EntryExtractionError::Kind::EntryTitleNotFound);
    EXPECT_EQ(failure(empty).text, QString());
    EXPECT_EQ(wrongTitle->summaryText(), std::nullopt);
    EXPECT_EQ(nowhere->summaryText(), std::nullopt) << "no place is no error";
    EXPECT_THAT(messages(),
                testing::ElementsAre(testing::ResultOf(
                    [](const QString &m) {
                        return m.startsWith(u"Error loading preview text for entry \"x\": "_s) &&
                               !m.contains(u'\n');
                    },
                    true)));
}

TEST_F(SectionText, TellsAHeadingOutsideThePrintedArea)
{
    addPages(2);
    page(1).text(left, 700, u"1 Scope"_s, heading).column(left, 500, 12, lines(u"a"_s, 2), body);
    const auto scope = section(u"1"_s, u"Scope"_s, 1, 720);
    bind();
    EXPECT_NO_THROW(specification->findHeadingPageInfo(*scope, 1));
    specification->setPageBounds(Rect{{0, 60}, {612, 500}});
    EXPECT_EQ(failure(scope).kind, EntryExtractionError::Kind::EntryTitleNotFound);
}

TEST_F(SectionText, SurvivesMapsThatPointAnywhere)
{
    addPages(3);
    printSection(1, 700, u"A"_s, u"a"_s, 3);
    page(2).column(left, 700, 12, lines(u"b"_s, 3), body);
    std::vector<EntryPtr> entries;
    const QStringList titles{u"A"_s, QString(), u"a"_s, u" "_s, u"line"_s, QString(500, u'x')};
    for (int i = 0; i < titles.size(); ++i) {
        for (const double y : {720.0, -50.0, 10000.0}) {
            const QString label = u"%1/%2"_s.arg(i).arg(y);
            entries.push_back(section(label, titles[i], 2 - i % 2, y));
            entries.push_back(figure(u"f"_s + label, titles[i], 1 + i % 2, y));
        }
    }
    bind();
    for (const auto &entry : entries) {
        entry->displayItems();
        specification->pageRectInfo(*entry);
        specification->nextEntry(*entry);
    }
    EXPECT_NE(specification->closestEntry(at(1, 100, 690)), nullptr);
}

TEST_F(SectionText, TakesItsTimeOnAHostilePageOnlyOnce)
{
    addPages(3);
    for (int i = 0; i < 400; ++i) {
        for (int j = 0; j < 20; ++j)
            page(1).text(10 + 29 * j, 1.9 * i, u"xyzwv"_s, {Font::TimesBold, 2});
    }
    std::vector<EntryPtr> entries;
    for (int i = 0; i < 60; ++i) {
        entries.push_back(section(QString::number(i), u"v x"_s, 1, 790 - i));
        entries.push_back(figure(u"f%1"_s.arg(i), u"xyzwv"_s, 1, 790 - i));
    }
    bind();
    for (const auto &entry : entries)
        entry->displayItems();
    EXPECT_LE(specification->filteredPage(1)->text.length(), 400 * 20 * 6);
}
