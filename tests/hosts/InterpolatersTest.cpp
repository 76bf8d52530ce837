#include "hosts/HostTest.h"

#include "support/CountingObserver.h"

#include "commands/AddKeyFrameCmd.h"
#include "commands/AddLeftEdgeModCmd.h"
#include "commands/CommandHistory.h"
#include "commands/MoveLeftEdgeModCmd.h"
#include "commands/SetInterpolaterCmd.h"
#include "datatypes/Point.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "parameters/Interpolater.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "timeline/HitTester.h"
#include "timeline/Media.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <boost/make_shared.hpp>

#include <memory>
#include <vector>

namespace tarn {
namespace test {

namespace {

using Action = std::function<void()>;

/// Does what it is told, and then gives 7.
class HostPolicy : public Interpolater<double>
{
public:
    explicit HostPolicy(Action const& action) : Interpolater<double>("host"), m_action(action) {}

protected:
    double doInterpolate(double, double, double) const override
    {
        Action const action = m_action;
        action();
        return 7;
    }

private:
    Action m_action;
};

}  // namespace

/// With V1.a, whose opacity and translation are blended by a host's policy, everywhere.
class InterpolatersTest : public HostTest
{
protected:
    InterpolatersTest()
    {
        given(k_strip);
        shown = boost::dynamic_pointer_cast<VMFile>(media("V1.a"));
        blend(shown->opacity());
        blend(shown->translation()->at(0));
        blend(shown->geometryCropParam()->at(2));
        project->commandHistory()->setUndoLimit(0);
        project->commandHistory()->setUndoLimit(-1);
    }

    /// From 0 to 1000 on the source's clock, of which the media shows 500 to 530.
    void blend(boost::shared_ptr<Parameter<double> const> const& parameter)
    {
        project->execute(AddKeyFrameCmd<double>::create(parameter, 1000, 2.0));
        auto const policy = boost::make_shared<HostPolicy>([this] {
            // A copy: it may set another in its place.
            Action const copy = action;
            if (copy)
                copy();
        });
        project->execute(SetInterpolaterCmd<double>::create(parameter, 0, policy));
    }

    /// Every reading that comes to a policy.
    std::vector<Action> readings() const
    {
        boost::shared_ptr<VMFile> const media = shown;
        return {
            [=] { media->opacity()->valueAtTime(510); },
            [=] { media->opacity()->valuesDifferAtTimes(505, 510); },
            [=] { media->translation()->at(0)->valueAtTime(510); },
            [=] { media->transformAtTime(10); },
            [=] { media->geometryCropRectAtTime(10); },
            [=] { HitTester::mediaAtLocation(visualMixer(), Point(0, 0, 0), 10); },
            [=] { HitTester::hitTestAtLocation(visualMixer(), Point(0, 0, 0), 10); },
        };
    }

    boost::shared_ptr<VMFile> shown;
    Action action;
};

TARN_WITH_EACH_FAULT(InterpolatersTest);

TEST_P(InterpolatersTest, WhatItThrowsPassesAndTheLockIsGivenBack)
{
    action = [this] { throwFault(fault()); };
    for (Action const& reading : readings()) {
        EXPECT_TRUE(throwsFault(fault(), reading));
        EXPECT_TRUE(isAtRest());
    }
    action = nullptr;
    EXPECT_EQ(7, shown->opacity()->valueAtTime(510));
}

TEST_P(InterpolatersTest, AnEdgeFunctionWorksAgainAfterAThrow)
{
    boost::shared_ptr<Parameter<double> const> const slid = shown->translation()->at(0);
    project->execute(AddLeftEdgeModCmd::create(shown, EdgeModification(slid, MixerXSlideInFunc())));
    project->execute(MoveLeftEdgeModCmd::create(shown, 20));
    double const before = shown->doubleParametricTransform(slid, 3.0, 10);
    EXPECT_NE(3.0, before);
    action = [this] { throwFault(fault()); };
    EXPECT_TRUE(throwsFault(fault(), [&] { shown->doubleParametricTransform(slid, 3.0, 10); }));
    action = nullptr;
    EXPECT_EQ(before, shown->doubleParametricTransform(slid, 3.0, 10));
    EXPECT_TRUE(isAtRest());
}

TEST_P(InterpolatersTest, AnObserverThatReadsPassesItOn)
{
    action = [this] { throwFault(fault()); };
    CountingObserver reader([this] { shown->opacity()->valueAtTime(510); });
    track("V1")->attach(&reader);
    EXPECT_TRUE(throwsFault(fault(), [this] { project->execute(remove("V1.b")); }));
    EXPECT_EQ("A1: aaa / A2: c / V1: aaa", strip());
    track("V1")->detach(&reader);
    EXPECT_TRUE(isAtRest());
}

class CallingInterpolatersTest : public InterpolatersTest
{
};

INSTANTIATE_TEST_SUITE_P(Once, CallingInterpolatersTest, ::testing::Values(Fault::Foreign));

TEST_P(CallingInterpolatersTest, MayRead)
{
    for (Action const& reading : readings()) {
        std::string seen;
        action = [&] {
            action = nullptr;
            seen = strip();
            shown->opacity()->valueAtTime(520);
        };
        reading();
        EXPECT_EQ(k_strip, seen);
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingInterpolatersTest, AReadLockIsHeldMeanwhile)
{
    for (Action const& reading : readings()) {
        bool isKept = false;
        std::unique_ptr<OtherThread> writer;
        action = [&] {
            action = nullptr;
            writer = std::make_unique<OtherThread>(
                [this] { ReadWriteMutex::ScopedWriteLock const taken(project->mutex()); });
            isKept = writer->isWaiting();
        };
        reading();
        EXPECT_TRUE(isKept);
        EXPECT_TRUE(writer->finishes());
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingInterpolatersTest, InsideAnObserverItMayEvenTakeItselfAway)
{
    // The observer's thread holds the write lock, so that an edit does not wait.
    boost::shared_ptr<Parameter<double> const> const opacity = shown->opacity();
    action = [&] {
        action = nullptr;
        project->execute(SetInterpolaterCmd<double>::create(
            opacity, 0, boost::shared_ptr<Interpolater<double>>()));
    };
    double seen = 0;
    CountingObserver reader;
    reader.setAction([&] {
        reader.setAction(nullptr);
        seen = opacity->valueAtTime(510);
    });
    track("V1")->attach(&reader);
    project->execute(remove("V1.b"));
    EXPECT_EQ(7, seen);
    EXPECT_EQ(2u, project->commandHistory()->numUndoCommands());
    track("V1")->detach(&reader);
    project->undo();
    project->undo();
    EXPECT_EQ(k_strip, strip());
    EXPECT_TRUE(isAtRest());
}

}  // namespace test
}  // namespace tarn
