// Counts what the process asks of the heap, which needs a program of its own.

#include "support/FakeProject.h"

#include "commands/CommandHistory.h"
#include "commands/NullCmd.h"
#include "parameters/InterpolatingParam.h"
#include "project/ReadWriteMutex.h"
#include "timeline/VisualTrack.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <string>

namespace {

std::atomic<int> s_allocations{0};

}  // namespace

// Takes the place of the system's own in this program. Never inlined: the compiler would see a
// free() without its malloc() then, and warn.

[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++s_allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace tarn {
namespace test {

namespace {

template <class Action>
int allocationsOf(Action action)
{
    int const before = s_allocations;
    action();
    return s_allocations - before;
}

template <class T>
boost::shared_ptr<InterpolatingParam<T>> ramp(FakeProject const& project)
{
    boost::shared_ptr<InterpolatingParam<T>> const parameter(
        new InterpolatingParam<T>(project.weak(), "value"));
    for (int i = 0; i < 100; ++i) {
        parameter->addKeyFrame(10 * i, static_cast<T>(i));
    }
    return parameter;
}

}  // namespace

TEST(NoAllocationTest, AnAllocationIsSeen)
{
    std::string text;
    EXPECT_EQ(1, allocationsOf([&] { text.assign(100, 'x'); }));
}

TEST(NoAllocationTest, AValueOfADoubleParameter)
{
    auto const project = FakeProject::create();
    auto const parameter = ramp<double>(*project);
    EXPECT_EQ(0, allocationsOf([&] { EXPECT_EQ(2.5, parameter->valueAtTime(25)); }));
    EXPECT_EQ(0, allocationsOf([&] { EXPECT_EQ(3.0, parameter->valueAtTime(30)); }));
    EXPECT_EQ(0, allocationsOf([&] { EXPECT_EQ(99.0, parameter->valueAtTime(1e9)); }));
}

TEST(NoAllocationTest, AValueWhileTheInterpolaterHasBeenLookedAt)
{
    auto const project = FakeProject::create();
    auto const parameter = ramp<double>(*project);
    EXPECT_EQ(1, parameter->interpolaterParam()->numKeyFrames());
    EXPECT_EQ(0, allocationsOf([&] { EXPECT_EQ(2.5, parameter->valueAtTime(25)); }));
}

TEST(NoAllocationTest, AValueOfAFloatParameter)
{
    auto const project = FakeProject::create();
    auto const parameter = ramp<float>(*project);
    EXPECT_EQ(0, allocationsOf([&] { EXPECT_EQ(2.5f, parameter->valueAtTime(25)); }));
}

TEST(NoAllocationTest, AReadLock)
{
    auto const project = FakeProject::create();
    VisualTrack const track(project->weak());
    EXPECT_EQ(0, allocationsOf([&] { ReadWriteMutex::ScopedReadLock const lock(track.mutex()); }));
}

TEST(NoAllocationTest, AWriteLockWithLocksNestedInIt)
{
    ReadWriteMutex mutex;
    EXPECT_EQ(0, allocationsOf([&] {
                  ReadWriteMutex::ScopedWriteLock const outer(mutex);
                  ReadWriteMutex::ScopedWriteLock const inner(mutex);
                  ReadWriteMutex::ScopedReadLock const read(mutex);
              }));
}

TEST(NoAllocationTest, AStrictLockWithLocksNestedInIt)
{
    ReadWriteMutex mutex(LockPolicy::Strict);
    EXPECT_EQ(0, allocationsOf([&] {
                  ReadWriteMutex::ScopedReadLock const outer(mutex);
                  ReadWriteMutex::ScopedReadLock const inner(mutex);
              }));
    EXPECT_EQ(0, allocationsOf([&] {
                  ReadWriteMutex::ScopedWriteLock const outer(mutex);
                  ReadWriteMutex::ScopedWriteLock const inner(mutex);
                  ReadWriteMutex::ScopedReadLock const read(mutex);
              }));
}

TEST(NoAllocationTest, AHistoryThatUndoesAndRedoes)
{
    CommandHistory history(nullptr);
    for (int i = 0; i < 100; ++i) {
        history.execute(NullCmd::create());
    }
    EXPECT_EQ(0, allocationsOf([&] {
                  history.undoAll();
                  history.redoAll();
              }));
}

}  // namespace test
}  // namespace tarn
