#include "datatypes/GraphicsUtil.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "support/Geometry.h"
#include "timeline/IMFile.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// A mixer, a track and a still on it from 100 to 200.
class GraphicsUtilModelTest : public ::testing::Test
{
protected:
    GraphicsUtilModelTest()
    {
        m_mixer->addTrack(m_track, -1);
        m_track->addMedia(m_media, 100);
    }

    TransformMatrix model(long long time) const
    {
        return GraphicsUtil::calcModelMatrix(m_mixer, m_track, m_media, time);
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<VisualMixer> m_mixer{new VisualMixer(640, 480, m_project->weak())};
    boost::shared_ptr<VisualTrack> m_track{new VisualTrack(m_project->weak())};
    boost::shared_ptr<IMFile> m_media{
        new IMFile(0, 100, m_project->weak(), Rect<float>(0, 0, 64, 48), "still")};
};

TEST_F(GraphicsUtilModelTest, IsTheIdentityWithoutTransforms)
{
    EXPECT_EQ(TransformMatrix(), model(110));
}

TEST_F(GraphicsUtilModelTest, TheMediaActsFirstThenTheTrackThenTheMixer)
{
    // 5 + 10, times 2, plus 1000.
    m_media->translation()->at(0)->changeKeyFrame(0, 10);
    m_track->scale()->at(0)->changeKeyFrame(0, 2);
    m_mixer->translation()->at(0)->changeKeyFrame(0, 1000);
    EXPECT_TRUE(isNear(model(110) * Point(5, 0, 0), Point(1030, 0, 0)));
}

TEST_F(GraphicsUtilModelTest, TheMixerTurnsWhatTheTrackHasMoved)
{
    // (5,0) moved to (6,0), turned by 90 degrees.
    m_track->translation()->at(0)->changeKeyFrame(0, 1);
    m_mixer->rotation()->at(2)->changeKeyFrame(0, k_rightAngle);
    EXPECT_TRUE(isNear(model(110) * Point(5, 0, 0), Point(0, 6, 0)));
}

TEST_F(GraphicsUtilModelTest, IsTheProductOfTheThreeMatrices)
{
    // Media: scale 2 around (1,0): x -> 2 x - 2. Track: turned, (x,y) -> (-y,x). Mixer: x + 3.
    // So (x,y) -> (-2 y + 3, 2 x - 2).
    m_media->scale()->at(0)->changeKeyFrame(0, 2);
    m_media->scale()->at(1)->changeKeyFrame(0, 2);
    m_media->anchor()->at(0)->changeKeyFrame(0, 1);
    m_track->rotation()->at(2)->changeKeyFrame(0, k_rightAngle);
    m_mixer->translation()->at(0)->changeKeyFrame(0, 3);
    EXPECT_TRUE(isNear(model(110), matrix({0, -2, 0, 3,  //
                                           2, 0, 0, -2,  //
                                           0, 0, 1, 0,   //
                                           0, 0, 0, 1})));
}

TEST_F(GraphicsUtilModelTest, EachIsReadOnItsOwnClock)
{
    // At 110: the media at 10 of 10, the track at 110 of 110, the mixer at 110 of 220.
    m_media->translation()->at(0)->addKeyFrame(10, 50);
    m_media->translation()->at(0)->addKeyFrame(20, 1000);
    m_track->translation()->at(1)->addKeyFrame(110, 22);
    m_track->translation()->at(1)->addKeyFrame(120, 1000);
    m_mixer->translation()->at(2)->addKeyFrame(220, 10);
    EXPECT_TRUE(isNear(model(110) * Point(0, 0, 0), Point(50, 22, 5)));
}

TEST_F(GraphicsUtilModelTest, AMovieIsReadOnItsSourcesClock)
{
    // 10 after its start it shows 510; stretched to twice its length, 505.
    boost::shared_ptr<VMFile> const movie(new VMFile(Range<long long>(500, 100), m_project->weak(),
                                                     Rect<float>(0, 0, 64, 48), "movie"));
    m_track->addMedia(movie, 300);
    movie->translation()->at(0)->addKeyFrame(500, 0);
    movie->translation()->at(0)->addKeyFrame(600, 200);
    EXPECT_TRUE(isNear(GraphicsUtil::calcModelMatrix(m_mixer, m_track, movie, 310) * Point(),
                       Point(20, 0, 0)));
    movie->stretch(2);
    EXPECT_TRUE(isNear(GraphicsUtil::calcModelMatrix(m_mixer, m_track, movie, 310) * Point(),
                       Point(10, 0, 0)));
}

TEST_F(GraphicsUtilModelTest, NeedsALivingProject)
{
    m_project.reset();
    EXPECT_THROW(model(110), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace test
}  // namespace tarn
