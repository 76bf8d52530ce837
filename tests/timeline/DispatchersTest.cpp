#include "timeline/ConstDefaultMediaDispatcher.h"
#include "timeline/ConstTrackDispatcher.h"
#include "timeline/DefaultMediaDispatcher.h"
#include "timeline/TrackDispatcher.h"

#include "exceptions/DefaultMediaDispatcherException.h"
#include "support/FakeProject.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageTrack.h"
#include "timeline/VisualTrack.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// Writes down as what a media comes.
class MediaScribe : public MediaDispatcher
{
public:
    void dispatchMedia(boost::shared_ptr<VMFile> const&) override { kind = "VMFile"; }
    void dispatchMedia(boost::shared_ptr<AMFile> const&) override { kind = "AMFile"; }
    void dispatchMedia(boost::shared_ptr<IMFile> const&) override { kind = "IMFile"; }
    void dispatchMedia(boost::shared_ptr<ImageTransition> const&) override
    {
        kind = "ImageTransition";
    }
    void dispatchMedia(boost::shared_ptr<AudioTransition> const&) override
    {
        kind = "AudioTransition";
    }
    void dispatchMedia(boost::shared_ptr<TextBox> const&) override { kind = "TextBox"; }
    void dispatchMedia(boost::shared_ptr<Callout> const&) override { kind = "Callout"; }

    std::string kind;
};

/// The same for const medias.
class ConstMediaScribe : public ConstMediaDispatcher
{
public:
    void dispatchMedia(boost::shared_ptr<VMFile const> const&) override { kind = "VMFile"; }
    void dispatchMedia(boost::shared_ptr<AMFile const> const&) override { kind = "AMFile"; }
    void dispatchMedia(boost::shared_ptr<IMFile const> const&) override { kind = "IMFile"; }
    void dispatchMedia(boost::shared_ptr<ImageTransition const> const&) override
    {
        kind = "ImageTransition";
    }
    void dispatchMedia(boost::shared_ptr<AudioTransition const> const&) override
    {
        kind = "AudioTransition";
    }
    void dispatchMedia(boost::shared_ptr<TextBox const> const&) override { kind = "TextBox"; }
    void dispatchMedia(boost::shared_ptr<Callout const> const&) override { kind = "Callout"; }

    std::string kind;
};

class TrackScribe : public TrackDispatcher
{
public:
    void dispatchTrack(boost::shared_ptr<VisualTrack> const&) override { kind = "VisualTrack"; }
    void dispatchTrack(boost::shared_ptr<AudioTrack> const&) override { kind = "AudioTrack"; }
    void dispatchTrack(boost::shared_ptr<ImageTrack> const&) override { kind = "ImageTrack"; }

    std::string kind;
};

class ConstTrackScribe : public ConstTrackDispatcher
{
public:
    void dispatchTrack(boost::shared_ptr<VisualTrack const> const&) override
    {
        kind = "VisualTrack";
    }
    void dispatchTrack(boost::shared_ptr<AudioTrack const> const&) override { kind = "AudioTrack"; }
    void dispatchTrack(boost::shared_ptr<ImageTrack const> const&) override { kind = "ImageTrack"; }

    std::string kind;
};

/// Cares for videos alone.
class VideoCollector : public DefaultMediaDispatcher
{
public:
    using DefaultMediaDispatcher::dispatchMedia;
    void dispatchMedia(boost::shared_ptr<VMFile> const& media) override { video = media; }

    boost::shared_ptr<VMFile> video;
};

/// Cares for nothing, and does not mind.
class Indifferent : public ConstDefaultMediaDispatcher
{
public:
    void mediaNotHandled() override { ++unhandled; }

    int unhandled = 0;
};

