#include "exceptions/KeyFrameException.h"
#include "parameters/Interpolater.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"
#include "support/CountingObserver.h"
#include "support/FakeProject.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using test::CountingObserver;
using test::FakeProject;

long long const k_max = std::numeric_limits<long long>::max();
long long const k_min = std::numeric_limits<long long>::min();
double const k_nan = std::numeric_limits<double>::quiet_NaN();
double const k_infinity = std::numeric_limits<double>::infinity();

using Frame = boost::shared_ptr<KeyFrame<double>>;
using TimeList = std::vector<long long>;

/// A policy that answers with the position it is asked for.
class PositionTeller : public Interpolater<double>
{
public:
    PositionTeller() : Interpolater<double>("tell") {}

protected:
    double doInterpolate(double, double, double position) const override { return position; }
};

/// A host's own kind of frame.
class HostFrame : public KeyFrame<double>
{
public:
    using KeyFrame::KeyFrame;
    HostFrame* clone() const override { return new HostFrame(*this); }
};

class ParameterImplTest : public ::testing::Test
{
protected:
    ParameterImplTest() { parameter->attach(&observer); }
    ~ParameterImplTest() override { parameter->detach(&observer); }

    /// What a call throws as a key-frame failure, in words.
    template <class Call>
    static std::string failureOf(Call const& call)
    {
        try {
            call();
        } catch (KeyFrameException const& failure) {
            return failure.what();
        }
        return "nothing thrown";
    }

    void tellPositions()
    {
        parameter->interpolaterParam()->changeKeyFrame(
            0, boost::shared_ptr<Interpolater<double>>(new PositionTeller));
    }

    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    boost::shared_ptr<InterpolatingParam<double>> const parameter{
        new InterpolatingParam<double>(project->weak(), "level")};
    CountingObserver observer;
};

// Key frames.

TEST_F(ParameterImplTest, StartsWithoutKeyFrames)
{
    EXPECT_EQ(0, parameter->numKeyFrames());
    EXPECT_EQ(TimeList(), *parameter->keyframeTimes());
}

TEST_F(ParameterImplTest, KeepsKeyFramesByAscendingTime)
{
    parameter->addKeyFrame(10, 1.0);
    parameter->addKeyFrame(-5, 2.0);
    parameter->addKeyFrame(3, 3.0);
    EXPECT_EQ((TimeList{-5, 3, 10}), *parameter->keyframeTimes());
    EXPECT_EQ(2.0, parameter->keyframeAtTime(-5)->value());
    EXPECT_EQ(3.0, parameter->keyframeAtTime(3)->value());
    EXPECT_EQ(1.0, parameter->keyframeAtTime(10)->value());
    EXPECT_EQ(3, observer.calls());
}

TEST_F(ParameterImplTest, StoresAGivenFrameItself)
{
    Frame const frame(new KeyFrame<double>(4, 2.5));
    parameter->addKeyFrame(frame);
    EXPECT_EQ(frame, parameter->keyframeAtTime(4));
    EXPECT_EQ(1, observer.calls());
}

TEST_F(ParameterImplTest, AddingAtATakenTimeThrowsAndKeepsTheOldFrame)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 4",
              failureOf([this] { parameter->addKeyFrame(4, 2.0); }));
    EXPECT_EQ("Invalid KeyFrame operation at time 4",
              failureOf([this] { parameter->addKeyFrame(Frame(new KeyFrame<double>(4, 2.0))); }));
    EXPECT_EQ(1.0, parameter->keyframeAtTime(4)->value());
    EXPECT_EQ(1, observer.calls());
}

TEST_F(ParameterImplTest, AddingNoFrameThrows)
{
    EXPECT_EQ("Invalid KeyFrame operation at time 0",
              failureOf([this] { parameter->addKeyFrame(Frame()); }));
    EXPECT_EQ(0, parameter->numKeyFrames());
}

TEST_F(ParameterImplTest, ChangingAValueReturnsTheOldOne)
{
    parameter->addKeyFrame(4, 1.0);
    Frame const frame = parameter->keyframeAtTime(4);
    EXPECT_EQ(1.0, parameter->changeKeyFrame(4, 2.0));
    EXPECT_EQ(2.0, frame->value());
    EXPECT_EQ(frame, parameter->keyframeAtTime(4));
    EXPECT_EQ(2, observer.calls());
}

