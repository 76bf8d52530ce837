#include "timeline/VisualMixer.h"

#include "exceptions/IndexException.h"
#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"
#include "support/Geometry.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualTrack.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarn {
namespace test {
namespace {

class VisualMixerTest : public ModelTest
{
protected:
    static Point pointAt(boost::shared_ptr<VectorParam const> const& vector, double time)
    {
        return Point(vector->at(0)->valueAtTime(time), vector->at(1)->valueAtTime(time),
                     vector->at(2)->valueAtTime(time));
    }
    void placeEye(double x, double y, double z)
    {
        m_mixer->eyePositionParam()->at(0)->changeKeyFrame(0, x);
        m_mixer->eyePositionParam()->at(1)->changeKeyFrame(0, y);
        m_mixer->eyePositionParam()->at(2)->changeKeyFrame(0, z);
    }

    std::vector<std::string> parameterNames() const
    {
        std::vector<std::string> names;
        auto const parameters = m_mixer->parameterVector();
        for (auto const& parameter : *parameters)
            names.push_back(parameter->ident());
        return names;
    }
    /// Of all parameters, one after the other.
    std::vector<long long> keyTimes() const
    {
        std::vector<long long> all;
        auto const parameters = m_mixer->parameterVector();
        for (auto const& parameter : *parameters) {
            boost::shared_ptr<std::vector<long long>> const times = parameter->keyframeTimes();
            all.insert(all.end(), times->begin(), times->end());
        }
        return all;
    }