class DispatchersTest : public testing::Test
{
protected:
    template <class M>
    static std::string kindOf(boost::shared_ptr<M> const& media)
    {
        MediaScribe scribe;
        media->receiveDispatcher(&scribe);
        return scribe.kind;
    }
    template <class M>
    static std::string constKindOf(boost::shared_ptr<M const> const& media)
    {
        ConstMediaScribe scribe;
        media->receiveDispatcher(&scribe);
        return scribe.kind;
    }
    static std::string trackKindOf(boost::shared_ptr<Track> const& track)
    {
        TrackScribe scribe;
        track->receiveDispatcher(&scribe);
        return scribe.kind;
    }
    static std::string constTrackKindOf(boost::shared_ptr<Track const> const& track)
    {
        ConstTrackScribe scribe;
        track->receiveDispatcher(&scribe);
        return scribe.kind;
    }
    /// The text with which a dispatcher refuses a media.
    static std::string refusal(Media& media)
    {
        DefaultMediaDispatcher dispatcher;
        return thrownBy<DefaultMediaDispatcherException>(
                   [&] { media.receiveDispatcher(&dispatcher); })
            .what();
    }
    static std::string constRefusal(Media const& media)
    {
        ConstDefaultMediaDispatcher dispatcher;
        return thrownBy<DefaultMediaDispatcherException>(
                   [&] { media.receiveDispatcher(&dispatcher); })
            .what();
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::weak_ptr<ThreadSafe const> m_lock = m_project->weak();
    OneOfEachKind m_one{m_lock};
    std::string const m_refusal = "DefaultMediaDispatcherException: Media not handled";
};

TEST_F(DispatchersTest, EveryMediaComesAsWhatItIs)
{
    EXPECT_EQ("VMFile", kindOf(m_one.video));
    EXPECT_EQ("AMFile", kindOf(m_one.sound));
    EXPECT_EQ("IMFile", kindOf(m_one.still));
    EXPECT_EQ("ImageTransition", kindOf(m_one.fade));
    EXPECT_EQ("AudioTransition", kindOf(m_one.crossFade));
    EXPECT_EQ("TextBox", kindOf(m_one.text));
    EXPECT_EQ("Callout", kindOf(m_one.callout));
}

TEST_F(DispatchersTest, EveryConstMediaComesAsWhatItIs)
{
    EXPECT_EQ("VMFile", constKindOf<VMFile>(m_one.video));
    EXPECT_EQ("AMFile", constKindOf<AMFile>(m_one.sound));
    EXPECT_EQ("IMFile", constKindOf<IMFile>(m_one.still));
    EXPECT_EQ("ImageTransition", constKindOf<ImageTransition>(m_one.fade));
    EXPECT_EQ("AudioTransition", constKindOf<AudioTransition>(m_one.crossFade));
    EXPECT_EQ("TextBox", constKindOf<TextBox>(m_one.text));
    EXPECT_EQ("Callout", constKindOf<Callout>(m_one.callout));
}

TEST_F(DispatchersTest, EveryTrackComesAsWhatItIs)
{
    boost::shared_ptr<Track> const pictures(new VisualTrack(m_lock));
    boost::shared_ptr<Track> const sounds(new AudioTrack(m_lock));
    boost::shared_ptr<Track> const stills(new ImageTrack(m_lock));
    EXPECT_EQ("VisualTrack", trackKindOf(pictures));
    EXPECT_EQ("AudioTrack", trackKindOf(sounds));
    EXPECT_EQ("ImageTrack", trackKindOf(stills));
    EXPECT_EQ("VisualTrack", constTrackKindOf(pictures));
    EXPECT_EQ("AudioTrack", constTrackKindOf(sounds));
    EXPECT_EQ("ImageTrack", constTrackKindOf(stills));
}

TEST_F(DispatchersTest, TheDefaultOneRefusesEveryMedia)
{
    EXPECT_EQ(m_refusal, refusal(*m_one.video));
    EXPECT_EQ(m_refusal, refusal(*m_one.sound));
    EXPECT_EQ(m_refusal, refusal(*m_one.still));
    EXPECT_EQ(m_refusal, refusal(*m_one.fade));
    EXPECT_EQ(m_refusal, refusal(*m_one.crossFade));
    EXPECT_EQ(m_refusal, refusal(*m_one.text));
    EXPECT_EQ(m_refusal, refusal(*m_one.callout));
}

TEST_F(DispatchersTest, TheConstDefaultOneRefusesEveryMedia)
{
    EXPECT_EQ(m_refusal, constRefusal(*m_one.video));
    EXPECT_EQ(m_refusal, constRefusal(*m_one.sound));
    EXPECT_EQ(m_refusal, constRefusal(*m_one.still));
    EXPECT_EQ(m_refusal, constRefusal(*m_one.fade));
    EXPECT_EQ(m_refusal, constRefusal(*m_one.crossFade));
    EXPECT_EQ(m_refusal, constRefusal(*m_one.text));
    EXPECT_EQ(m_refusal, constRefusal(*m_one.callout));
}

TEST_F(DispatchersTest, AnOverriddenKindIsHandledAndTheOthersAreNot)
{
    VideoCollector collector;
    m_one.video->receiveDispatcher(&collector);
    EXPECT_EQ(m_one.video, collector.video);
    EXPECT_THROW(m_one.still->receiveDispatcher(&collector), DefaultMediaDispatcherException);
}

TEST_F(DispatchersTest, WhatIsNotHandledMayBeIgnored)
{
    Indifferent dispatcher;
    boost::shared_ptr<Media const> const video = m_one.video;
    boost::shared_ptr<Media const> const sound = m_one.sound;
    video->receiveDispatcher(&dispatcher);
    sound->receiveDispatcher(&dispatcher);
    EXPECT_EQ(2, dispatcher.unhandled);
}

}  // namespace
}  // namespace test
}  // namespace tarn
