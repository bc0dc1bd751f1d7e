// SPDX-License-Identifier: Apache-2.0
#include "ReadingFixture.h"

namespace
{

class EntryGeometry : public ReadingFixture
{
protected:
    EntryGeometry()
    {
        addPages(4);
        printSection(1, 720, u"1 Scope"_s, u"scope"_s, 5);
        page(1).stroke({{150, 500}, {200, 120}}).text(180, 480, u"Figure 1: The parts"_s, body);
        page(1).column(left, 440, 12, lines(u"more"_s, 5), body);
        printSection(1, 340, u"1.1 Terms"_s, u"terms"_s, 5);
        printSection(3, 720, u"2 Rules"_s, u"rules"_s, 5);
        scope = section(u"1"_s, u"Scope"_s, 1, 740);
        parts = figure(u"Figure 1"_s, u"The parts"_s, 1, 625);
        terms = section(u"1.1"_s, u"Terms"_s, 1, 360);
        rules = section(u"2"_s, u"Rules"_s, 3, 740);
    }

    EntryPtr scope;
    EntryPtr parts;
    EntryPtr terms;
    EntryPtr rules;
};

} // namespace

TEST_F(EntryGeometry, FindsEntriesByTheirPlace)
{
    bind();
    EXPECT_EQ(specification->entry(at(1, 500, 361)), terms) << "x does not count";
    EXPECT_EQ(specification->entry(at(1, 72, 361.5)), nullptr);
    EXPECT_EQ(specification->entry(at(2, 72, 360)), nullptr);
    EXPECT_EQ(specification->entry(HostPDFDestination(nullptr, {72, 360})), nullptr);
}

TEST_F(EntryGeometry, WalksForwardAndBackward)
{
    bind();
    EXPECT_EQ(specification->nextEntry(*scope), parts);
    EXPECT_EQ(specification->nextEntry(*terms), rules) << "over a page without entries";
    EXPECT_EQ(specification->nextEntry(*rules), nullptr);
    EXPECT_EQ(specification->previousEntry(*rules), terms);
    EXPECT_EQ(specification->previousEntry(*scope), nullptr);
    EXPECT_EQ(specification->nextEntry(SpecificationEntry(specification)), nullptr);
    EXPECT_TRUE(messages().isEmpty());
    const Entry lost(specification, u"x"_s, u"Lost"_s, SpecificationEntryType::Section, {});
    EXPECT_EQ(specification->nextEntry(lost), nullptr);
    EXPECT_EQ(specification->previousEntry(lost), nullptr);
    const QString message =
        u"Can't compute next entry after \"Lost\" without knowing destination information"_s;
    EXPECT_EQ(messages(), (QStringList{message, message}));
}

TEST_F(EntryGeometry, FindsTheEntryThatHoldsAPoint)
{
    bind();
    EXPECT_EQ(specification->closestEntry(at(1, 100, 690)), scope);
    EXPECT_EQ(specification->closestEntry(at(1, 200, 560)), parts);
    EXPECT_EQ(specification->closestEntry(at(1, 100, 430)), scope) << "below the figure it goes on";
    EXPECT_EQ(specification->closestEntry(at(1, 100, 310)), terms);
    EXPECT_EQ(specification->closestEntry(at(3, 100, 690)), rules);
    EXPECT_EQ(specification->closestEntry(at(0, 100, 690)), nullptr);
    EXPECT_EQ(specification->closestEntry(at(3, 100, 20)), nullptr) << "nothing is printed there";
    EXPECT_EQ(specification->closestEntry(HostPDFDestination(nullptr, {})), nullptr);
}

TEST_F(EntryGeometry, TellsTheRectanglesOfAnEntry)
{
    bind();
    const auto figureInfo = specification->pageRectInfo(*parts);
    ASSERT_TRUE(figureInfo);
    const Rect area = figureInfo->pageRects.at(1);
    EXPECT_NEAR(area.minX(), 150, 3);
    EXPECT_NEAR(area.maxY(), 620, 3);
    EXPECT_NEAR(area.minY(), 478, 3);
    EXPECT_EQ(figureInfo->text.string(), u"Figure 1: The parts"_s);
    EXPECT_EQ(figureInfo->selection.string(), figureInfo->text.string());
    const auto scopeInfo = specification->pageRectInfo(*scope);
    ASSERT_TRUE(scopeInfo);
    EXPECT_EQ(scopeInfo->pageRects.size(), 1U);
    EXPECT_NEAR(scopeInfo->pageRects.at(1).maxY(), 708, 4);
    EXPECT_NEAR(scopeInfo->pageRects.at(1).minY(), 390, 4);
    // Without lines, from heading to heading.
    scope->setDisplayBlock({});
    scope->setLineLocations({});
    const auto searched = specification->pageRectInfo(*scope);
    ASSERT_TRUE(searched);
    EXPECT_NEAR(searched->pageRects.at(1).maxY(), 731, 4);
    EXPECT_NEAR(searched->pageRects.at(1).minY(), 351, 4);
    const Entry lost(specification, u"x"_s, u"Lost"_s, SpecificationEntryType::Section, {});
    EXPECT_FALSE(specification->pageRectInfo(lost));
    EXPECT_TRUE(messages().isEmpty()) << messages().join(u'\n').toStdString();
    EXPECT_FALSE(Specification::make<PDFSpecification>()->pageRectInfo(lost));
    EXPECT_EQ(messages(), QStringList{u"No document has been set"_s});
}