    boost::shared_ptr<VisualMixer> m_mixer{new VisualMixer(640, 480, lock())};
    VisualMixer const& m_const = *m_mixer;
};

TEST_F(VisualMixerTest, HasTheSizeItWasMadeWith)
{
    EXPECT_EQ(640, m_mixer->attributeWidth()->value());
    EXPECT_EQ(480, m_mixer->attributeHeight()->value());
}

TEST_F(VisualMixerTest, TheEyeStandsBeforeTheMiddle)
{
    EXPECT_EQ(Point(0, 0, 3000), pointAt(m_const.eyePositionParam(), 0));
    EXPECT_EQ(Point(0, 0, 0), pointAt(m_const.eyeLookAtPositionParam(), 0));
    EXPECT_EQ(Point(0, 1, 0), pointAt(m_const.eyeUpVectorParam(), 0));
    EXPECT_EQ(m_const.eyeUpVectorParam(), m_mixer->eyeUpVectorParam());
}

TEST_F(VisualMixerTest, TheFieldOfViewIsFilledByAPictureOfTheMixersHeight)
{
    EXPECT_EQ(static_cast<float>(2 * std::atan2(240.0, 3000.0)),
              m_const.fovParam()->valueAtTime(0));
}

TEST_F(VisualMixerTest, ClipsFromOneAndAHalfToSixThousand)
{
    EXPECT_EQ(1.5f, m_const.nearClipDistanceParam()->valueAtTime(0));
    EXPECT_EQ(6000.0f, m_const.farClipDistanceParam()->valueAtTime(0));
}

TEST_F(VisualMixerTest, EveryCameraParameterHasOneKeyFrameAtZero)
{
    EXPECT_EQ((std::vector<std::string>{
                  "eyePosition0", "eyePosition1", "eyePosition2", "eyeLookAtPosition0",
                  "eyeLookAtPosition1", "eyeLookAtPosition2", "eyeUpVector0", "eyeUpVector1",
                  "eyeUpVector2", "fov", "nearClipDistance", "farClipDistance"}),
              parameterNames());
    EXPECT_EQ(std::vector<long long>(12, 0), keyTimes());
}

TEST_F(VisualMixerTest, CountsTwelveParametersAndThreeAttributes)
{
    EXPECT_EQ(12, m_mixer->numParameters());
    EXPECT_EQ(3, m_mixer->numAttributes());
}

TEST_F(VisualMixerTest, FindsItsParametersByNameButNoGroupsAndNoAttributes)
{
    EXPECT_EQ(m_mixer->eyePositionParam()->at(0), m_mixer->paramWithName("eyePosition0"));
    EXPECT_EQ(m_mixer->fovParam(), m_mixer->paramWithName("fov"));
    EXPECT_FALSE(m_mixer->paramWithName("eyePosition"));
    EXPECT_FALSE(m_mixer->paramWithName("width"));
    EXPECT_FALSE(m_mixer->paramWithName("translation0"));
}

TEST_F(VisualMixerTest, DescribesItselfByItsName)
{
    EXPECT_EQ("VisualMixer", m_mixer->description());
}

TEST_F(VisualMixerTest, TakesAVisualTrack)
{
    boost::shared_ptr<Track> const picture(new VisualTrack(lock()));
    m_mixer->addTrack(picture, -1);
    EXPECT_EQ(picture, m_mixer->trackAtIndex(0));
    EXPECT_EQ(picture, m_const.trackAtIndex(0));
}

TEST_F(VisualMixerTest, RefusesEveryOtherTrack)
{
    boost::shared_ptr<Track> const sound(new AudioTrack(lock()));
    boost::shared_ptr<Track> const images(new ImageTrack(lock()));
    EXPECT_STREQ("VisualTrack",
                 thrownBy<TypeException>([&] { m_mixer->addTrack(sound, -1); }).what());
    EXPECT_STREQ("VisualTrack",
                 thrownBy<TypeException>([&] { m_mixer->addTrack(images, -1); }).what());
    EXPECT_STREQ("VisualTrack", thrownBy<TypeException>([&] {
                                    m_mixer->addTrack(boost::shared_ptr<Track>(), -1);
                                }).what());
    EXPECT_EQ(0u, m_mixer->numTracks());
}

TEST_F(VisualMixerTest, ANewImageTrackIsRefusedToo)
{
    EXPECT_STREQ("VisualTrack",
                 thrownBy<TypeException>([&] { m_mixer->newTrack<ImageTrack>(-1); }).what());
    EXPECT_EQ(0u, m_mixer->numTracks());
}

TEST_F(VisualMixerTest, AnImageTrackComesInPastTheTypeCheckOnly)
{
    boost::shared_ptr<Track> const images(new ImageTrack(lock()));
    m_mixer->addTrackSansTypeCheck(images, -1);
    EXPECT_EQ(images, m_mixer->trackAtIndex(0));
}

TEST_F(VisualMixerTest, ShowsItsTracksAsVisualTracks)
{
    boost::shared_ptr<VisualTrack> const picture = m_mixer->newTrack<VisualTrack>(-1);
    boost::shared_ptr<AbstractVisualTrack> const first = *m_mixer->trackBegin();
    boost::shared_ptr<AbstractVisualTrack const> const constFirst = *m_const.trackBegin();
    EXPECT_EQ(picture, first);
    EXPECT_EQ(picture, constFirst);
    EXPECT_EQ(m_mixer->trackEnd(), ++m_mixer->trackBegin());
    EXPECT_EQ(m_const.trackEnd(), ++m_const.trackBegin());
}

TEST_F(VisualMixerTest, AnIndexWithoutATrackIsRefused)
{
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_mixer->trackAtIndex(0); }).index());
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_const.trackAtIndex(0); }).index());
}

TEST_F(VisualMixerTest, MeasuresFromTheEyeToWhatItLooksAt)
{
    EXPECT_EQ(3000, m_mixer->distanceBetweenEyeAndLookAt(0));
    placeEye(2, 3, 6);
    // 4 + 9 + 36 = 49
    EXPECT_DOUBLE_EQ(7, m_mixer->distanceBetweenEyeAndLookAt(0));
}

TEST_F(VisualMixerTest, TheDistanceIsThatOfTheTimeAskedFor)
{
    m_mixer->eyePositionParam()->at(2)->addKeyFrame(100, 1000);
    // Half way from 3000 to 1000.
    EXPECT_DOUBLE_EQ(2000, m_mixer->distanceBetweenEyeAndLookAt(50));
}

TEST_F(VisualMixerTest, TheCameraLooksAlongZAndKeepsTheEyeInTheLastColumn)
{
    // Forward (0,0,-1), side forward x up = (1,0,0), up (0,1,0).
    EXPECT_TRUE(isNear(m_mixer->cameraTransformAtTime(0),
                       matrix({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, -3000, 0, 0, 0, 1})));
}

TEST_F(VisualMixerTest, TheCameraFollowsTheEye)
{
    placeEye(3000, 0, 0);
    // Forward (-1,0,0), side = forward x up = (0,0,-1), up = side x forward = (0,1,0).
    EXPECT_TRUE(isNear(m_mixer->cameraTransformAtTime(0),
                       matrix({0, 0, -1, -3000, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1})));
}