TEST_F(ParameterImplTest, ChangingAFrameReturnsTheOldOne)
{
    parameter->addKeyFrame(4, 1.0);
    Frame const old = parameter->keyframeAtTime(4);
    Frame const frame(new KeyFrame<double>(4, 2.0));
    EXPECT_EQ(old, parameter->changeKeyFrame(4, frame));
    EXPECT_EQ(frame, parameter->keyframeAtTime(4));
    EXPECT_EQ(2, observer.calls());
}

TEST_F(ParameterImplTest, AFramePutInPlaceTakesOnTheTimeThere)
{
    parameter->addKeyFrame(4, 1.0);
    Frame const frame(new KeyFrame<double>(99, 2.0));
    parameter->changeKeyFrame(4, frame);
    EXPECT_EQ(4, frame->time());
    EXPECT_EQ((TimeList{4}), *parameter->keyframeTimes());
}

TEST_F(ParameterImplTest, ChangingWhereNoFrameIsThrows)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 5",
              failureOf([this] { parameter->changeKeyFrame(5, 2.0); }));
    EXPECT_EQ("Invalid KeyFrame operation at time 5", failureOf([this] {
                  parameter->changeKeyFrame(5, Frame(new KeyFrame<double>(5, 2.0)));
              }));
    EXPECT_EQ((TimeList{4}), *parameter->keyframeTimes());
    EXPECT_EQ(1, observer.calls());
}

TEST_F(ParameterImplTest, ChangingToNoFrameThrows)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 4",
              failureOf([this] { parameter->changeKeyFrame(4, Frame()); }));
    EXPECT_EQ(1.0, parameter->keyframeAtTime(4)->value());
}

TEST_F(ParameterImplTest, RemovingReturnsTheValue)
{
    parameter->addKeyFrame(4, 1.0);
    parameter->addKeyFrame(5, 2.0);
    EXPECT_EQ(1.0, parameter->removeKeyFrame(4));
    EXPECT_EQ((TimeList{5}), *parameter->keyframeTimes());
    EXPECT_EQ(3, observer.calls());
}

TEST_F(ParameterImplTest, RemovingWhereNoFrameIsThrows)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ("Invalid KeyFrame operation at time -1",
              failureOf([this] { parameter->removeKeyFrame(-1); }));
    EXPECT_EQ(1, parameter->numKeyFrames());
    EXPECT_EQ(1, observer.calls());
}

TEST_F(ParameterImplTest, AMovedFrameKeepsItsIdentity)
{
    parameter->addKeyFrame(4, 1.0);
    parameter->addKeyFrame(6, 2.0);
    Frame const frame = parameter->keyframeAtTime(4);
    parameter->moveKeyFrame(4, 8);
    EXPECT_EQ((TimeList{6, 8}), *parameter->keyframeTimes());
    EXPECT_EQ(frame, parameter->keyframeAtTime(8));
    EXPECT_EQ(8, frame->time());
    EXPECT_EQ(3, observer.calls());
}

TEST_F(ParameterImplTest, MovingFromWhereNoFrameIsThrows)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 3",
              failureOf([this] { parameter->moveKeyFrame(3, 4); }));
}

TEST_F(ParameterImplTest, MovingToATakenTimeThrowsAndMovesNothing)
{
    parameter->addKeyFrame(4, 1.0);
    parameter->addKeyFrame(6, 2.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 6",
              failureOf([this] { parameter->moveKeyFrame(4, 6); }));
    EXPECT_EQ((TimeList{4, 6}), *parameter->keyframeTimes());
    EXPECT_EQ(4, parameter->keyframeAtTime(4)->time());
    EXPECT_EQ(2, observer.calls());
}

TEST_F(ParameterImplTest, MovingAFrameOntoItselfThrows)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 4",
              failureOf([this] { parameter->moveKeyFrame(4, 4); }));
}

TEST_F(ParameterImplTest, AskingForAFrameThatIsNotThereThrows)
{
    EXPECT_EQ("Invalid KeyFrame operation at time 7",
              failureOf([this] { parameter->keyframeAtTime(7); }));
}

TEST_F(ParameterImplTest, AFailureCarriesItsTime)
{
    try {
        parameter->removeKeyFrame(-12);
        FAIL() << "nothing thrown";
    } catch (KeyFrameException const& failure) {
        EXPECT_EQ(-12, failure.time());
    }
}

// Times.

