// SPDX-License-Identifier: Apache-2.0
// Numbers of headings and captions: what is read out of a line, and what an outline makes of them.
#include <support/Test.h>

#include <span>

#include <Tavrin/drafting/CaptionNumber.h>
#include <Tavrin/drafting/DraftLabeler.h>
#include <Tavrin/drafting/HeadingNumber.h>
#include <Tavrin/drafting/NumberResolver.h>
#include <Tavrin/drafting/OutlineReader.h>

namespace
{

/// A text, and what is to come out of it.
using Case = std::pair<QStringView, QStringView>;

/// "number|title".
QString heading(const QString &text)
{
    const auto number = HeadingNumber::parse(text);
    return number ? number->text() + u'|' + text.mid(number->length) : u"-"_s;
}

/// "label|number|title".
QString caption(const QString &text)
{
    const auto number = CaptionNumber::parse(text);
    return number
               ? number->label + u'|' + number->number.text() + u'|' + text.sliced(number->length)
               : u"-"_s;
}

/// "label=1.2" for each item of an outline, which "|" parts; two blanks in front are one level.
QString numbered(const QString &outline)
{
    std::vector<DraftItem> items;
    for (const QString &text : outline.split(u'|')) {
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
    return result.join(u' ');
}

void expectAll(QString (*read)(const QString &), std::span<const Case> cases)
{
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(read(text.toString()), expected) << text.toString().toStdString();
}

const Case headings[] = {
    {u"4.2.1 Scope", u"4.2.1|Scope"},
    {u"1. Introduction", u"1|Introduction"},
    {u"A.3 Foo", u"A.3|Foo"},
    {u"Chapter 3. Foo", u"3|Foo"},
    {u"CHAPTER 3", u"3|"},
    {u"Appendix B: Foo", u"B|Foo"},
    {u"Anhang C – Foo", u"C|Foo"},
    {u"§ 4.2 Foo", u"4.2|Foo"},
    {u"Part IV Miscellaneous", u"IV|Miscellaneous"},
    {u"II. The Model", u"II|The Model"},
    {u"III Lists", u"III|Lists"},
    {u"2.1.1 1.1.1 Extent", u"2.1.1|1.1.1 Extent"},
    // A tab that left no blank.
    {u"4.10Core", u"4.10|Core"},
    {u"18.10tie", u"18.10|tie"},
    {u"CHAPTER TWELVE", u"12|"},
    {u"Chapter Twenty-One", u"21|"},
};

const Case captions[] = {
    {u"Figure 3-7: Bus cycles", u"Figure 3-7|3.7|Bus cycles"},
    {u"Table 2.1. Pins", u"Table 2.1|2.1|Pins"},
    {u"Fig. 4 Overview", u"Figure 4|4|Overview"},
    {u"TABLE A.3 \u2013 Codes", u"Table A.3|A.3|Codes"},
    {u"Table IV", u"Table IV|4|"},
    {u"Figure B-2: x", u"Figure B-2|B.2|x"},
};
const Case outlines[] = {
    // The numbers that are printed stay.
    {u"Preface|1 Scope|  1.1 Terms|2 Rules|Index", u"preface=0.1 1=1 1.1=1.1 2=2 index=3"},
    // Appendices are counted on behind the chapters.
    {u"1 Scope|2 Rules|A Forms|  A.1 Long form|Appendix B: Signs", u"1=1 2=2 A=3 A.1=3.1 B=4"},
    // What nobody numbers is counted.
    {u"Contents|Scope|  Terms|  Signs|Rules", u"contents=0.1 1=1 1.1=1.1 1.2=1.2 2=2"},
    {u"Chapter 1. Scope|  Terms|Chapter 2. Rules", u"1=1 1.1=1.1 2=2"},
    // Beside printed numbers none is invented.
    {u"1 Scope|  1.1 Terms|  Exercises|2 Rules|  Exercises",
     u"1=1 1.1=1.1 exercises=1.1.0.1 2=2 exercises-2=2.0.1"},
    // Numbers are concluded from neighbours and from sections below.
    {u"Scope|  1.1 Terms|  Signs|  1.3 Forms|Rules|  2.1 Laws",
     u"1=1 1.1=1.1 1.2=1.2 1.3=1.3 2=2 2.1=2.1"},
    // No word of a title is its number.
    {u"A First Impression|64 bit support|Rules", u"1=1 2=2 3=3"},
    // Parts stand beside the chapters.
    {u"I Language|  1 Scope|    1.1 Terms|  2 Rules|II Libraries|  3 Lists",
     u"Part I=0.1 1=1 1.1=1.1 2=2 Part II=0.2 3=3"},
    // They are named where chapters begin anew.
    {u"Part I Language|  1 Scope|  2 Rules|Part II Libraries|  1 Lists|    1.1 Short lists",
     u"Part I=1 I.1=1.1 I.2=1.2 Part II=2 II.1=2.1 II.1.1=2.1.1"},
    // Letters below Roman numbers are cited with both.
    {u"I. Introduction|II. Model|  A. Forces|  B. Torques|III. Results",
     u"I=1 II=2 II.A=2.1 II.B=2.2 III=3"},
};

std::vector<int> ranks(const QString &text)
{
    return HeadingNumber::parse(text)->ranks();
}

} // namespace

TEST(Numbers, OfHeadingsAreRead)
{
    expectAll(heading, headings);
    for (const QString &text :
         {u"Scope"_s, u"3D graphics"_s, u"MIX of types"_s, u"ILL formed"_s, u"10,000 items"_s,
          u".model lines"_s, u""_s, u"Charter 3"_s, u"3Core"_s, u"Chapter Overview"_s})
        EXPECT_EQ(heading(text), u"-"_s) << text.toStdString();
    EXPECT_EQ(HeadingNumber::parseSpelled(u"TWENTYTHREE"_s)->text(), u"23"_s);
    EXPECT_FALSE(HeadingNumber::parseSpelled(u"ZERO"_s));
    EXPECT_FALSE(HeadingNumber::parseSpelled(u"TWENTYTEN"_s));
    EXPECT_EQ(HeadingNumber::parseWord(u"CHAPTER"_s), HeadingNumber::Word::Chapter);
}

TEST(Numbers, OfHeadingsMayBeWords)
{
    EXPECT_TRUE(HeadingNumber::parse(u"A First Impression"_s)->isAmbiguous);
    EXPECT_TRUE(HeadingNumber::parse(u"I Manual"_s)->isAmbiguous);
    EXPECT_FALSE(HeadingNumber::parse(u"A. Profiling"_s)->isAmbiguous);
    EXPECT_FALSE(HeadingNumber::parse(u"Appendix A"_s)->isAmbiguous);
}

TEST(Numbers, SortLettersBehindNumbers)
{
    EXPECT_LT(ranks(u"9 Foo"_s), ranks(u"10 Foo"_s));
    EXPECT_LT(ranks(u"4.9 Foo"_s), ranks(u"4.10 Foo"_s));
    EXPECT_LT(ranks(u"33 Foo"_s), ranks(u"Appendix A"_s));
    EXPECT_LT(ranks(u"A.9 Foo"_s), ranks(u"B.1 Foo"_s));
    EXPECT_EQ(HeadingNumber::romanValue(u"XLIV"_s), 44);
    EXPECT_FALSE(HeadingNumber::romanValue(u"IIX"_s));
}

TEST(Numbers, OfCaptionsAreRead)
{
    expectAll(caption, captions);
    for (const QString &text : {u"Figures 3 and 4"_s, u"Table of contents"_s, u"Figure 3)"_s,
                                u"Table 3%"_s, u"figure 3: x"_s, u"See Figure 3: x"_s, u"Figure"_s})
        EXPECT_EQ(caption(text), u"-"_s) << text.toStdString();
}

TEST(Numbers, OfAnOutlineAreCompleted)
{
    expectAll(numbered, outlines);
}