TEST_F(VisualMixerTest, TheLeftHandedCameraIsForRows)
{
    // z (0,0,-1), x = up x z = (-1,0,0), y = z x x = (0,1,0); -z . eye = 3000.
    EXPECT_TRUE(isNear(m_mixer->cameraTransformAtTimeLH(0),
                       matrix({-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1, 0, 0, 0, 3000, 1})));
}

TEST_F(VisualMixerTest, TheProjectionFollowsFromViewportAndDistance)
{
    // f = 1 / tan(atan2(300, 3000)) = 10, aspect = 1200 / 600 = 2;
    // m22 = (6000 + 1.5) / (1.5 - 6000), m23 = 1.5 * 12000 / (1.5 - 6000).
    double const depth = 1.5 - 6000;
    EXPECT_TRUE(isNear(
        m_mixer->projectionTransformAtTime(0, Rect<int>(0, 0, 1200, 600)),
        matrix({5, 0, 0, 0, 0, 10, 0, 0, 0, 0, 6001.5 / depth, 18000 / depth, 0, 0, -1, 0})));
}

TEST_F(VisualMixerTest, TheLeftHandedProjectionIsForRows)
{
    double const depth = 6000 - 1.5;
    EXPECT_TRUE(
        isNear(m_mixer->projectionTransformAtTimeLH(0, Rect<int>(0, 0, 1200, 600)),
               matrix({5, 0, 0, 0, 0, 10, 0, 0, 0, 0, 6000 / depth, 1, 0, 0, -9000 / depth, 0})));
}

TEST_F(VisualMixerTest, TheAspectIsNoWholeNumber)
{
    // f = 10, aspect = 900 / 600 = 1.5, not 1.
    EXPECT_NEAR(10 / 1.5, m_mixer->projectionTransformAtTime(0, Rect<int>(0, 0, 900, 600)).at(0, 0),
                1e-9);
}

TEST_F(VisualMixerTest, TheFieldOfViewParameterDoesNotMoveTheProjection)
{
    Rect<int> const viewport(0, 0, 640, 480);
    TransformMatrix const before = m_mixer->projectionTransformAtTime(0, viewport);
    TransformMatrix const beforeLH = m_mixer->projectionTransformAtTimeLH(0, viewport);
    m_mixer->fovParam()->changeKeyFrame(0, 2.0f);
    EXPECT_EQ(before, m_mixer->projectionTransformAtTime(0, viewport));
    EXPECT_EQ(beforeLH, m_mixer->projectionTransformAtTimeLH(0, viewport));
}

TEST_F(VisualMixerTest, ClipDistancesAreThoseOfTheTimeAskedFor)
{
    m_mixer->nearClipDistanceParam()->addKeyFrame(100, 2000);
    m_mixer->farClipDistanceParam()->addKeyFrame(100, 4000);
    TransformMatrix const projection =
        m_mixer->projectionTransformAtTime(100, Rect<int>(0, 0, 640, 480));
    // (4000 + 2000) / (2000 - 4000) = -3; 2000 * 8000 / (2000 - 4000) = -8000
    EXPECT_NEAR(-3, projection.at(2, 2), 1e-9);
    EXPECT_NEAR(-8000, projection.at(2, 3), 1e-9);
}

TEST_F(VisualMixerTest, WithTheEyeAtWhatItLooksAtTheFieldOfViewIsPi)
{
    placeEye(0, 0, 0);
    EXPECT_EQ(0, m_mixer->distanceBetweenEyeAndLookAt(0));
    // 1 / tan(pi / 2) is next to nothing.
    EXPECT_NEAR(0, m_mixer->projectionTransformAtTime(0, Rect<int>(0, 0, 640, 480)).at(1, 1), 1e-9);
}

TEST_F(VisualMixerTest, AClonesSettingsAreItsOwn)
{
    placeEye(1, 2, 3);
    m_mixer->translation()->at(0)->changeKeyFrame(0, 7);
    boost::shared_ptr<VisualMixer> const clone(m_mixer->clone());
    placeEye(4, 5, 6);
    EXPECT_EQ(Point(1, 2, 3), pointAt(clone->eyePositionParam(), 0));
    EXPECT_EQ(7, clone->translation()->at(0)->valueAtTime(0));
    EXPECT_NE(m_mixer->translation(), clone->translation());
    EXPECT_EQ(480, clone->attributeHeight()->value());
    EXPECT_NE(m_mixer->attributeHeight(), clone->attributeHeight());
}

