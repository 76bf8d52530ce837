#include "hosts/HostTest.h"

#include "support/OneOfEachKind.h"

#include "parameters/ConstParameterDispatcher.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"
#include "parameters/ParameterDispatcher.h"
#include "timeline/AudioTrack.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/ConstTrackDispatcher.h"
#include "timeline/ImageTrack.h"
#include "timeline/MediaDispatcher.h"
#include "timeline/TrackDispatcher.h"
#include "timeline/VisualTrack.h"

#include <memory>
#include <vector>

namespace tarn {
namespace test {

namespace {

using Action = std::function<void()>;

// The host's dispatchers: whatever they receive, they do what they are told. A copy, since the
// action may destroy them.

#define TARN_ACT(Operation, Type)                                                                  \
    void Operation(boost::shared_ptr<Type> const&) override                                        \
    {                                                                                              \
        Action const copy = action;                                                                \
        copy();                                                                                    \
    }

class MediaActor : public MediaDispatcher
{
public:
    TARN_ACT(dispatchMedia, VMFile)
    TARN_ACT(dispatchMedia, AMFile)
    TARN_ACT(dispatchMedia, IMFile)
    TARN_ACT(dispatchMedia, ImageTransition)
    TARN_ACT(dispatchMedia, AudioTransition)
    TARN_ACT(dispatchMedia, TextBox)
    TARN_ACT(dispatchMedia, Callout)
    Action action;
};

class ConstMediaActor : public ConstMediaDispatcher
{
public:
    TARN_ACT(dispatchMedia, VMFile const)
    TARN_ACT(dispatchMedia, AMFile const)
    TARN_ACT(dispatchMedia, IMFile const)
    TARN_ACT(dispatchMedia, ImageTransition const)
    TARN_ACT(dispatchMedia, AudioTransition const)
    TARN_ACT(dispatchMedia, TextBox const)
    TARN_ACT(dispatchMedia, Callout const)
    Action action;
};

class TrackActor : public TrackDispatcher
{
public:
    TARN_ACT(dispatchTrack, VisualTrack)
    TARN_ACT(dispatchTrack, AudioTrack)
    TARN_ACT(dispatchTrack, ImageTrack)
    Action action;
};

class ConstTrackActor : public ConstTrackDispatcher
{
public:
    TARN_ACT(dispatchTrack, VisualTrack const)
    TARN_ACT(dispatchTrack, AudioTrack const)
    TARN_ACT(dispatchTrack, ImageTrack const)
    Action action;
};

class ParameterActor : public ParameterDispatcher
{
public:
#define TARN_ACT_BLENDED(T) TARN_ACT(dispatch, InterpolatingParam<T>)
#define TARN_ACT_LEFT(T) TARN_ACT(dispatch, LeftParameter<T>)
    TARN_INTERPOLATING_TYPES(TARN_ACT_BLENDED)
    TARN_LEFT_TYPES(TARN_ACT_LEFT)
#undef TARN_ACT_LEFT
#undef TARN_ACT_BLENDED
    Action action;
};

class ConstParameterActor : public ConstParameterDispatcher
{
public:
#define TARN_ACT_BLENDED(T) TARN_ACT(dispatch, InterpolatingParam<T> const)
#define TARN_ACT_LEFT(T) TARN_ACT(dispatch, LeftParameter<T> const)
    TARN_INTERPOLATING_TYPES(TARN_ACT_BLENDED)
    TARN_LEFT_TYPES(TARN_ACT_LEFT)
#undef TARN_ACT_LEFT
#undef TARN_ACT_BLENDED
    Action action;
};

#undef TARN_ACT

}  // namespace

class DispatchersTest : public HostTest
{
protected:
    DispatchersTest() { given(k_strip); }

    /// One of each class that receives dispatchers, known here alone.
    void makeReceivers()
    {
        OneOfEachKind const each(lock());
        medias = {each.video,     each.sound, each.still,  each.fade,
                  each.crossFade, each.text,  each.callout};
        tracks = {boost::shared_ptr<Track>(new VisualTrack(lock())),
                  boost::shared_ptr<Track>(new AudioTrack(lock())),
                  boost::shared_ptr<Track>(new ImageTrack(lock()))};
#define TARN_MAKE_BLENDED(T)                                                                       \
    parameters.push_back(                                                                          \
        boost::shared_ptr<ParameterInterface>(new InterpolatingParam<T>(lock(), "blended")));
#define TARN_MAKE_LEFT(T)                                                                          \
    parameters.push_back(                                                                          \
        boost::shared_ptr<ParameterInterface>(new LeftParameter<T>(lock(), "left")));
        TARN_INTERPOLATING_TYPES(TARN_MAKE_BLENDED)
        TARN_LEFT_TYPES(TARN_MAKE_LEFT)
#undef TARN_MAKE_LEFT
#undef TARN_MAKE_BLENDED
    }

