// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/platform/CharacterSet.h>
#include <Tavrin/platform/DecimalForm.h>
#include <Tavrin/platform/LineTrimmingError.h>
#include <Tavrin/platform/StyledTextEditing.h>

using namespace Tavrin::StyledTextEditing;

namespace
{

StyledText run(const QString &text, const QString &family, double size, quint32 traits = 0)
{
    return StyledText(text, {.font = TextFont{family, size, traits}});
}

StyledText joined(const std::vector<StyledText> &parts)
{
    StyledText text;
    for (const StyledText &part : parts)
        text.append(part);
    return text;
}

} // namespace

TEST(StyledTexts, RunsMergeAndSplit)
{
    StyledText text = joined({run(u"ab"_s, u"A"_s, 10), run(u"cd"_s, u"A"_s, 10)});
    EXPECT_EQ(text.runs().size(), 1U) << "equal neighbours are one run";
    text.setLink(u"x"_s, {1, 2});
    ASSERT_EQ(text.runs().size(), 3U);
    EXPECT_EQ(text.attributesAt(1).link, u"x"_s);
    EXPECT_EQ(text.attributesAt(3).link, std::nullopt);
    int fonts = 0;
    text.enumerateFonts({0, 4}, [&](const TextFont *, TextRange range, bool &) {
        ++fonts;
        EXPECT_EQ(range, (TextRange{0, 4})) << "the link does not part the font";
    });
    EXPECT_EQ(fonts, 1);
    text.deleteCharacters({1, 2});
    EXPECT_EQ(text, run(u"ad"_s, u"A"_s, 10));
    text.append(text);
    EXPECT_EQ(text.string(), u"adad"_s);
    EXPECT_EQ(text.attributedSubstring({3, 99}).string(), u"d"_s) << "ranges are cut to the text";
    EXPECT_EQ(text.attributesAt(-1), TextAttributes());
}

TEST(StyledTexts, PrimaryFontIsTheMostUsed)
{
    const StyledText text = joined({run(u"Heading"_s, u"H"_s, 14, TextFont::Bold),
                                    run(u"body text"_s, u"B"_s, 10), StyledText(u"no font"_s)});
    EXPECT_EQ(primaryFont(text)->family, u"B"_s);
    EXPECT_EQ(primaryFont(text, TextRange{0, 9})->family, u"H"_s);
    EXPECT_EQ(primaryFont(StyledText(u"plain"_s)), std::nullopt);
}

TEST(StyledTexts, SettingThePrimaryFontKeepsRelations)
{
    StyledText text = joined({run(u"body text that is long"_s, u"B"_s, 10),
                              run(u"bold"_s, u"B"_s, 10, TextFont::Bold),
                              run(u"small"_s, u"B"_s, 5), run(u"code"_s, u"C"_s, 8)});
    setPrimaryFont(text, {u"S"_s, 11, 0});
    const auto runs = text.runs();
    ASSERT_EQ(runs.size(), 4U);
    EXPECT_EQ(*runs[0].attributes.font, (TextFont{u"S"_s, 11, 0}));
    EXPECT_EQ(*runs[1].attributes.font, (TextFont{u"S"_s, 11, TextFont::Bold}));
    EXPECT_EQ(*runs[2].attributes.font, (TextFont{u"S"_s, 5.5, 0}));
    EXPECT_EQ(*runs[3].attributes.font, (TextFont{u"C"_s, 8 * 1.1, 0}));
    StyledText plain(u"plain"_s);
    setPrimaryFont(plain, {u"S"_s, 11, 0});
    EXPECT_EQ(plain, StyledText(u"plain"_s));
}

TEST(StyledTexts, AreTrimmedToCharactersAndLines)
{
    StyledText text(u" \n one\ntwo\nthree \n"_s);
    trimCharacters(text, CharacterSet::isWhiteSpaceOrNewline);
    EXPECT_EQ(text.string(), u"one\ntwo\nthree"_s);
    StyledText blank(u" \n "_s);
    trimCharacters(blank, CharacterSet::isWhiteSpaceOrNewline);
    EXPECT_TRUE(blank.isEmpty());

    StyledText last = text;
    trimToLines(last, {1, 3});
    EXPECT_EQ(last.string(), u"two\nthree"_s);
    StyledText first = text;
    trimToLines(first, {0, 1});
    EXPECT_EQ(first.string(), u"one\n"_s) << "a line goes with its line feed";
    EXPECT_THROW(trimToLines(text, {0, 4}), LineTrimmingError);
    EXPECT_THROW(trimToLines(text, {-1, 1}), LineTrimmingError);
    EXPECT_EQ(text.string(), u"one\ntwo\nthree"_s);
}

TEST(DecimalForms, ReadBackAsTheyWere)
{
    EXPECT_EQ(decimalForm(72), u"72.0"_s);
    EXPECT_EQ(decimalForm(-0.1), u"-0.1"_s);
    EXPECT_EQ(decimalForm(0), u"0.0"_s);
    for (const double value : {1.0 / 3, 1e300, -5e-324, 123456789.125, 0.0001})
        EXPECT_EQ(parseDecimal(decimalForm(value)), value);
    for (const QString &text : {u""_s, u" 1"_s, u"1 "_s, u"1x"_s, u"nan"_s, u"inf"_s, u"1e999"_s,
                                u"+-1"_s, u"--1"_s, u"0x10"_s, u"١"_s})
        EXPECT_EQ(parseDecimal(text), std::nullopt) << text.toStdString();
    EXPECT_EQ(parseInteger(u"+12"), 12);
    EXPECT_EQ(parseInteger(u"1.0"), std::nullopt);
    EXPECT_EQ(parseInteger(u"99999999999"), std::nullopt);
}