TEST_F(EntryGeometry, TakesGivenRectanglesAsTheyAre)
{
    const auto given = add(u"r"_s, u"Given"_s, SpecificationEntryType::Table,
                           u"rects:2,100.0,100.0,300.0,50.0;3,100.0,660.0,200.0,50.0"_s);
    bind();
    const PDFSpecification::PageRects rects{{2, {{100, 100}, {300, 50}}},
                                            {3, {{100, 660}, {200, 50}}}};
    const auto info = specification->pageRectInfo(*given);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->pageRects, rects);
    EXPECT_TRUE(info->text.isEmpty());
    EXPECT_EQ(specification->closestEntry(at(2, 200, 120)), given);
    EXPECT_EQ(summary(rules), (lines(u"rules"_s, 5).mid(4)).join(u'\n'))
        << "what stands in the rectangle is the table's";
    const QImage image = specification->extractImage(*given);
    EXPECT_EQ(image.size(), QSize(300, 100));
}

TEST_F(EntryGeometry, GivesSelectedLinesAsAChild)
{
    bind();
    const auto hostPage = specification->document()->page(1);
    const HostPDFSelection two = hostPage->selection(Rect{{72, 685}, {200, 12}});
    const auto child = specification->entry(two);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->parentEntry(), scope);
    EXPECT_EQ(child->lineRange(), (StyledTextEditing::LineRange{1, 2}));
    EXPECT_EQ(summary(child), lines(u"scope"_s, 5)[1]);
    EXPECT_EQ(specification->entry(two), child);
    EXPECT_EQ(child->lineLocations()->size(), 1U);
    EXPECT_EQ(specification->selection(*child)->string(), lines(u"scope"_s, 5)[1]);
    const HostPDFSelection inFigure = hostPage->selection(Rect{{170, 475}, {200, 15}});
    EXPECT_EQ(specification->entry(inFigure), parts);
    EXPECT_EQ(specification->entry(HostPDFSelection()), nullptr);
    EXPECT_EQ(specification->pageRectInfo(*child)->pageRects.at(1).maxY(),
              hostPage->selection(child->lineLocations()->front().bounds).bounds(*hostPage).maxY());
}

TEST_F(ReadingFixture, ReadsColumnsOneByOne)
{
    addPages(3);
    const QStringList narrow{u"words that fill one of the two columns, and"_s};
    const auto column = [&](double x, double y, const QString &word) {
        QStringList all;
        for (int i = 0; i < 8; ++i)
            all += word + QString::number(i) + u' ' + narrow[0];
        page(1).column(x, y, 12, all, body);
        return all.join(u'\n');
    };
    page(1).text(left, 720, u"1 First"_s, heading);
    const QString first = column(left, 700, u"a"_s);
    page(1).text(320, 720, u"2 Second of two"_s, heading).text(320, 705, u"long lines"_s, heading);
    const QString second = column(320, 688, u"b"_s);
    page(1).stroke({{90, 420}, {150, 100}});
    page(1)
        .text(left, 400, u"Figure 1: A caption that takes more"_s, body)
        .text(left, 388, u"than one line of the column"_s, body);
    column(320, 520, u"c"_s);
    const auto one = section(u"1"_s, u"First"_s, 1, 740);
    const auto two = section(u"2"_s, u"Second of two long lines"_s, 1, 740);
    const auto box =
        figure(u"f"_s, u"A caption that takes more than one line of the column"_s, 1, 530);
    bind();
    EXPECT_EQ(summary(one), first);
    EXPECT_TRUE(summary(two).startsWith(second));
    const auto info = specification->pageRectInfo(*box);
    ASSERT_TRUE(info);
    EXPECT_LT(info->pageRects.at(1).maxX(), 300);
    EXPECT_GT(info->pageRects.at(1).maxY(), 519);
    EXPECT_LT(info->pageRects.at(1).minY(), 390);
}
