// SPDX-License-Identifier: Apache-2.0
#include "StoreFixture.h"

#include <QCoreApplication>
#include <QFile>

#include <Tavrin/manager/TavrinConstants.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/NotificationCenter.h>

#include <thread>

#include "OpeningCounter.h"

namespace
{

class AuxiliaryFiles : public StoreFixture
{
protected:
    /// Counts what the host would hear.
    int notifications = 0;
    const void *notifier = nullptr;
    NotificationCenter::TokenPtr token = NotificationCenter::shared().observe(
        TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, nullptr,
        [this](const QString &, const void *object) {
            ++notifications;
            notifier = object;
        });
};

} // namespace

TEST_F(AuxiliaryFiles, StayImportedAfterARestart)
{
    writeMap(u"alpha"_s);
    const QUrl source = writeDocument(u"alpha"_s, u"report.pdf"_s);
    const QByteArray content = files.read(u"report.pdf"_s);
    auto manager = start();
    EXPECT_EQ(notifications, 1) << "the list was read, to offer files";
    EXPECT_FALSE(QFile::exists(storePath())) << "reading makes no directory";

    const QUrl stored = manager->registerAuxiliaryFile(source);
    EXPECT_EQ(stored, storeUrl(u"report.pdf"_s));
    EXPECT_EQ(storedBytes(u"report.pdf"_s), content);
    EXPECT_THAT(manager->auxiliaryFiles(), ElementsAre(stored));
    EXPECT_EQ(boundFile(*manager, u"alpha"_s), stored);
    EXPECT_EQ(notifications, 2);
    EXPECT_EQ(notifier, manager.get());
    EXPECT_EQ(storeContents(), QStringList{u"report.pdf"_s}) << "nothing else is left there";

    QFile::remove(source.toLocalFile());
    QFile(storePath(u".hidden"_s)).open(QIODevice::WriteOnly);
    manager = start();
    EXPECT_THAT(manager->auxiliaryFiles(), ElementsAre(stored));
    EXPECT_EQ(boundFile(*manager, u"alpha"_s), stored);
    const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(manager->entry(u"1"_s));
    ASSERT_TRUE(entry && entry->destination());
    EXPECT_EQ(entry->destination()->point(), (Point{72, 512}));
    EXPECT_EQ(notifications, 3);
    EXPECT_THAT(log.takeMessages(), IsEmpty());
}

TEST_F(AuxiliaryFiles, ArePartedByHost)
{
    writeMap(u"alpha"_s);
    start()->registerAuxiliaryFile(writeDocument(u"alpha"_s, u"report.pdf"_s));
    setHostIdentifier(u"../other"_s);
    EXPECT_THAT(start()->auxiliaryFiles(), IsEmpty());
    EXPECT_EQ(SpecificationManager::supportDirectory(), files.path(u"data/tavrin/.._other"_s));
    setHostIdentifier(u".."_s);
    EXPECT_EQ(SpecificationManager::supportDirectory(), std::nullopt);
    EXPECT_THAT(log.takeMessages(), ElementsAre(u"One or more bundles don't have an identifier we "
                                                "can use to get the auxiliary file directory."_s));
    setHostIdentifier({});
    EXPECT_EQ(SpecificationManager::supportDirectory(),
              files.path(u"data/tavrin/"_s) + QCoreApplication::applicationName());
    QCoreApplication::setOrganizationName(u"org"_s);
    EXPECT_EQ(hostIdentifier(), u"org."_s + QCoreApplication::applicationName());
    QCoreApplication::setOrganizationName({});
}

