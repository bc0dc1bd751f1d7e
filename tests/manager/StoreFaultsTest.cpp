// SPDX-License-Identifier: Apache-2.0
#include "StoreFixture.h"

#include <sys/file.h>

#include <QFile>

#include <Tavrin/platform/FileDescriptor.h>
#include <Tavrin/platform/FileFlags.h>

#include "SmallDisk.h"

namespace
{

/// What goes wrong with disks and files while the user imports.
class StoreFaults : public StoreFixture
{
protected:
    StoreFaults() { manager.registerSpecification(taker); }

    /// The file can't be stored: it is bound where it lies, and the log says why.
    void expectBoundInPlace(const QUrl &source, const QString &reason)
    {
        EXPECT_EQ(manager.registerAuxiliaryFile(source), source);
        const QStringList messages = log.takeMessages();
        ASSERT_EQ(messages.size(), 1);
        EXPECT_THAT(messages[0], Holds(reason));
        EXPECT_EQ(taker->auxiliaryFileRequirements().front()->fileURL, source);
        EXPECT_THAT(manager.auxiliaryFiles(), ElementsAre(source));
    }

    std::shared_ptr<Taker> taker = Taker::make();
    SpecificationManager manager;
};

} // namespace

TEST_F(StoreFaults, AFullDiskLeavesNoPart)
{
    const SmallDisk disk(storePath(), 64);
    if (!disk.isMounted())
        GTEST_SKIP() << "mounting a small disk is not allowed here";
    const QUrl source = files.write(u"big.pdf"_s, QByteArray(1 << 20, 'x'));
    expectBoundInPlace(source, u"No space left on device"_s);
    EXPECT_THAT(storeContents(), IsEmpty());
    EXPECT_EQ(files.read(u"big.pdf"_s).size(), 1 << 20);
    manager.unregisterAuxiliaryFile(source);
    EXPECT_TRUE(QFile::exists(source.toLocalFile()));

    manager.setSpecifications({Taker::make()});
    manager.registerAuxiliaryFile(files.write(u"small.pdf"_s, QByteArray(1 << 14, 'x')));
    EXPECT_EQ(storeContents(), QStringList{u"small.pdf"_s}) << "what fits is stored";
}

TEST_F(StoreFaults, AReadOnlyStoreKeepsWhatItHas)
{
    const SmallDisk disk(storePath(), 64);
    if (!disk.isMounted())
        GTEST_SKIP() << "mounting a small disk is not allowed here";
    taker->takes = [](const QUrl &) { return false; };
    const QUrl stored = manager.registerAuxiliaryFile(files.write(u"a.pdf"_s, "a"));
    ASSERT_TRUE(disk.makeReadOnly());
    const QUrl source = files.write(u"b.pdf"_s, "b");
    EXPECT_EQ(manager.registerAuxiliaryFile(source), source);
    EXPECT_THAT(log.takeMessages(), ElementsAre(testing::ResultOf(
                                        [](const QString &message) {
                                            return message.startsWith(u"Error copying file: "_s) &&
                                                   message.endsWith(u"Read-only file system"_s);
                                        },
                                        true)));
    manager.unregisterAuxiliaryFile(stored);
    EXPECT_THAT(manager.auxiliaryFiles(), ElementsAre(source));
    EXPECT_EQ(storedBytes(u"a.pdf"_s), "a") << "what can't be deleted comes back";
    SpecificationManager next;
    EXPECT_THAT(next.auxiliaryFiles(), ElementsAre(stored));
}

TEST_F(StoreFaults, AFileInTheStoresPlaceMeansNoStore)
{
    files.write(u"data/tavrin/host"_s, "not a directory");
    EXPECT_EQ(SpecificationManager::supportDirectory(), std::nullopt);
    expectBoundInPlace(files.write(u"a.pdf"_s, "a"),
                       u"Failed to copy auxiliary file - there is no support directory"_s);
    EXPECT_EQ(files.read(u"data/tavrin/host"_s), "not a directory");
}

TEST_F(StoreFaults, ASourceThatGoesLeavesNothing)
{
    const QUrl source = files.write(u"a.pdf"_s, "a");
    taker->recognises = [](const QUrl &url) { return QFile::remove(url.toLocalFile()); };
    expectBoundInPlace(source, u"No such file or directory"_s);
    EXPECT_THAT(storeContents(), IsEmpty());
}

TEST_F(StoreFaults, WhatIsNoFileIsNotStored)
{
    QDir().mkpath(files.path(u"folder.pdf"_s));
    expectBoundInPlace(files.url(u"folder.pdf"_s), u"Is a directory"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(files.path(u"pipe.pdf"_s)).constData(), 0600), 0);
    manager.setSpecifications({taker = Taker::make()});
    manager.setAuxiliaryFiles({});
    expectBoundInPlace(files.url(u"pipe.pdf"_s), u"Invalid argument"_s);
    EXPECT_THAT(storeContents(), IsEmpty());
}

TEST_F(StoreFaults, AStartCleansUpWhatACrashLeft)
{
    files.write(u"data/tavrin/host/.tavrin-0123456789abcdef.part"_s, "left behind");
    files.write(u"data/tavrin/host/.tavrin-fedcba9876543210.part"_s, "being written");
    files.write(u"data/tavrin/host/.tavrin-notes.pdf"_s, "somebody's");
    files.write(u"data/tavrin/host/.pdf"_s, "imported");
    files.write(u"data/tavrin/host/a.pdf"_s, "imported");
    auto writer =
        std::make_unique<FileDescriptor>(storePath(u".tavrin-fedcba9876543210.part"_s), O_RDWR);
    ASSERT_EQ(::flock(writer->number(), LOCK_EX), 0);
    SpecificationManager next;
    EXPECT_THAT(next.auxiliaryFiles(), ElementsAre(storeUrl(u"a.pdf"_s)));
    EXPECT_EQ(storeContents(), (QStringList{u".pdf"_s, u".tavrin-fedcba9876543210.part"_s,
                                            u".tavrin-notes.pdf"_s, u"a.pdf"_s}));
    writer.reset();
    SpecificationManager last;
    EXPECT_THAT(last.auxiliaryFiles(), ElementsAre(storeUrl(u"a.pdf"_s)));
    EXPECT_EQ(storeContents(), (QStringList{u".pdf"_s, u".tavrin-notes.pdf"_s, u"a.pdf"_s}));
}

TEST_F(StoreFaults, ALockedFileIsUnlockedToBeDeleted)
{
    const QUrl stored = manager.registerAuxiliaryFile(files.write(u"a.pdf"_s, "a"));
    const QString path = stored.toLocalFile();
    EXPECT_NE(FileFlags::isImmutable(path), true);
    if (!FileFlags::setImmutable(path, true))
        GTEST_SKIP() << "locking a file is not allowed here";
    EXPECT_EQ(FileFlags::isImmutable(path), true);
    EXPECT_FALSE(QFile::remove(path));
    manager.unregisterAuxiliaryFile(stored);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(FileFlags::isImmutable(path), std::nullopt);
}
