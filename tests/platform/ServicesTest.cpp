// SPDX-License-Identifier: Apache-2.0
#include <QTranslator>

#include <support/Test.h>

#include <Tavrin/platform/NotificationCenter.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/TerminalStyle.h>

TEST(StandardError, SendsWholeLinesWhereTheLatestRedirectionSays)
{
    QStringList outer;
    const StandardErrorRedirection first([&](const QString &line) { outer.append(line); });
    {
        QStringList inner;
        const StandardErrorRedirection second([&](const QString &line) { inner.append(line); });
        standardError(u"é"_s);
        EXPECT_EQ(inner, QStringList{u"é"_s});
    }
    standardError(u"a"_s);
    standardError(u""_s);
    EXPECT_EQ(outer, (QStringList{u"a"_s, u""_s}));
}

TEST(StandardError, ReachesTheProcessesOwn)
{
    testing::internal::CaptureStderr();
    standardError(u"Regex error"_s);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Regex error\n");
}

TEST(TerminalStyle, WrapsTextInEscapeSequences)
{
    EXPECT_EQ(bold(u"x%1"_s), u"\x1b[1;39mx%1\x1b[0;39m");
    EXPECT_EQ(red(u"x"_s), u"\x1b[0;31mx\x1b[0;39m");
    EXPECT_EQ(yellow(u"x"_s), u"\x1b[0;33mx\x1b[0;39m");
    EXPECT_EQ(green(u"x"_s), u"\x1b[0;32mx\x1b[0;39m");
    EXPECT_EQ(cyan(u"x"_s), u"\x1b[0;36mx\x1b[0;39m");
    EXPECT_EQ(withoutTerminalStyles(u"a [1m "_s + bold(u"b"_s) + red(u"c"_s)), u"a [1m bc");
}

TEST(NotificationCenter, TellsObserversOfANameAndAnObject)
{
    NotificationCenter center;
    const int one = 1;
    const int two = 2;
    QStringList heard;
    const auto all = center.observe(u"n"_s, nullptr, [&](const QString &, const void *object) {
        heard.append(object == &one ? u"all 1"_s : u"all 2"_s);
    });
    {
        const auto only = center.observe(
            u"n"_s, &one, [&](const QString &name, const void *) { heard.append(name); });
        center.post(u"n"_s, &two);
        center.post(u"n"_s, &one);
        center.post(u"m"_s, &one);
    }
    center.post(u"n"_s, &one);
    EXPECT_EQ(heard, (QStringList{u"all 2"_s, u"all 1"_s, u"n"_s, u"all 1"_s}));
}

TEST(NotificationCenter, LetsObserversComeAndGoWhileItPosts)
{
    NotificationCenter center;
    int calls = 0;
    NotificationCenter::TokenPtr second;
    NotificationCenter::TokenPtr late;
    const auto first = center.observe(u"n"_s, nullptr, [&](const QString &, const void *) {
        second = {};
        late =
            center.observe(u"n"_s, nullptr, [&](const QString &, const void *) { calls += 100; });
    });
    second = center.observe(u"n"_s, nullptr, [&](const QString &, const void *) { ++calls; });
    center.post(u"n"_s, nullptr);
    EXPECT_EQ(calls, 1) << "who is to hear is settled when the post begins";
    center.post(u"n"_s, nullptr);
    EXPECT_EQ(calls, 101);
}
