// SPDX-License-Identifier: Apache-2.0
#include <QLocalSocket>
#include <QTest>

#include <future>

#include <gmock/gmock.h>

#include <reader/SingleInstance.h>
#include <support/TemporaryFiles.h>

using namespace Tavrin::Reader;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

ReaderArguments called(const QString &argument)
{
    return ReaderArguments::parse({u"tavrin-reader"_s, argument});
}

/// A reader that listens in a directory of its own, in which a crash has left a socket behind.
class SingleInstanceTest : public testing::Test
{
protected:
    SingleInstanceTest()
    {
        files.write(u"reader"_s, "");
        EXPECT_FALSE(handOver(called(u"nobody"_s)));
        QObject::connect(
            &first, &SingleInstance::requested,
            [this](const ReaderArguments &arguments) { requests.push_back(arguments); });
        EXPECT_TRUE(first.listen());
    }

    /// What a second start does, on a thread for want of a process.
    bool handOver(const ReaderArguments &arguments) const
    {
        auto second = std::async(std::launch::async, [&] {
            return SingleInstance(files.path(), u"reader"_s).handOver(arguments);
        });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return second.wait_for(std::chrono::seconds(0)) == std::future_status::ready; },
            20000));
        return second.get();
    }

    /// Whether the reader breaks off with someone who says this.
    bool refuses(const QByteArray &text) const
    {
        QLocalSocket stranger;
        stranger.connectToServer(files.path(u"reader"_s));
        stranger.write(text);
        return QTest::qWaitFor([&] { return stranger.state() == QLocalSocket::UnconnectedState; },
                               3000);
    }

    TemporaryFiles files;
    SingleInstance first{files.path(), u"reader"_s};
    std::vector<ReaderArguments> requests;
};

} // namespace

TEST_F(SingleInstanceTest, TakesOverWhatLaterStartsAreCalledWith)
{
    EXPECT_FALSE(SingleInstance(files.path(), u"reader"_s).listen());
    const auto arguments = ReaderArguments::parse(
        {u"tavrin-reader"_s, u"--maps"_s, files.path(), u"spec://2.1/a%20b/*"_s});
    EXPECT_TRUE(handOver(arguments));
    EXPECT_TRUE(handOver(called(files.write(u"ä b.pdf"_s, "%PDF-").toLocalFile())));
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0].maps, QStringList{files.path()});
    EXPECT_EQ(requests[0].reference, u"spec://2.1/a%20b/*"_s);
    EXPECT_EQ(requests[1].pdfs, QStringList{files.path(u"ä b.pdf"_s)});
}

TEST_F(SingleInstanceTest, GoesOnWhateverStrangersSay)
{
    EXPECT_TRUE(refuses("GET / HTTP/1.0\n"));
    EXPECT_TRUE(refuses(QByteArray(SingleInstance::lengthLimit + 1, 'x')));
    EXPECT_FALSE(handOver(called(QString(SingleInstance::lengthLimit, u'x'))));
    EXPECT_TRUE(handOver(called(u"4.2"_s)));
    EXPECT_EQ(requests.size(), 1U);
}

TEST_F(SingleInstanceTest, TellsFilesFromReferences)
{
    const QUrl pdf = files.write(u"a b.pdf"_s, "%PDF-");
    files.write(u"maps/m.xml"_s, "<spec/>");
    EXPECT_EQ(called(pdf.toString(QUrl::FullyEncoded)).pdfs, QStringList{pdf.toLocalFile()});
    EXPECT_EQ(called(files.path(u"maps/m.xml"_s)).maps, QStringList{files.path(u"maps"_s)});
    EXPECT_EQ(called(u"none.pdf"_s).reference, u"none.pdf"_s);
}
