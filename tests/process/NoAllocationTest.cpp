// Counts what the process asks of the heap, which needs a program of its own.

#include "support/FakeProject.h"

#include "commands/CommandHistory.h"
#include "commands/NullCmd.h"
#include "datatypes/GraphicsUtil.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "project/ReadWriteMutex.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
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

/// What a renderer asks at every frame, of pictures that it has not met before.
class FramesQuestions : public ::testing::Test
{
protected:
    FramesQuestions()
        : mixer(new VisualMixer(640, 480, project->weak()))
        , track(new VisualTrack(project->weak()))
        , media(new VMFile(Range<long long>(0, 100), project->weak(), Rect<float>(0, 0, 64, 48),
                           "video"))
    {
        track->addMedia(media, 0);
    }

    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    boost::shared_ptr<VisualMixer> const mixer;
    boost::shared_ptr<VisualTrack> const track;
    boost::shared_ptr<VMFile> const media;
};

TEST_F(FramesQuestions, TheMediaUnderATime)
{
    Track const& seen = *track;
    EXPECT_EQ(0, allocationsOf([&] { EXPECT_EQ(media, seen.mediaAtTime(5).second); }));
}

TEST_F(FramesQuestions, AllValuesOfAPictureNobodyAskedForItsParameters)
{
    double values[VisualMedia::k_numShownValues];
    EXPECT_EQ(0, allocationsOf([&] { media->shownValuesAtTime(5, values); }));
    EXPECT_EQ(1.0, values[8]);
}

TEST_F(FramesQuestions, TheMatrixAndTheCrops)
{
    EXPECT_EQ(0, allocationsOf([&] {
                  EXPECT_EQ(TransformMatrix(),
                            GraphicsUtil::calcModelMatrix(mixer, track, media, 5));
                  EXPECT_EQ(64, media->sourceCropRectAtTime(5).width);
                  EXPECT_EQ(48, media->geometryCropRectAtTime(5).height);
              }));
}

TEST_F(FramesQuestions, AnAnimatedPictureWithAFade)
{
    boost::shared_ptr<InterpolatingParam<double>> const opacity = media->opacity();
    boost::shared_ptr<InterpolatingParam<double>> const x = media->translation()->at(0);
    x->addKeyFrame(10, 100.0);
    media->setLeftEdgeModificationLength(20);
    media->addLeftEdgeModification(EdgeModification(opacity, FadeInFunc()));
    double values[VisualMedia::k_numShownValues];
    EXPECT_EQ(0, allocationsOf([&] {
                  media->shownValuesAtTime(5, values);
                  EXPECT_EQ(0.25, values[8]);
                  EXPECT_EQ(0.25, media->transformedDoubleParameterValueAtTime(opacity, 5));
                  EXPECT_EQ(50.0, values[9]);
                  EXPECT_EQ(TransformMatrix::translate(50, 0, 0),
                            GraphicsUtil::calcModelMatrix(mixer, track, media, 5));
              }));
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