    /// Sends a dispatcher of both kinds to each receiver in turn, by `receiver[i]` as nobody else
    /// holds it.
    template <class Actor, class ConstActor, class Receiver>
    void sendToEach(std::vector<boost::shared_ptr<Receiver>>& receivers,
                    std::function<void(Action const& send)> const& check, Action const& action)
    {
        for (boost::shared_ptr<Receiver>& receiver : receivers) {
            auto plain = std::make_unique<Actor>();
            plain->action = action;
            check([&] { receiver->receiveDispatcher(plain.get()); });
            auto constant = std::make_unique<ConstActor>();
            constant->action = action;
            Receiver const& constReceiver = *receiver;
            check([&] { constReceiver.receiveDispatcher(constant.get()); });
        }
    }
    void sendToAll(std::function<void(Action const& send)> const& check, Action const& action)
    {
        sendToEach<MediaActor, ConstMediaActor>(medias, check, action);
        sendToEach<TrackActor, ConstTrackActor>(tracks, check, action);
        sendToEach<ParameterActor, ConstParameterActor>(parameters, check, action);
    }

    std::vector<boost::shared_ptr<Media>> medias;
    std::vector<boost::shared_ptr<Track>> tracks;
    std::vector<boost::shared_ptr<ParameterInterface>> parameters;
};

TARN_WITH_EACH_FAULT(DispatchersTest);

TEST_P(DispatchersTest, WhatItThrowsPasses)
{
    makeReceivers();
    int calls = 0;
    sendToAll([&](Action const& send) { EXPECT_TRUE(throwsFault(fault(), send)); },
              [&] {
                  ++calls;
                  throwFault(fault());
              });
    EXPECT_EQ(2 * (7 + 3 + 13), calls);
    EXPECT_TRUE(isAtRest());
}

class CallingDispatchersTest : public DispatchersTest
{
};

INSTANTIATE_TEST_SUITE_P(Once, CallingDispatchersTest, ::testing::Values(Fault::Foreign));

TEST_P(CallingDispatchersTest, NoLockIsHeldAndItMayEdit)
{
    makeReceivers();
    sendToAll([](Action const& send) { send(); },
              [this] {
                  OtherThread writer(
                      [this] { ReadWriteMutex::ScopedWriteLock const taken(project->mutex()); });
                  EXPECT_TRUE(writer.finishes());
                  project->execute(move("V1.b", +1));
                  project->undo();
              });
    EXPECT_EQ(k_strip, strip());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingDispatchersTest, MayRemoveTheMediaItReceives)
{
    MediaActor remover;
    remover.action = [this] { project->execute(remove("V1.a")); };
    track("V1")->medias().begin()->second->receiveDispatcher(&remover);
    EXPECT_EQ("A1: .....bb / A2: c / V1: .....bb", strip());
    project->undo();
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingDispatchersTest, MayDestroyWhatItReceivesAndItself)
{
    makeReceivers();
    for (boost::shared_ptr<Media>& media : medias) {
        boost::weak_ptr<Media> const watched = media;
        auto killer = std::make_unique<MediaActor>();
        killer->action = [&] {
            media.reset();
            killer.reset();
        };
        media->receiveDispatcher(killer.get());
        EXPECT_TRUE(watched.expired());
        EXPECT_EQ(nullptr, killer);
    }
    for (boost::shared_ptr<Track>& track : tracks) {
        auto killer = std::make_unique<TrackActor>();
        killer->action = [&] {
            track.reset();
            killer.reset();
        };
        track->receiveDispatcher(killer.get());
        EXPECT_EQ(nullptr, track);
    }
    for (boost::shared_ptr<ParameterInterface>& parameter : parameters) {
        auto killer = std::make_unique<ParameterActor>();
        killer->action = [&] {
            parameter.reset();
            killer.reset();
        };
        parameter->receiveDispatcher(killer.get());
        EXPECT_EQ(nullptr, parameter);
    }
    EXPECT_TRUE(isAtRest());
}

}  // namespace test
}  // namespace tarn