TEST_F(AuxiliaryFiles, ShareANameByNumbers)
{
    SpecificationManager manager;
    QDir().mkpath(storePath(u"report.pdf"_s));
    QFile::link(u"/nowhere"_s, storePath(u"report_1.pdf"_s));
    manager.setSpecifications({Taker::make(20)});
    const std::pair<QString, QString> names[] = {
        {u"a/report.pdf"_s, u"report_2.pdf"_s}, // a directory and a dead link have the others
        {u"b/report.pdf"_s, u"report_3.pdf"_s},
        {u"a/v1.2.pdf"_s, u"v1.2.pdf"_s},
        {u"b/v1.2.pdf"_s, u"v1.2_1.pdf"_s},
        {u"a/plain"_s, u"plain"_s},
        {u"b/plain"_s, u"plain_1"_s},
        {u"a/.pdf"_s, u".pdf"_s},
        {u"b/.pdf"_s, u".pdf_1"_s},
        {u"a/Ünï cödé.pdf"_s, u"Ünï cödé.pdf"_s},
    };
    for (const auto &[source, name] : names) {
        const QUrl stored = manager.registerAuxiliaryFile(files.write(source, source.toUtf8()));
        EXPECT_EQ(stored, storeUrl(name));
        EXPECT_EQ(storedBytes(name), source.toUtf8());
    }
    EXPECT_TRUE(QDir(storePath(u"report.pdf"_s)).isEmpty());
    const QString longName(250, u'n');
    manager.registerAuxiliaryFile(files.write(u"a/"_s + longName + u".pdf"_s, "1"));
    const QUrl tooLong = files.write(u"b/"_s + longName + u".pdf"_s, "2");
    EXPECT_EQ(manager.registerAuxiliaryFile(tooLong), tooLong) << "no room for a number";
}

TEST_F(AuxiliaryFiles, AreRefusedIfNothingRecognisesThem)
{
    writeMap(u"alpha"_s);
    const auto manager = start();
    const QUrl other = writeDocument(u"beta"_s, u"other.pdf"_s);
    using Kind = SpecificationManager::SetupError::Kind;
    const QString unassigned = u" does not match any supported specifications."_s;
    const std::vector<std::tuple<QUrl, Kind, QString>> refused{
        {other, Kind::UnassignedAuxiliaryFile, unassigned},
        {files.url(u"maps"_s), Kind::UnassignedAuxiliaryFile, unassigned},
        {files.url(u"none.pdf"_s), Kind::UnreadableFile, u" cannot be read."_s},
        {files.url(u"none.txt"_s), Kind::UnreadableFile, u" cannot be read."_s},
        {files.write(u"text.pdf"_s, "plain text"), Kind::NotAPDF, u" is not a PDF."_s},
        {files.write(u"broken.pdf"_s, "%PDF-1.7\n"), Kind::DamagedFile, u" is damaged."_s},
    };
    for (const auto &[url, kind, text] : refused) {
        try {
            manager->registerAuxiliaryFile(url);
            ADD_FAILURE() << "nothing recognises it";
        } catch (const SpecificationManager::SetupError &error) {
            EXPECT_EQ(error.kind, kind);
            EXPECT_EQ(error.url, url);
            EXPECT_EQ(error.errorDescription, url.fileName() + text);
            EXPECT_EQ(error.failureReason, error.errorDescription);
            EXPECT_EQ(error.recoverySuggestion, u"Try another file."_s);
        }
    }
    const QUrl right = writeDocument(u"alpha"_s, u"right.pdf"_s);
    EXPECT_THROW(manager->registerAuxiliaryFiles({right, other, right}),
                 SpecificationManager::SetupError);
    EXPECT_THAT(manager->auxiliaryFiles(), ElementsAre(storeUrl(u"right.pdf"_s)));
    EXPECT_THROW(manager->registerAuxiliaryFile(right), SpecificationManager::SetupError)
        << "the one requirement is met";
    EXPECT_EQ(storeContents(), QStringList{u"right.pdf"_s});
}

