#include "datatypes/SpinLock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>

namespace tarn {
namespace test {

TEST(SpinLockTest, CanBeTakenAgainOnceItIsGivenBack)
{
    SpinLock lock;
    int times = 0;
    for (int i = 0; i < 3; ++i) {
        std::lock_guard<SpinLock> const guard(lock);
        ++times;
    }
    EXPECT_EQ(3, times);
}

TEST(SpinLockTest, NobodyIsInsideWithAnother)
{
    SpinLock lock;
    int counter = 0;
    auto const count = [&] {
        for (int i = 0; i < 200000; ++i) {
            std::lock_guard<SpinLock> const guard(lock);
            ++counter;
        }
    };
    std::thread other(count);
    count();
    other.join();
    EXPECT_EQ(400000, counter);
}

TEST(SpinLockTest, WhoWaitsSeesWhatWasWrittenBefore)
{
    SpinLock lock;
    std::atomic<bool> isWaiting{false};
    int written = 0;
    int seen = -1;
    lock.lock();
    std::thread other([&] {
        isWaiting = true;
        std::lock_guard<SpinLock> const guard(lock);
        seen = written;
    });
    while (!isWaiting)
        std::this_thread::yield();
    written = 7;
    lock.unlock();
    other.join();
    EXPECT_EQ(7, seen);
}

}  // namespace test
}  // namespace tarn
