// SPDX-License-Identifier: Apache-2.0
#include <QSignalSpy>

#include <atomic>
#include <stdexcept>
#include <thread>

#include <Tavrin/interface/toolkit/BackgroundWork.h>
#include <support/Test.h>

#include "PoolGate.h"
#include "Windows.h"

TEST(BackgroundWork, TellsItsProgressAndItsEnd)
{
    for (const bool fails : {false, true}) {
        BackgroundWork work;
        QSignalSpy progressed(&work, &BackgroundWork::progressed);
        QSignalSpy finished(&work, &BackgroundWork::finished);
        work.start([fails](const BackgroundWork::Progress &progress) {
            for (const double done : {0.25, 0.5})
                progress(done);
            if (fails)
                throw std::runtime_error("no room");
        });
        ASSERT_TRUE(waitFor([&] { return !finished.isEmpty(); }));
        EXPECT_EQ(progressed.size(), 1) << "not more often than can be seen";
        EXPECT_EQ(progressed[0][0].toDouble(), 0.25);
        EXPECT_EQ(finished[0][0].toString(), fails ? u"no room"_s : QString());
    }
}

TEST(BackgroundWork, EndsAtItsNextProgressWhenItIsGivenUp)
{
    auto work = std::make_unique<BackgroundWork>();
    const auto held = std::make_shared<int>();
    std::atomic<bool> hasBegun = false;
    std::atomic<bool> mayGoOn = false;
    std::atomic<bool> wentOn = false;
    bool wasTold = false;
    QObject::connect(work.get(), &BackgroundWork::progressed, [&] { wasTold = true; });
    QObject::connect(work.get(), &BackgroundWork::finished, [&] { wasTold = true; });
    work->start([&, copy = held](const BackgroundWork::Progress &progress) {
        progress(0);
        hasBegun = true;
        while (!mayGoOn)
            std::this_thread::yield();
        progress(0.5);
        wentOn = true;
    });
    while (!hasBegun)
        std::this_thread::yield();
    work.reset();
    EXPECT_GT(held.use_count(), 1) << "what the work holds lives until it ends";
    mayGoOn = true;
    finishTasks(backgroundPool());
    QCoreApplication::processEvents();
    EXPECT_FALSE(wentOn);
    EXPECT_FALSE(wasTold);
    EXPECT_EQ(held.use_count(), 1);
}

TEST(BackgroundWork, DoesNotBeginWhenItIsGivenUpBefore)
{
    PoolGate gate;
    std::atomic<bool> hasBegun = false;
    {
        BackgroundWork work;
        work.start([&](const BackgroundWork::Progress &) { hasBegun = true; });
    }
    gate.open();
    finishTasks(backgroundPool());
    EXPECT_FALSE(hasBegun);
}