TEST_F(VisualMixerTest, AClonesTracksAreClonesInTheSameOrder)
{
    given("V1: aa / V2: bbb");
    boost::shared_ptr<VisualMixer> const clone(visualMixer()->clone());
    ASSERT_EQ(2u, clone->numTracks());
    EXPECT_EQ(20, clone->trackAtIndex(0)->endTime());
    EXPECT_EQ(30, clone->trackAtIndex(1)->endTime());
    EXPECT_NE(track("V1"), clone->trackAtIndex(0));
}

TEST_F(VisualMixerTest, APortionIsOfTheSameSize)
{
    given("V1: aaaa / V2: bb");
    boost::shared_ptr<VisualMixer> const copy =
        visualMixer()->copyPortion(Range<long long>(10, 20), ConstTrackSet{track("V1")}, nullptr);
    EXPECT_EQ(640, copy->attributeWidth()->value());
    ASSERT_EQ(1u, copy->numTracks());
    EXPECT_EQ(Range<long long>(10, 20), copy->trackAtIndex(0)->timeRange());
}

TEST_F(VisualMixerTest, APortionOfChosenMediasHasTheirTracksOnly)
{
    given("A1: cc / V1: aaaa / V2: bb");
    MediaCloneMap clones;
    boost::shared_ptr<VisualMixer> const copy =
        visualMixer()->copyPortion(ConstMediaVector{media("V2.b"), media("A1.c")}, &clones);
    ASSERT_EQ(1u, copy->numTracks());
    ASSERT_EQ(1u, clones.size());
    EXPECT_TRUE(copy->trackAtIndex(0)->hasMedia(clones.at(media("V2.b"))));
}

TEST_F(VisualMixerTest, PrintsItsSizeAfterItsIdent)
{
    EXPECT_NE(std::string::npos, xmlOf(*m_mixer).find(" <Attributes>\n"
                                                      "  <Attribute id=\"#\" value=\"\" "
                                                      "name=\"ident\">\n"
                                                      "  </Attribute>\n"
                                                      "  <Attribute id=\"#\" value=\"640\" "
                                                      "name=\"width\">\n"
                                                      "  </Attribute>\n"
                                                      "  <Attribute id=\"#\" value=\"480\" "
                                                      "name=\"height\">\n"
                                                      "  </Attribute>\n"
                                                      " </Attributes>\n"
                                                      " <Tracks>\n"
                                                      " </Tracks>\n"
                                                      " <Transformer>\n"));
}

TEST_F(VisualMixerTest, PrintsItsParametersInOrder)
{
    std::string const xml = xmlOf(*m_mixer);
    EXPECT_EQ(0u, xml.find("<VisualMixer id=\"#\"  >\n <Parameters>\n  <VectorParam id=\"#\"  "
                           "name=\"eyePosition\">\n"));
    std::vector<std::size_t> const places = {
        xml.find("  <VectorParam id=\"#\"  name=\"eyePosition\">\n"),
        xml.find("  <VectorParam id=\"#\"  name=\"eyeLookAtPosition\">\n"),
        xml.find("  <VectorParam id=\"#\"  name=\"eyeUpVector\">\n"),
        xml.find("  <InterpolatingParam id=\"#\"  name=\"fov\">\n"),
        xml.find("  <InterpolatingParam id=\"#\"  name=\"nearClipDistance\">\n"),
        xml.find("  <InterpolatingParam id=\"#\"  name=\"farClipDistance\">\n"),
        xml.find(" </Parameters>\n <Attributes>\n")};
    EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
    EXPECT_NE(std::string::npos, places.back());
}

TEST_F(VisualMixerTest, PrintsItsTransformLast)
{
    std::string const xml = xmlOf(*m_mixer);
    std::string const end = " </Transformer>\n</VisualMixer>\n";
    EXPECT_EQ(xml.size() - end.size(), xml.rfind(end));
}

}  // namespace
}  // namespace test
}  // namespace tarn
