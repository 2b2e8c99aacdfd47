#include "quorvel/parallel.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

// Whatever the numbers, each element has its turn once.
TEST(CppParallel, SharesOutAllElementsInChunksOfWholePacks) {
    for (const std::size_t count : {0, 1, 63, 64, 65, 1000, 100000})
        for (const unsigned threads : {0u, 1u, 2u, 7u, 200u}) {
            std::vector<int> turns(count);
            quorvel::parallel(
                count,
                [&](std::size_t first, std::size_t size) {
                    EXPECT_EQ(first % 64, 0u);
                    EXPECT_TRUE(size % 64 == 0 || first + size == count);
                    for (std::size_t i = 0; i < size; ++i) ++turns.at(first + i);
                },
                threads);
            EXPECT_EQ(turns, std::vector<int>(count, 1)) << threads;
        }
}

TEST(CppParallel, WorksOnSeveralThreads) {
    std::mutex lock;
    std::condition_variable arrived;
    std::set<std::thread::id> threads;
    quorvel::parallel(
        1000,
        [&](std::size_t, std::size_t) {
            // Goes on when another thread has come, so that one alone cannot do it all.
            std::unique_lock guard(lock);
            threads.insert(std::this_thread::get_id());
            arrived.notify_all();
            arrived.wait_for(guard, std::chrono::seconds(20), [&] { return threads.size() > 1; });
        },
        2);
    EXPECT_EQ(threads.size(), 2u);
}

TEST(CppParallel, ThrowsWhatAChunkThrows) {
    for (const unsigned threads : {1u, 4u}) {
        std::atomic<int> calls = 0;
        const auto fail = [&](std::size_t, std::size_t) {
            ++calls;
            throw std::runtime_error("of a chunk");
        };
        EXPECT_THROW(quorvel::parallel(100000, fail, threads), std::runtime_error);
        EXPECT_LE(calls, static_cast<int>(threads)) << "no chunk is begun after one has failed";
    }
}

}  // namespace
