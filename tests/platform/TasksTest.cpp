// SPDX-License-Identifier: Apache-2.0
#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>

#include <support/Test.h>

#include <memory>
#include <thread>
#include <vector>

#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/PoolTask.h>
#include <Tavrin/platform/PostedTask.h>
#include <support/FinishTasks.h>

TEST(TasksTest, TasksRunInOrderOnTheThreadOfTheApplication)
{
    std::vector<int> done;
    std::thread([&done] {
        for (int i = 0; i < 3; ++i) {
            postTask([&done, i] {
                EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
                done.push_back(i);
            });
        }
    }).join();
    EXPECT_TRUE(done.empty());
    QCoreApplication::processEvents();
    EXPECT_THAT(done, ElementsAre(0, 1, 2));
}

TEST(TasksTest, ATaskThatRunsALoopHoldsUpNoOther)
{
    std::vector<int> done;
    QEventLoop loop;
    postTask([&] {
        postTask([&] {
            done.push_back(2);
            loop.quit();
        });
        loop.exec();
        done.push_back(1);
    });
    QCoreApplication::processEvents();
    EXPECT_THAT(done, ElementsAre(2, 1));
}

TEST(TasksTest, WhatATaskHoldsIsGoneOnceItCountsAsDone)
{
    const auto held = std::make_shared<int>(0);
    for (int i = 0; i < 100; ++i)
        startTask(backgroundPool(), [copy = held] {});
    finishTasks(backgroundPool());
    EXPECT_EQ(held.use_count(), 1);
}
