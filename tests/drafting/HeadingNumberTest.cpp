// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <Tavrin/drafting/HeadingNumber.h>

using namespace Tavrin;
using namespace Qt::StringLiterals;

namespace
{

/// "number|title", or "-" for a text without a number.
QString split(const QString &text)
{
    const auto number = HeadingNumber::parse(text);
    return number ? number->text() + u'|' + text.mid(number->length) : u"-"_s;
}

std::vector<int> ranks(const QString &text)
{
    return HeadingNumber::parse(text)->ranks();
}

} // namespace

TEST(HeadingNumber, ReadsNumbersInFrontOfTitles)
{
    EXPECT_EQ(split(u"4.2.1 Scope"_s), u"4.2.1|Scope"_s);
    EXPECT_EQ(split(u"1. Introduction"_s), u"1|Introduction"_s);
    EXPECT_EQ(split(u"A.3 Foo"_s), u"A.3|Foo"_s);
    EXPECT_EQ(split(u"Chapter 3. Foo"_s), u"3|Foo"_s);
    EXPECT_EQ(split(u"CHAPTER 3"_s), u"3|"_s);
    EXPECT_EQ(split(u"Appendix B: Foo"_s), u"B|Foo"_s);
    EXPECT_EQ(split(u"Anhang C – Foo"_s), u"C|Foo"_s);
    EXPECT_EQ(split(u"§ 4.2 Foo"_s), u"4.2|Foo"_s);
    EXPECT_EQ(split(u"Part IV Miscellaneous"_s), u"IV|Miscellaneous"_s);
    EXPECT_EQ(split(u"II. The Model"_s), u"II|The Model"_s);
    EXPECT_EQ(split(u"III Lists"_s), u"III|Lists"_s);
    EXPECT_EQ(split(u"2.1.1 1.1.1 Extent"_s), u"2.1.1|1.1.1 Extent"_s);
}

TEST(HeadingNumber, ReadsNumbersWhoseTabLeftNoBlank)
{
    EXPECT_EQ(split(u"4.10Core"_s), u"4.10|Core"_s);
    EXPECT_EQ(split(u"3Core"_s), u"-"_s);
    EXPECT_EQ(split(u"18.10tie"_s), u"18.10|tie"_s);
}

TEST(HeadingNumber, LeavesOtherTextsAlone)
{
    for (const QString &text : {u"Scope"_s, u"3D graphics"_s, u"MIX of types"_s, u"ILL formed"_s,
                                u"10,000 items"_s, u".model lines"_s, u""_s, u"Charter 3"_s})
        EXPECT_EQ(split(text), u"-"_s) << text.toStdString();
}

TEST(HeadingNumber, SaysWhenALetterMayBeAWord)
{
    EXPECT_TRUE(HeadingNumber::parse(u"A First Impression"_s)->isAmbiguous);
    EXPECT_TRUE(HeadingNumber::parse(u"I Manual"_s)->isAmbiguous);
    EXPECT_FALSE(HeadingNumber::parse(u"A. Profiling"_s)->isAmbiguous);
    EXPECT_FALSE(HeadingNumber::parse(u"Appendix A"_s)->isAmbiguous);
}

TEST(HeadingNumber, ReadsNumbersThatAreSpelledOut)
{
    EXPECT_EQ(split(u"CHAPTER TWELVE"_s), u"12|"_s);
    EXPECT_EQ(split(u"Chapter Twenty-One"_s), u"21|"_s);
    EXPECT_EQ(HeadingNumber::parseSpelled(u"TWENTYTHREE"_s)->text(), u"23"_s);
    EXPECT_FALSE(HeadingNumber::parseSpelled(u"ZERO"_s));
    EXPECT_FALSE(HeadingNumber::parseSpelled(u"TWENTYTEN"_s));
    EXPECT_EQ(HeadingNumber::parseWord(u"CHAPTER"_s), HeadingNumber::Word::Chapter);
    EXPECT_EQ(split(u"Chapter Overview"_s), u"-"_s);
}

TEST(HeadingNumber, SortsLettersBehindNumbers)
{
    EXPECT_LT(ranks(u"9 Foo"_s), ranks(u"10 Foo"_s));
    EXPECT_LT(ranks(u"4.9 Foo"_s), ranks(u"4.10 Foo"_s));
    EXPECT_LT(ranks(u"33 Foo"_s), ranks(u"Appendix A"_s));
    EXPECT_LT(ranks(u"A.9 Foo"_s), ranks(u"B.1 Foo"_s));
    EXPECT_EQ(HeadingNumber::romanValue(u"XLIV"_s), 44);
    EXPECT_FALSE(HeadingNumber::romanValue(u"IIX"_s));
}