TEST_F(AuxiliaryFiles, AreKeptUnclaimedButNotIfClaimingFails)
{
    SpecificationManager manager;
    const auto taker = Taker::make();
    manager.registerSpecification(taker);
    const QUrl source = files.write(u"a.pdf"_s, "a");
    taker->recognises = [](const QUrl &) -> bool { throw std::runtime_error("recognising"); };
    EXPECT_THROW(manager.registerAuxiliaryFile(source), std::runtime_error);
    EXPECT_FALSE(QFile::exists(storePath()));
    taker->recognises = [](const QUrl &) { return true; };
    taker->takes = [](const QUrl &) -> bool { throw std::runtime_error("claiming"); };
    notifications = 0;
    EXPECT_THROW(manager.registerAuxiliaryFile(source), std::runtime_error);
    EXPECT_THAT(manager.auxiliaryFiles(), IsEmpty());
    EXPECT_THAT(storeContents(), IsEmpty());
    EXPECT_EQ(notifications, 0);

    taker->takes = [](const QUrl &) { return false; };
    const QUrl stored = manager.registerAuxiliaryFile(source);
    const QUrl second = manager.registerAuxiliaryFile(source);
    EXPECT_THAT(manager.auxiliaryFiles(), ElementsAre(stored, second));
    EXPECT_EQ(storeContents(), (QStringList{u"a.pdf"_s, u"a_1.pdf"_s}));
    EXPECT_EQ(notifications, 2);
    EXPECT_TRUE(QFile::exists(source.toLocalFile()));
}

TEST_F(AuxiliaryFiles, AreOfferedToWhatIsRegistered)
{
    SpecificationManager manager;
    manager.setAuxiliaryFiles({files.url(u"a.pdf"_s), files.url(u"b.pdf"_s), files.url(u"c.pdf"_s),
                               files.url(u"d.pdf"_s)});
    EXPECT_EQ(notifications, 0) << "the list is the host's own";
    const auto first = Taker::make(2);
    first->takes = [](const QUrl &url) -> bool {
        return url.fileName() == u"a.pdf" ? throw std::runtime_error("a") : true;
    };
    manager.registerSpecification(first);
    EXPECT_EQ(first->offered, (QStringList{u"a.pdf"_s, u"b.pdf"_s})) << "one a registration";
    const auto second = Taker::make();
    second->takes = [](const QUrl &url) { return url.fileName() == u"d.pdf"; };
    manager.registerSpecification(second);
    EXPECT_EQ(second->offered, (QStringList{u"a.pdf"_s, u"c.pdf"_s, u"d.pdf"_s})) << "b is bound";
    manager.assignExistingAuxiliaryFiles(*first);
    EXPECT_EQ(first->offered.last(), u"c.pdf"_s) << "when asked to, another one";

    SpecificationManager other;
    other.registerSpecification(Taker::make(0));
    EXPECT_EQ(notifications, 0) << "what wants no file leaves the list unread";
}

TEST_F(AuxiliaryFiles, AreForgotten)
{
    for (const QString &word : {u"alpha"_s, u"beta"_s})
        writeMap(word);
    auto manager = start();
    manager->setSpecComparators({[](const Specification &a, const Specification &b) {
        return b.identifier().compare(a.identifier()) <=> 0;
    }});
    const QUrl alpha = manager->registerAuxiliaryFile(writeDocument(u"alpha"_s, u"a.pdf"_s));
    const QUrl beta = manager->registerAuxiliaryFile(writeDocument(u"beta"_s, u"b.pdf"_s));
    const auto old = manager->specifications();
    notifications = 0;

    manager->unregisterAuxiliaryFile(files.url(u"a.pdf"_s));
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Tried to unregister a file that isn't registered"_s));
    EXPECT_EQ(notifications, 0);

    manager->unregisterAuxiliaryFile(manager->auxiliaryFiles()[1]);
    EXPECT_THAT(manager->auxiliaryFiles(), ElementsAre(alpha));
    EXPECT_EQ(storeContents(), QStringList{u"a.pdf"_s});
    EXPECT_TRUE(QFile::exists(files.path(u"b.pdf"_s))) << "the original is the user's";
    ASSERT_EQ(manager->specifications().size(), 2U);
    EXPECT_EQ(manager->specifications()[1], old[1]);
    EXPECT_NE(manager->specifications()[0], old[0]);
    EXPECT_EQ(manager->specifications()[0]->identifier(), u"beta"_s);
    EXPECT_EQ(manager->primarySpecification(), manager->specifications()[0]);
    EXPECT_EQ(boundFile(*manager, u"beta"_s), std::nullopt);
    EXPECT_EQ(boundFile(*manager, u"alpha"_s), alpha);
    EXPECT_EQ(notifications, 1);

    QFile::remove(files.path(u"maps/alpha.xml"_s));
    manager->unregisterAuxiliaryFile(alpha);
    EXPECT_EQ(manager->specifications()[1], old[1]) << "better the old one than none";
    EXPECT_EQ(log.takeMessages()
                  .filter(u"Error re-loading the specification after deleting its "
                          "auxiliary file: "_s)
                  .size(),
              1);
    EXPECT_EQ(notifications, 2);
    EXPECT_THAT(storeContents(), IsEmpty());

    const QUrl outside = files.url(u"b.pdf"_s);
    QDir().mkpath(storePath() + u"-backup"_s);
    QFile::copy(outside.toLocalFile(), storePath() + u"-backup/b.pdf"_s);
    for (const QUrl &url : {outside, storeUrl(u"../host-backup/b.pdf"_s),
                            QUrl::fromLocalFile(storePath() + u"-backup/b.pdf"_s)}) {
        manager->setAuxiliaryFiles({url});
        manager->unregisterAuxiliaryFile(url);
        EXPECT_TRUE(QFile::exists(url.toLocalFile())) << "only the store is ours";
        EXPECT_THAT(manager->auxiliaryFiles(), IsEmpty());
    }
    EXPECT_EQ(notifications, 5);
}

