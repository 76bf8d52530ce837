#include "timeline/AudioTrack.h"

#include "datatypes/AudioPosition.h"
#include "exceptions/CollisionException.h"
#include "exceptions/TypeException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/MTVector.h"
#include "support/FakeProject.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/MediaDispatcher.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace test {
namespace {

class AudioTrackTest : public testing::Test
{
protected:
    std::string refusal(boost::shared_ptr<Media> const& media) const
    {
        return thrownBy<TypeException>([&] { m_track->addMedia(media, 0); }).what();
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<AudioTrack> m_track{new AudioTrack(m_project->weak())};
    AudioTrack const& m_const = *m_track;
    OneOfEachKind m_one{m_project->weak()};
};

TEST_F(AudioTrackTest, TakesASound)
{
    m_track->addMedia(m_one.sound, 30);
    EXPECT_EQ(m_one.sound, m_track->medias().at(30));
    EXPECT_EQ(m_track, m_one.sound->parentTrack().lock());
}

/// A host's sound that sends another one in its place.
class StandIn : public AMFile
{
public:
    StandIn(boost::weak_ptr<ThreadSafe const> const& project,
            boost::shared_ptr<AMFile> const& heard)
        : AMFile(Range<long long>(0, 10), 44100, 16, project, "stand-in"), m_heard(heard)
    {}