TEST_F(ParameterImplTest, KnowsWhereKeyFramesAre)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_TRUE(parameter->hasKeyFrameAtTime(4));
    EXPECT_FALSE(parameter->hasKeyFrameAtTime(3));
    EXPECT_FALSE(parameter->hasKeyFrameAtTime(5));
}

TEST_F(ParameterImplTest, BothEndsOfARangeCount)
{
    parameter->addKeyFrame(10, 1.0);
    EXPECT_TRUE(parameter->hasKeyFrameInRange(Range<long long>(10, 5)));
    EXPECT_TRUE(parameter->hasKeyFrameInRange(Range<long long>(5, 5)));
    EXPECT_FALSE(parameter->hasKeyFrameInRange(Range<long long>(5, 4)));
    EXPECT_FALSE(parameter->hasKeyFrameInRange(Range<long long>(11, 5)));
}

TEST_F(ParameterImplTest, ARangeWithoutDurationStillHasItsStart)
{
    parameter->addKeyFrame(10, 1.0);
    EXPECT_TRUE(parameter->hasKeyFrameInRange(Range<long long>(10, 0)));
    EXPECT_FALSE(parameter->hasKeyFrameInRange(Range<long long>(9, 0)));
    EXPECT_FALSE(parameter->hasKeyFrameInRange(Range<long long>(10, -1)));
}

TEST_F(ParameterImplTest, ARangeMayEndBeyond64Bits)
{
    parameter->addKeyFrame(k_max, 1.0);
    EXPECT_TRUE(parameter->hasKeyFrameInRange(Range<long long>(k_max - 1, k_max)));
    EXPECT_FALSE(parameter->hasKeyFrameInRange(Range<long long>(k_min, -5)));
}

TEST_F(ParameterImplTest, StepsFromTimeToTime)
{
    parameter->addKeyFrame(4, 1.0);
    parameter->addKeyFrame(8, 2.0);
    EXPECT_EQ(4, parameter->firstKeyFrameTime());
    EXPECT_EQ(8, parameter->nextKeyFrameTime(4));
    EXPECT_EQ(8, parameter->nextKeyFrameTime(7));
    EXPECT_EQ(4, parameter->previousKeyFrameTime(8));
    EXPECT_EQ(4, parameter->previousKeyFrameTime(5));
}

TEST_F(ParameterImplTest, NeighboursAreFoundAmongAnyNumberOfKeyFrames)
{
    // At 0, 10, 20 ... one more in each round; asked at, before and behind each of them.
    for (long long count = 1; count <= 70; ++count) {
        long long const last = 10 * (count - 1);
        parameter->addKeyFrame(last, 1.0);
        for (long long time = 0; time <= last; time += 10) {
            long long const before = time == 0 ? k_min : time - 10;
            long long const after = time == last ? k_max : time + 10;
            EXPECT_EQ(before, parameter->previousKeyFrameTime(time));
            EXPECT_EQ(after, parameter->nextKeyFrameTime(time));
            EXPECT_EQ(before, parameter->previousKeyFrameTime(time - 1));
            EXPECT_EQ(time, parameter->nextKeyFrameTime(time - 1));
            EXPECT_EQ(time, parameter->previousKeyFrameTime(time + 1));
            EXPECT_EQ(after, parameter->nextKeyFrameTime(time + 1));
            EXPECT_TRUE(parameter->hasKeyFrameAtTime(time));
            EXPECT_FALSE(parameter->hasKeyFrameAtTime(time + 1));
        }
    }
}

TEST_F(ParameterImplTest, FindsItsWayAmongSevenTimes)
{
    parameter->addKeyFrame(40, 1.0);
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(60, 1.0);
    parameter->addKeyFrame(20, 1.0);
    parameter->addKeyFrame(10, 1.0);
    parameter->addKeyFrame(50, 1.0);
    parameter->addKeyFrame(30, 1.0);
    EXPECT_EQ((TimeList{0, 10, 20, 30, 40, 50, 60}), *parameter->keyframeTimes());
    EXPECT_EQ(0, parameter->previousKeyFrameTime(10));
    EXPECT_EQ(30, parameter->previousKeyFrameTime(31));
    EXPECT_EQ(60, parameter->previousKeyFrameTime(k_max));
    EXPECT_EQ(0, parameter->nextKeyFrameTime(k_min));
    EXPECT_EQ(40, parameter->nextKeyFrameTime(30));
    EXPECT_EQ(60, parameter->nextKeyFrameTime(59));
    EXPECT_EQ(k_max, parameter->nextKeyFrameTime(k_max));
}