TEST_F(AuxiliaryFiles, AreBoundWhereTheyLieOnRequest)
{
    writeMap(u"alpha"_s);
    writeMap(u"beta"_s);
    const auto manager = start();
    const QUrl url = writeDocument(u"beta"_s, u"report.pdf"_s);
    notifications = 0;
    OpeningCounter openings(files.path());
    EXPECT_EQ(manager->bindAuxiliaryFile(url), manager->specifications().back());
    EXPECT_EQ(openings.takeCounts()[u"report.pdf"_s], 1) << "two maps saw it, and one bound it";
    EXPECT_EQ(boundFile(*manager, u"beta"_s), url);
    EXPECT_EQ(manager->specificationBoundTo(url), manager->specifications().back());
    EXPECT_THAT(manager->auxiliaryFiles(), IsEmpty());
    EXPECT_FALSE(QFile::exists(storePath()));
    EXPECT_EQ(notifications, 0);
    EXPECT_THROW(manager->bindAuxiliaryFile(url), SpecificationManager::SetupError);
}

TEST_F(AuxiliaryFiles, AreOpenedOnceForEachThatTheyAreOfferedTo)
{
    const QStringList words{u"alpha"_s, u"beta"_s, u"delta"_s, u"gamma"_s};
    for (const QString &word : words)
        writeMap(word);
    auto manager = start();
    QDir().mkpath(storePath());
    const OpeningCounter sources(files.path());
    OpeningCounter store(storePath());
    // The names make each map find its document last.
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString name = u"%1.pdf"_s.arg(words.size() - i);
        manager->registerAuxiliaryFile(writeDocument(words[i], name));
    }
    const auto afterImport = store.takeCounts();
    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(afterImport[u"%1.pdf"_s.arg(number)], 1) << "to bind the copy";

    // File 4 is offered to the first map alone, file 1 to all of them.
    manager = start();
    auto counts = store.takeCounts();
    for (int number = 1; number <= 4; ++number) {
        EXPECT_GE(counts[u"%1.pdf"_s.arg(number)], 1);
        EXPECT_LE(counts[u"%1.pdf"_s.arg(number)], 5 - number);
    }
    // What was not written just now is opened to recognise it and to bind it, whatever comes
    // between.
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    manager = start();
    store.takeCounts();
    manager = start();
    counts = store.takeCounts();
    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(counts[u"%1.pdf"_s.arg(number)], 1) << "its words are known";
    for (const QString &word : words)
        EXPECT_NE(boundFile(*manager, word), std::nullopt);
}