    using AMFile::receiveDispatcher;
    void receiveDispatcher(MediaDispatcher* dispatcher) override
    {
        dispatcher->dispatchMedia(m_heard);
    }

private:
    boost::shared_ptr<AMFile> m_heard;
};

TEST_F(AudioTrackTest, TakesWhatAMediaSendsInItsPlace)
{
    boost::shared_ptr<Media> const sender(new StandIn(m_project->weak(), m_one.sound));
    m_track->addMedia(sender, 30);
    EXPECT_EQ(m_one.sound, m_track->medias().at(30));
    EXPECT_FALSE(sender->parentTrack().lock());
}

TEST_F(AudioTrackTest, TakesAKnownSoundWithoutDispatch)
{
    m_track->addMedia<AMFile>(m_one.sound, 30);
    EXPECT_EQ(m_one.sound, m_track->medias().at(30));
    EXPECT_THROW(m_track->addMedia<AMFile>(
                     boost::shared_ptr<AMFile>(new AMFile(Range<long long>(0, 10), 44100, 16,
                                                          m_project->weak(), "other")),
                     35),
                 CollisionException);
}

TEST_F(AudioTrackTest, RefusesEveryOtherMedia)
{
    EXPECT_EQ("Trying to add a VMFile to an AudioTrack", refusal(m_one.video));
    EXPECT_EQ("Trying to add a IMFile to an AudioTrack", refusal(m_one.still));
    EXPECT_EQ("Trying to add a Callout to an AudioTrack", refusal(m_one.callout));
    EXPECT_EQ("Trying to add a TextBox to an AudioTrack", refusal(m_one.text));
    EXPECT_EQ("can't add transitions yet", refusal(m_one.fade));
    EXPECT_EQ("can't add transitions yet", refusal(m_one.crossFade));
    EXPECT_EQ(0u, m_track->numMedias());
}

TEST_F(AudioTrackTest, ShowsItsMediasAsSounds)
{
    m_track->addMedia(m_one.sound, 30);
    boost::shared_ptr<AudioMedia> const shown = m_track->audioMediaBegin()->second;
    boost::shared_ptr<AudioMedia const> const constShown = m_const.audioMediaBegin()->second;
    EXPECT_EQ(m_one.sound, shown);
    EXPECT_EQ(m_one.sound, constShown);
    EXPECT_EQ(30, m_const.typeSafeMediaBegin()->first);
    EXPECT_EQ(m_track->audioMediaEnd(), ++m_track->audioMediaBegin());
    EXPECT_EQ(m_const.audioMediaEnd(), ++m_const.audioMediaBegin());
    EXPECT_EQ(m_const.typeSafeMediaEnd(), ++m_const.typeSafeMediaBegin());
}

TEST_F(AudioTrackTest, ListsItsMediasAsSounds)
{
    m_track->addMedia(m_one.sound, 30);
    EXPECT_EQ(1u, m_track->audioMedias().size());
    EXPECT_EQ(m_one.sound, m_const.audioMedias().find(30)->second);
}

TEST_F(AudioTrackTest, ASubSectionIsOfSounds)
{
    m_track->addMedia(m_one.sound, 30);
    auto const section = m_track->subSection(Range<long long>(0, 35));
    ASSERT_EQ(1u, section->size());
    boost::shared_ptr<AudioMedia const> const shown = (*section)[0].media;
    EXPECT_EQ(m_one.sound, shown);
    EXPECT_EQ(Range<long long>(30, 5), (*section)[0].range);
}

TEST_F(AudioTrackTest, ASubSectionLeavesOutWhatWasPutPastTheCheck)
{
    m_track->addMedia(m_one.sound, 0);
    m_track->addMediaSansTypeCheck(m_one.video, 100);
    auto const section = m_track->subSection(Range<long long>(0, 200));
    ASSERT_EQ(1u, section->size());
    EXPECT_EQ(m_one.sound, (*section)[0].media);
}

TEST_F(AudioTrackTest, KnowsWhenSomethingElseWasPutPastItsCheck)
{
    m_track->addMedia(m_one.sound, 0);
    EXPECT_TRUE(m_track->allMediasAreValid());
    m_track->addMediaSansTypeCheck(m_one.video, 10);
    EXPECT_FALSE(m_track->allMediasAreValid());
}

TEST_F(AudioTrackTest, ItsOneParameterIsThePosition)
{
    EXPECT_EQ(1, m_track->numParameters());
    auto const parameters = m_track->parameterVector();
    ASSERT_EQ(1u, parameters->size());
    EXPECT_EQ(m_track->position(), parameters->at(0));
    EXPECT_EQ("position", m_const.position()->ident());
}

TEST_F(AudioTrackTest, ThePositionIsTheMiddleAtFirst)
{
    EXPECT_EQ(1, m_track->position()->numKeyFrames());
    EXPECT_TRUE(m_track->position()->hasKeyFrameAtTime(0));
    EXPECT_EQ(AudioPosition(), m_track->position()->valueAtTime(0));
}

TEST_F(AudioTrackTest, ThePositionJumpsFromKeyFrameToKeyFrame)
{
    m_track->position()->addKeyFrame(100, AudioPosition(1, 2, 3));
    EXPECT_EQ(AudioPosition(), m_track->position()->valueAtTime(99));
    EXPECT_EQ(AudioPosition(1, 2, 3), m_track->position()->valueAtTime(100));
    EXPECT_EQ(LeftInterpolater<AudioPosition>::s_instance,
              m_track->position()->interpolaterAtTime(50));
    EXPECT_EQ(1, m_track->position()->interpolaterParam()->numKeyFrames());
}

TEST_F(AudioTrackTest, AClonesPositionIsItsOwn)
{
    m_track->position()->changeKeyFrame(0, AudioPosition(1, 2, 3));
    boost::shared_ptr<AudioTrack> const clone(m_track->clone());
    m_track->position()->changeKeyFrame(0, AudioPosition());
    EXPECT_EQ(AudioPosition(1, 2, 3), clone->position()->valueAtTime(0));
    EXPECT_EQ(LeftInterpolater<AudioPosition>::s_instance,
              clone->position()->interpolaterAtTime(0));
}

TEST_F(AudioTrackTest, DescribesItselfLikeAnyTrack)
{
    EXPECT_EQ("Track", m_track->description());
    EXPECT_EQ(1, m_track->numAttributes());
}

TEST_F(AudioTrackTest, PrintsItsPositionIdentAndMedias)
{
    std::string const xml = xmlOf(*m_track);
    EXPECT_EQ(0u, xml.find("<AudioTrack id=\"#\"  >\n"
                           " <Parameters>\n"
                           "  <InterpolatingParam id=\"#\"  name=\"position\">\n"));
    std::string const end = "  </InterpolatingParam>\n"
                            " </Parameters>\n"
                            " <Attributes>\n"
                            "  <Attribute id=\"#\" value=\"\" name=\"ident\">\n"
                            "  </Attribute>\n"
                            " </Attributes>\n"
                            " <Medias>\n"
                            " </Medias>\n"
                            "</AudioTrack>\n";
    EXPECT_EQ(xml.size() - end.size(), xml.rfind(end));
}

}  // namespace
}  // namespace test
}  // namespace tarn