TEST_F(ParameterImplTest, StepsBeyondTheEndsToTheLimits)
{
    parameter->addKeyFrame(4, 1.0);
    parameter->addKeyFrame(8, 2.0);
    EXPECT_EQ(k_min, parameter->previousKeyFrameTime(4));
    EXPECT_EQ(k_max, parameter->nextKeyFrameTime(8));
}

TEST_F(ParameterImplTest, AnEmptyParameterHasOnlyTheLimits)
{
    EXPECT_EQ(k_max, parameter->firstKeyFrameTime());
    EXPECT_EQ(k_max, parameter->nextKeyFrameTime(0));
    EXPECT_EQ(k_min, parameter->previousKeyFrameTime(0));
}

TEST_F(ParameterImplTest, ItsRangeGoesFromFirstToLast)
{
    parameter->addKeyFrame(4, 1.0);
    EXPECT_EQ(Range<long long>(4, 0), parameter->keyframeRange());
    parameter->addKeyFrame(-6, 1.0);
    parameter->addKeyFrame(0, 1.0);
    EXPECT_EQ(Range<long long>(-6, 10), parameter->keyframeRange());
}

TEST_F(ParameterImplTest, AnEmptyParameterHasNoRange)
{
    EXPECT_EQ("Invalid KeyFrame operation at time 0",
              failureOf([this] { parameter->keyframeRange(); }));
}

// Shifting.

TEST_F(ParameterImplTest, ShiftsThoughOldAndNewTimesOverlap)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(10, 2.0);
    parameter->moveKeyframes(10);
    EXPECT_EQ((TimeList{10, 20}), *parameter->keyframeTimes());
    EXPECT_EQ(1.0, parameter->keyframeAtTime(10)->value());
    EXPECT_EQ(2.0, parameter->keyframeAtTime(20)->value());
}

TEST_F(ParameterImplTest, ShiftsBackwards)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(10, 2.0);
    parameter->moveKeyframes(-10);
    EXPECT_EQ((TimeList{-10, 0}), *parameter->keyframeTimes());
    EXPECT_EQ(-10, parameter->keyframeAtTime(-10)->time());
}

TEST_F(ParameterImplTest, ShiftingNotifiesOnce)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(10, 2.0);
    parameter->moveKeyframes(3);
    EXPECT_EQ(3, observer.calls());
}

TEST_F(ParameterImplTest, ShiftingNothingStillNotifies)
{
    parameter->moveKeyframes(3);
    EXPECT_EQ(1, observer.calls());
}

TEST_F(ParameterImplTest, ShiftingMakesNewFrames)
{
    parameter->addKeyFrame(0, 1.0);
    Frame const before = parameter->keyframeAtTime(0);
    parameter->moveKeyframes(0);
    EXPECT_NE(before, parameter->keyframeAtTime(0));
    EXPECT_EQ(0, before->time());
}

TEST_F(ParameterImplTest, ShiftingLeavesTheInterpolatersWhereTheyAre)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->moveKeyframes(10);
    EXPECT_EQ((TimeList{0}), *parameter->interpolaterParam()->keyframeTimes());
}

TEST_F(ParameterImplTest, ShiftingOutOf64BitsThrowsAndShiftsNothing)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(k_max - 1, 2.0);
    EXPECT_EQ("Invalid KeyFrame operation at time 9223372036854775806",
              failureOf([this] { parameter->moveKeyframes(2); }));
    EXPECT_EQ((TimeList{0, k_max - 1}), *parameter->keyframeTimes());
}

// Values.

TEST_F(ParameterImplTest, AnEmptyParameterHasNoValue)
{
    EXPECT_EQ("Invalid KeyFrame operation at time 0",
              failureOf([this] { parameter->valueAtTime(5); }));
}

TEST_F(ParameterImplTest, OneFrameHoldsAtAllTimes)
{
    parameter->addKeyFrame(10, 2.5);
    EXPECT_EQ(2.5, parameter->valueAtTime(10));
    EXPECT_EQ(2.5, parameter->valueAtTime(-1e300));
    EXPECT_EQ(2.5, parameter->valueAtTime(k_infinity));
    EXPECT_EQ(2.5, parameter->valueAtTime(k_nan));
}

