#include "project/InternalProject.h"

#include "exceptions/KeyFrameException.h"
#include "parameters/InterpolatingParam.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/VisualMedia.h"

namespace tarn {
namespace test {
namespace {

/// The primitive that moves a key frame by times on its owner's clock. V1.a lies at 10 on its track
/// and shows its source from 500 on; its opacity has a key frame at 0 and one at 510.
class InternalProjectKeyFrameTest : public ModelTest
{
protected:
    InternalProjectKeyFrameTest()
    {
        given("V1: .aaa");
        picture = boost::dynamic_pointer_cast<VisualMedia>(media("V1.a"));
        opacity = picture->opacity();
        opacity->addKeyFrame(510, 0.5);
    }

    void moveKey(long long from, long long to) const
    {
        project->moveParameterKeyFrame(picture, opacity, from, to);
    }
    std::vector<long long> times() const { return *opacity->keyframeTimes(); }
    long long refusedTime(long long from, long long to) const
    {
        return thrownBy<KeyFrameException>([&] { moveKey(from, to); }).time();
    }

    using Times = std::vector<long long>;

    boost::shared_ptr<VisualMedia> picture;
    boost::shared_ptr<InterpolatingParam<double>> opacity;
};

TEST_F(InternalProjectKeyFrameTest, TimesAreThoseOfTheOwner)
{
    moveKey(10, 25);
    EXPECT_EQ((Times{0, 525}), times());
    EXPECT_DOUBLE_EQ(0.5, opacity->valueAtTime(525));
}

TEST_F(InternalProjectKeyFrameTest, OnAStretchedOwnerTimesAreCut)
{
    project->execute(stretch("V1.a", 2.0));
    // 500 + 21 / 2 is 510.5, 500 + 7 / 2 is 503.5.
    moveKey(21, 7);
    EXPECT_EQ((Times{0, 503}), times());
}

TEST_F(InternalProjectKeyFrameTest, TimesAreCutTowardsZero)
{
    project->execute(stretch("V1.a", 2.0));
    // 500 - 1001 / 2 is -0.5, where the first key frame is then found at 0.
    moveKey(-1001, -1003);
    EXPECT_EQ((Times{-1, 510}), times());
}

TEST_F(InternalProjectKeyFrameTest, WithoutAKeyFrameThereTheMoveIsRefused)
{
    EXPECT_EQ(511, refusedTime(11, 25));
    EXPECT_EQ((Times{0, 510}), times());
}

TEST_F(InternalProjectKeyFrameTest, ATakenTimeIsRefused)
{
    EXPECT_EQ(0, refusedTime(10, -500));
    EXPECT_EQ(510, refusedTime(10, 10));
    EXPECT_EQ((Times{0, 510}), times());
}

}  // namespace
}  // namespace test
}  // namespace tarn
