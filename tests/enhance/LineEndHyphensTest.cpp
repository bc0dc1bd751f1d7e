// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/enhance/LineEndHyphens.h>

namespace
{

std::string healed(const QString &text)
{
    return withoutLineEndHyphens(text, *LinguisticTagger::make()).toStdString();
}

} // namespace

TEST(LineEndHyphens, areTakenOutOfBrokenWords)
{
    EXPECT_EQ(healed(u"an inter-\nrupt is raised, and con\u2010\nfigured\n"_s),
              "an interrupt is raised, and configured\n");
    EXPECT_EQ(healed(u"the xyzzy-\nfrob and soft\u00ad\nware"_s), "the xyzzyfrob and software");
    EXPECT_EQ(healed(u"_DEC_WM_DECO-\nRATION_GEOMETRY, PRIMARY and SE-\nCONDARY"_s),
              "_DEC_WM_DECORATION_GEOMETRY, PRIMARY and SECONDARY");
}

TEST(LineEndHyphens, stayInWordsThatAreWrittenWithOne)
{
    EXPECT_EQ(healed(u"a floating-\npoint unit"_s), "a floating-point unit");
}

TEST(LineEndHyphens, stayWhereNoWordGoesOn)
{
    for (const QString &text : {u"options -\nlist"_s, u"pages 3-\n4"_s, u"the GNU-\nLinux"_s,
                                u"ends-\n"_s, u"-\nx"_s, u"a - \nb"_s, u""_s})
        EXPECT_EQ(healed(text), text.toStdString());
}
