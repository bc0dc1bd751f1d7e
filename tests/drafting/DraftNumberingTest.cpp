// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <Tavrin/drafting/DraftLabeler.h>
#include <Tavrin/drafting/NumberResolver.h>
#include <Tavrin/drafting/OutlineReader.h>

using namespace Tavrin;
using namespace Qt::StringLiterals;

namespace
{

/// "label=1.2" for each line of an outline; two blanks in front are one level.
QStringList numbered(const QStringList &outline)
{
    std::vector<DraftItem> items;
    for (const QString &text : outline) {
        DraftItem item = OutlineReader::itemFromLabel(text.trimmed());
        while (text.mid(qsizetype(2) * item.depth).startsWith(u"  "_s))
            ++item.depth;
        items.push_back(item);
    }
    NumberResolver(items).dropFalseNumbers();
    NumberResolver(items).complete();
    DraftLabeler(items).label();
    QStringList result;
    for (const DraftItem &item : items) {
        QStringList index;
        for (const int number : item.index)
            index.append(QString::number(number));
        result.append(item.printedLabel + u'=' + index.join(u'.'));
    }
    return result;
}

} // namespace

using testing::ElementsAre;

TEST(DraftNumbering, KeepsTheNumbersOfTheOutline)
{
    EXPECT_THAT(numbered({u"Preface"_s, u"1 Scope"_s, u"  1.1 Terms"_s, u"2 Rules"_s, u"Index"_s}),
                ElementsAre(u"preface=0.1"_s, u"1=1"_s, u"1.1=1.1"_s, u"2=2"_s, u"index=3"_s));
}

TEST(DraftNumbering, CountsAppendicesOnBehindTheChapters)
{
    EXPECT_THAT(numbered({u"1 Scope"_s, u"2 Rules"_s, u"A Forms"_s, u"  A.1 Long form"_s,
                          u"Appendix B: Signs"_s}),
                ElementsAre(u"1=1"_s, u"2=2"_s, u"A=3"_s, u"A.1=3.1"_s, u"B=4"_s));
}

TEST(DraftNumbering, CountsWhatNobodyNumbers)
{
    EXPECT_THAT(numbered({u"Contents"_s, u"Scope"_s, u"  Terms"_s, u"  Signs"_s, u"Rules"_s}),
                ElementsAre(u"contents=0.1"_s, u"1=1"_s, u"1.1=1.1"_s, u"1.2=1.2"_s, u"2=2"_s));
    EXPECT_THAT(numbered({u"Chapter 1. Scope"_s, u"  Terms"_s, u"Chapter 2. Rules"_s}),
                ElementsAre(u"1=1"_s, u"1.1=1.1"_s, u"2=2"_s));
}

TEST(DraftNumbering, InventsNoNumberBesidePrintedOnes)
{
    EXPECT_THAT(numbered({u"1 Scope"_s, u"  1.1 Terms"_s, u"  Exercises"_s, u"2 Rules"_s,
                          u"  Exercises"_s}),
                ElementsAre(u"1=1"_s, u"1.1=1.1"_s, u"exercises=1.1.0.1"_s, u"2=2"_s,
                            u"exercises-2=2.0.1"_s));
}

TEST(DraftNumbering, ConcludesNumbersFromNeighboursAndSectionsBelow)
{
    EXPECT_THAT(
        numbered({u"Scope"_s, u"  1.1 Terms"_s, u"  Signs"_s, u"  1.3 Forms"_s, u"Rules"_s,
                  u"  2.1 Laws"_s}),
        ElementsAre(u"1=1"_s, u"1.1=1.1"_s, u"1.2=1.2"_s, u"1.3=1.3"_s, u"2=2"_s, u"2.1=2.1"_s));
}

TEST(DraftNumbering, TakesNoWordOfATitleForItsNumber)
{
    EXPECT_THAT(numbered({u"A First Impression"_s, u"64 bit support"_s, u"Rules"_s}),
                ElementsAre(u"1=1"_s, u"2=2"_s, u"3=3"_s));
}

TEST(DraftNumbering, PutsPartsBesideTheChapters)
{
    EXPECT_THAT(
        numbered({u"I Language"_s, u"  1 Scope"_s, u"    1.1 Terms"_s, u"  2 Rules"_s,
                  u"II Libraries"_s, u"  3 Lists"_s}),
        ElementsAre(u"Part I=0.1"_s, u"1=1"_s, u"1.1=1.1"_s, u"2=2"_s, u"Part II=0.2"_s, u"3=3"_s));
}

TEST(DraftNumbering, NamesThePartWhereChaptersBeginAnew)
{
    EXPECT_THAT(numbered({u"Part I Language"_s, u"  1 Scope"_s, u"  2 Rules"_s,
                          u"Part II Libraries"_s, u"  1 Lists"_s, u"    1.1 Short lists"_s}),
                ElementsAre(u"Part I=1"_s, u"I.1=1.1"_s, u"I.2=1.2"_s, u"Part II=2"_s,
                            u"II.1=2.1"_s, u"II.1.1=2.1.1"_s));
}

TEST(DraftNumbering, CitesLettersBelowRomanNumbersWithBoth)
{
    EXPECT_THAT(numbered({u"I. Introduction"_s, u"II. Model"_s, u"  A. Forces"_s, u"  B. Torques"_s,
                          u"III. Results"_s}),
                ElementsAre(u"I=1"_s, u"II=2"_s, u"II.A=2.1"_s, u"II.B=2.2"_s, u"III=3"_s));
}