TEST_F(ParameterImplTest, HoldsItsEndsOnBothSides)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    EXPECT_EQ(10.0, parameter->valueAtTime(-0.001));
    EXPECT_EQ(20.0, parameter->valueAtTime(10.001));
    EXPECT_EQ(10.0, parameter->valueAtTime(-k_infinity));
    EXPECT_EQ(20.0, parameter->valueAtTime(k_infinity));
}

TEST_F(ParameterImplTest, NotANumberGivesTheFirstValue)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    EXPECT_EQ(10.0, parameter->valueAtTime(k_nan));
}

TEST_F(ParameterImplTest, AKeyFramesOwnTimeNeverReachesTheInterpolater)
{
    tellPositions();
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(5, 15.0);
    parameter->addKeyFrame(10, 20.0);
    EXPECT_EQ(10.0, parameter->valueAtTime(0));
    EXPECT_EQ(15.0, parameter->valueAtTime(5));
    EXPECT_EQ(20.0, parameter->valueAtTime(10));
}

TEST_F(ParameterImplTest, BlendsBetweenKeyFrames)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    EXPECT_EQ(15.0, parameter->valueAtTime(5));
    EXPECT_EQ(12.5, parameter->valueAtTime(2.5));
}

TEST_F(ParameterImplTest, AFractionLiesBetweenItsWholeTimes)
{
    tellPositions();
    parameter->addKeyFrame(1, 10.0);
    parameter->addKeyFrame(2, 20.0);
    parameter->addKeyFrame(3, 30.0);
    parameter->addKeyFrame(4, 40.0);
    EXPECT_EQ(0.5, parameter->valueAtTime(2.5));
}

TEST_F(ParameterImplTest, ANegativeFractionLiesBetweenItsNeighbours)
{
    // -0.5 is a quarter of the way from -1 to 1.
    tellPositions();
    parameter->addKeyFrame(-1, 10.0);
    parameter->addKeyFrame(1, 20.0);
    EXPECT_EQ(0.25, parameter->valueAtTime(-0.5));
}

TEST_F(ParameterImplTest, ANegativeFractionBelowAKeyFrameIsOnItsLeft)
{
    tellPositions();
    parameter->addKeyFrame(-4, 10.0);
    parameter->addKeyFrame(-2, 20.0);
    parameter->addKeyFrame(0, 30.0);
    // -2.5 cuts to -2, and the first key frame not before that is the one at -2 itself.
    EXPECT_EQ(0.75, parameter->valueAtTime(-2.5));
    EXPECT_EQ(0.25, parameter->valueAtTime(-1.5));
}

TEST_F(ParameterImplTest, TheSpanIsRoundedToFloat)
{
    // 2^24 + 1 has no float; the span becomes 2^24, and 2^23 lies in its very middle.
    tellPositions();
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(16777217, 20.0);
    EXPECT_EQ(0.5, parameter->valueAtTime(8388608));
}

TEST_F(ParameterImplTest, ThePositionIsNotClamped)
{
    // Of the span 2^24 + 1, rounded to 2^24, the time 2^24 + 0.5 is beyond the end.
    tellPositions();
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(16777217, 20.0);
    EXPECT_EQ(1 + 0.5 / 16777216, parameter->valueAtTime(16777216.5));
}

TEST_F(ParameterImplTest, SpansTheWholeOf64Bits)
{
    // 2^63 - 1 - -2^63, as a float 2^64; 0 lies in the middle.
    tellPositions();
    parameter->addKeyFrame(k_min, 10.0);
    parameter->addKeyFrame(k_max, 20.0);
    EXPECT_EQ(0.5, parameter->valueAtTime(0));
    EXPECT_EQ(10.0, parameter->valueAtTime(-9223372036854775808.0));
}

TEST_F(ParameterImplTest, TimesThatADoubleCannotTellApartEndInANeighboursValue)
{
    // As doubles, the last two times are both 2^63.
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(k_max - 1, 20.0);
    parameter->addKeyFrame(k_max, 30.0);
    EXPECT_EQ(30.0, parameter->valueAtTime(9223372036854775808.0));
}

TEST_F(ParameterImplTest, ATimeThatADoubleCannotTellFromTheLastGivesTheLastValue)
{
    // As a double, the last time is 2^60.
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame((1LL << 60) - 1, 20.0);
    EXPECT_EQ(20.0, parameter->valueAtTime(1152921504606846976.0));
}

