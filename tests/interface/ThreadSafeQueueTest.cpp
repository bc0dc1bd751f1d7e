// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>
#include <numeric>
#include <thread>
#include <vector>

#include <support/Test.h>

#include <Tavrin/interface/sidebars/ThreadSafeQueue.h>

TEST(ThreadSafeQueue, GivesBackInOrderAndForgetsWhatIsRemoved)
{
    ThreadSafeQueue<std::shared_ptr<int>> queue;
    EXPECT_FALSE(queue.dequeue());
    const auto kept = std::make_shared<int>(3);
    queue.enqueue(std::make_shared<int>(1));
    queue.enqueue(std::make_shared<int>(2));
    queue.enqueue(kept);
    EXPECT_EQ(**queue.dequeue(), 1);
    EXPECT_EQ(**queue.dequeue(), 2);
    queue.enqueue(std::make_shared<int>(4));
    queue.removeAll();
    EXPECT_FALSE(queue.dequeue());
    EXPECT_EQ(kept.use_count(), 1);
    queue.enqueue(kept);
    EXPECT_EQ(**queue.dequeue(), 3);
}

TEST(ThreadSafeQueue, HandsEachElementToOneThread)
{
    constexpr int count = 20'000;
    ThreadSafeQueue<int> queue;
    std::vector<int> taken[2];
    const auto take = [&queue](std::vector<int> &into) {
        for (;;) {
            const auto element = queue.dequeue();
            if (element == -1)
                return;
            if (element)
                into.push_back(*element);
        }
    };
    std::thread one(take, std::ref(taken[0]));
    std::thread other(take, std::ref(taken[1]));
    for (int i = 0; i < count; ++i)
        queue.enqueue(i);
    queue.enqueue(-1);
    queue.enqueue(-1);
    one.join();
    other.join();
    // Each thread has seen them in order, and together they have seen all.
    std::vector<int> all;
    for (const std::vector<int> &part : taken) {
        EXPECT_TRUE(std::is_sorted(part.begin(), part.end()));
        all.insert(all.end(), part.begin(), part.end());
    }
    std::sort(all.begin(), all.end());
    std::vector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(all, expected);
}