TEST_F(ParameterImplTest, FindsItsPlaceAmongManyKeyFrames)
{
    // The squares of 0 to 63, each with its root as its value.
    tellPositions();
    for (int root = 0; root < 64; ++root)
        parameter->addKeyFrame(root * root, root);
    int faults = 0;
    for (int root = 0; root < 63; ++root) {
        int const width = 2 * root + 1;
        faults += parameter->valueAtTime(root * root) != root;
        faults += parameter->valueAtTime(root * root + 0.5) != 0.5 / width;
    }
    EXPECT_EQ(0, faults);
}

TEST_F(ParameterImplTest, TheInterpolaterMayChangeInTheMiddleOfASpan)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    parameter->interpolaterParam()->addKeyFrame(
        5, boost::shared_ptr<Interpolater<double>>(new PositionTeller));
    EXPECT_EQ(14.0, parameter->valueAtTime(4));
    EXPECT_EQ(0.5, parameter->valueAtTime(5));
    EXPECT_EQ(0.75, parameter->valueAtTime(7.5));
}

TEST_F(ParameterImplTest, WithoutInterpolatersItHasNoValueBetweenKeyFrames)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    parameter->interpolaterParam()->removeKeyFrame(0);
    EXPECT_EQ("Invalid KeyFrame operation at time 0",
              failureOf([this] { parameter->valueAtTime(5); }));
    EXPECT_EQ(20.0, parameter->valueAtTime(10));
}

TEST_F(ParameterImplTest, AnEmptyInterpolaterKeepsTheLeftValue)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    parameter->interpolaterParam()->changeKeyFrame(0, boost::shared_ptr<Interpolater<double>>());
    EXPECT_EQ(10.0, parameter->valueAtTime(9.5));
}

TEST_F(ParameterImplTest, ComparesValuesAtTwoTimes)
{
    parameter->addKeyFrame(0, 10.0);
    parameter->addKeyFrame(10, 20.0);
    EXPECT_TRUE(parameter->valuesDifferAtTimes(3, 4));
    EXPECT_FALSE(parameter->valuesDifferAtTimes(10, 11));
    EXPECT_FALSE(parameter->valuesDifferAtTimes(3, 3));
}

TEST_F(ParameterImplTest, NotANumberDiffersEvenFromItself)
{
    parameter->addKeyFrame(0, k_nan);
    EXPECT_TRUE(parameter->valuesDifferAtTimes(3, 3));
}

TEST_F(ParameterImplTest, AnEmptyParameterHasNothingToCompare)
{
    EXPECT_EQ("Invalid KeyFrame operation at time 0",
              failureOf([this] { parameter->valuesDifferAtTimes(1, 2); }));
}

// Copies.

TEST_F(ParameterImplTest, ACloneSharesNoFrame)
{
    parameter->addKeyFrame(4, 1.0);
    boost::shared_ptr<InterpolatingParam<double>> const clone(parameter->clone());
    clone->changeKeyFrame(4, 2.0);
    EXPECT_NE(parameter->keyframeAtTime(4), clone->keyframeAtTime(4));
    EXPECT_EQ(1.0, parameter->valueAtTime(4));
    EXPECT_EQ("level", clone->ident());
}

TEST_F(ParameterImplTest, ACloneKeepsAHostsOwnKindOfFrame)
{
    parameter->addKeyFrame(Frame(new HostFrame(4, 1.0)));
    boost::shared_ptr<InterpolatingParam<double>> const copy(parameter->clone());
    Frame const copied = copy->keyframeAtTime(4);
    EXPECT_TRUE(boost::dynamic_pointer_cast<HostFrame>(copied));
    EXPECT_NE(parameter->keyframeAtTime(4), copied);
}

TEST_F(ParameterImplTest, ACloneHasNoObservers)
{
    boost::shared_ptr<InterpolatingParam<double>> const clone(parameter->clone());
    clone->addKeyFrame(4, 2.0);
    EXPECT_EQ(0, observer.calls());
}

TEST_F(ParameterImplTest, ACloneHasAnIdentityOfItsOwn)
{
    boost::shared_ptr<InterpolatingParam<double>> const clone = sharedClone(parameter);
    EXPECT_NE(parameter->xmlIdent(), clone->xmlIdent());
}

TEST_F(ParameterImplTest, AFrameOutlivesItsPlace)
{
    parameter->addKeyFrame(4, 1.0);
    Frame const frame = parameter->keyframeAtTime(4);
    parameter->removeKeyFrame(4);
    EXPECT_EQ(1.0, frame->value());
}

}  // namespace
}  // namespace tarn
