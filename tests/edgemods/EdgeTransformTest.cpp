#include "edgemods/EdgeModFunc.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/LinearSlideInFunc.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "support/Geometry.h"
#include "timeline/IMFile.h"
#include "timeline/VMFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <stdexcept>

namespace tarn {
namespace test {
namespace {

/// Does what a test says.
class HostFunc : public EdgeModFunc
{
public:
    using Action = std::function<double(double position, double value)>;

    explicit HostFunc(Action const& action) : m_action(action) {}

    HostFunc* clone() const override { return new HostFunc(m_action); }
    double execute(double position, double value) const override
    {
        return m_action(position, value);
    }
    std::string ident() const override { return "HostFunc"; }

private:
    Action m_action;
};

/// A still of 100 with an opacity of 0.8.
class EdgeTransformTest : public ::testing::Test
{
protected:
    EdgeTransformTest() { m_opacity->changeKeyFrame(0, 0.8); }

    boost::shared_ptr<IMFile> still(long long duration) const
    {
        return boost::shared_ptr<IMFile>(
            new IMFile(0, duration, m_project->weak(), Rect<float>(0, 0, 64, 48), "still"));
    }
    double opacityAt(double time) const
    {
        return m_media->transformedDoubleParameterValueAtTime(m_opacity, time);
    }
    void fadeIn(long long length)
    {
        m_media->addLeftEdgeModification(EdgeModification(m_opacity, FadeInFunc()));
        m_media->setLeftEdgeModificationLength(length);
    }
    void fadeOut(long long length)
    {
        m_media->addRightEdgeModification(EdgeModification(m_opacity, FadeOutFunc()));
        m_media->setRightEdgeModificationLength(length);
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<IMFile> m_media = still(100);
    boost::shared_ptr<InterpolatingParam<double>> m_opacity = m_media->opacity();
};

TEST_F(EdgeTransformTest, TheLeftEdgeRunsFromZeroToItsLength)
{
    // 0.8 times 0, 5 / 20 and 19.5 / 20
    fadeIn(20);
    EXPECT_DOUBLE_EQ(0, opacityAt(0));
    EXPECT_DOUBLE_EQ(0.2, opacityAt(5));
    EXPECT_DOUBLE_EQ(0.78, opacityAt(19.5));
    EXPECT_EQ(0.8, opacityAt(20));
    EXPECT_EQ(0.8, opacityAt(99));
}

TEST_F(EdgeTransformTest, TheRightEdgeRunsUpToTheEnd)
{
    // 0.8 times 1 - (t - 60) / 40
    fadeOut(40);
    EXPECT_EQ(0.8, opacityAt(0));
    EXPECT_EQ(0.8, opacityAt(60));
    EXPECT_DOUBLE_EQ(0.6, opacityAt(70));
    EXPECT_DOUBLE_EQ(0.2, opacityAt(90));
    EXPECT_DOUBLE_EQ(0, opacityAt(100));
}

TEST_F(EdgeTransformTest, AnEdgeOfOneUnitBendsUpToThere)
{
    fadeIn(1);
    fadeOut(1);
    EXPECT_EQ(0, opacityAt(0));
    EXPECT_DOUBLE_EQ(0.4, opacityAt(0.5));
    EXPECT_EQ(0.8, opacityAt(1));
    EXPECT_EQ(0.8, opacityAt(99));
    EXPECT_DOUBLE_EQ(0.4, opacityAt(99.5));
    EXPECT_EQ(0, opacityAt(100));
}

TEST_F(EdgeTransformTest, NeitherEdgeHasTheTimeAtItsInnerEnd)
{
    HostFunc const doubling([](double, double value) { return 2 * value; });
    m_media->addLeftEdgeModification(EdgeModification(m_opacity, doubling));
    m_media->addRightEdgeModification(EdgeModification(m_opacity, doubling));
    m_media->setLeftEdgeModificationLength(20);
    m_media->setRightEdgeModificationLength(40);
    EXPECT_EQ(1.6, opacityAt(19.5));
    EXPECT_EQ(0.8, opacityAt(20));
    EXPECT_EQ(0.8, opacityAt(60));
    EXPECT_EQ(1.6, opacityAt(60.5));
}

TEST_F(EdgeTransformTest, PositionsGoOnOutsideTheMedia)
{
    // 0.8 * -10 / 20; 0.8 * (1 - 50 / 40)
    fadeIn(20);
    fadeOut(40);
    EXPECT_DOUBLE_EQ(-0.4, opacityAt(-10));
    EXPECT_DOUBLE_EQ(-0.2, opacityAt(110));
}

TEST_F(EdgeTransformTest, AnEdgeWithoutLengthBendsNothing)
{
    fadeIn(0);
    fadeOut(0);
    EXPECT_EQ(0.8, opacityAt(-5));
    EXPECT_EQ(0.8, opacityAt(0));
    EXPECT_EQ(0.8, opacityAt(100));
    EXPECT_EQ(0.8, opacityAt(105));
}

TEST_F(EdgeTransformTest, ANegativeLengthBendsNothing)
{
    fadeIn(-10);
    fadeOut(-10);
    EXPECT_EQ(0.8, opacityAt(-20));
    EXPECT_EQ(0.8, opacityAt(-5));
    EXPECT_EQ(0.8, opacityAt(105));
    EXPECT_EQ(0.8, opacityAt(120));
}

TEST_F(EdgeTransformTest, WhereBothEdgesMeetNeitherApplies)
{
    fadeIn(50);
    fadeOut(50);
    EXPECT_EQ(0.8, opacityAt(50));
    EXPECT_DOUBLE_EQ(0.784, opacityAt(49));  // 0.8 * 49 / 50
    EXPECT_DOUBLE_EQ(0.784, opacityAt(51));
}

TEST_F(EdgeTransformTest, HalvesOfAnOddDurationLeaveAGap)
{
    // 101 is 50, then one free, then 50.
    m_media->trimEnd(-1);
    fadeIn(80);
    fadeOut(60);
    EXPECT_DOUBLE_EQ(0.784, opacityAt(49));
    EXPECT_EQ(0.8, opacityAt(50));
    EXPECT_EQ(0.8, opacityAt(50.5));
    EXPECT_EQ(0.8, opacityAt(51));
    EXPECT_DOUBLE_EQ(0.784, opacityAt(52));
}

TEST_F(EdgeTransformTest, NoTimeIsInNoEdge)
{
    fadeIn(20);
    fadeOut(40);
    double const nowhere = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(0.8, m_media->doubleParametricTransform(m_opacity, 0.8, nowhere));
}

TEST_F(EdgeTransformTest, BendsTheVeryParameterObjectAlone)
{
    boost::shared_ptr<IMFile> const other = still(100);
    fadeIn(20);
    EXPECT_EQ(1, m_media->transformedDoubleParameterValueAtTime(m_media->scale()->at(0), 5));
    EXPECT_EQ(1, m_media->transformedDoubleParameterValueAtTime(other->opacity(), 5));
    EXPECT_DOUBLE_EQ(0.25, m_media->doubleParametricTransform(m_opacity, 1, 5));
}

TEST_F(EdgeTransformTest, EachParameterHasItsOwnFunction)
{
    fadeIn(20);
    m_media->addLeftEdgeModification(
        EdgeModification(m_media->scale()->at(1), LinearSlideInFunc(50)));
    EXPECT_DOUBLE_EQ(0.2, opacityAt(5));
    // (1 - 0.25) * 50 + 1
    EXPECT_DOUBLE_EQ(38.5,
                     m_media->transformedDoubleParameterValueAtTime(m_media->scale()->at(1), 5));
}

TEST_F(EdgeTransformTest, ReachesTheTransformAndTheCrops)
{
    // Scale 2 and a crop of 20, both half faded in at 10 of 20.
    m_media->scale()->at(0)->changeKeyFrame(0, 2);
    m_media->geometryCropParam()->at(2)->changeKeyFrame(0, 20);
    m_media->setLeftEdgeModificationLength(20);
    m_media->addLeftEdgeModification(EdgeModification(m_media->scale()->at(0), FadeInFunc()));
    m_media->addLeftEdgeModification(
        EdgeModification(m_media->geometryCropParam()->at(2), FadeInFunc()));
    EXPECT_TRUE(isNear(m_media->transformAtTime(10) * Point(5, 5, 0), Point(5, 5, 0)));
    EXPECT_TRUE(isNear(m_media->transformAtTime(20) * Point(5, 5, 0), Point(10, 5, 0)));
    EXPECT_EQ(Rect<double>(0, 0, 54, 48), m_media->geometryCropRectAtTime(10));
    EXPECT_EQ(Rect<double>(0, 0, 44, 48), m_media->geometryCropRectAtTime(20));
}

TEST_F(EdgeTransformTest, EdgesLieOnTheMediasClockAndKeyFramesOnTheSources)
{
    // The movie shows its source from 100. Its opacity rises from 0 at 100 to 1 at 200.
    boost::shared_ptr<VMFile> const movie(new VMFile(Range<long long>(100, 100), m_project->weak(),
                                                     Rect<float>(0, 0, 64, 48), "movie"));
    movie->opacity()->addKeyFrame(100, 0);
    movie->opacity()->addKeyFrame(200, 1);
    movie->addLeftEdgeModification(EdgeModification(movie->opacity(), FadeInFunc()));
    movie->setLeftEdgeModificationLength(20);
    // Local 10 is 110: 0.1, half faded in.
    EXPECT_DOUBLE_EQ(0.05, movie->transformedDoubleParameterValueAtTime(movie->opacity(), 10));
    EXPECT_DOUBLE_EQ(0.2, movie->transformedDoubleParameterValueAtTime(movie->opacity(), 20));
    // Stretched, local 10 is 105, and the edge is as long as before.
    movie->stretch(2);
    EXPECT_DOUBLE_EQ(0.025, movie->transformedDoubleParameterValueAtTime(movie->opacity(), 10));
}

TEST_F(EdgeTransformTest, EdgesStayAtTheEndsOfATrimmedMedia)
{
    // 80 long: the right edge now begins at 40.
    fadeOut(40);
    m_media->trimEnd(20);
    EXPECT_EQ(0.8, opacityAt(40));
    EXPECT_DOUBLE_EQ(0.6, opacityAt(50));
    EXPECT_DOUBLE_EQ(0, opacityAt(80));
}

TEST_F(EdgeTransformTest, AFunctionThatAsksForItsOwnParameterGetsTheStoredValue)
{
    HostFunc const asking([&](double, double value) { return 10 * value + opacityAt(5); });
    m_media->addLeftEdgeModification(EdgeModification(m_opacity, asking));
    m_media->setLeftEdgeModificationLength(20);
    EXPECT_DOUBLE_EQ(8.8, opacityAt(5));
    EXPECT_DOUBLE_EQ(8.8, opacityAt(5));
}

TEST_F(EdgeTransformTest, AFunctionMayAskForOtherParametersAndMedias)
{
    // The other opacity is 1, half faded in: 0.5. The own scale is 1, a quarter faded in.
    boost::shared_ptr<IMFile> const other = still(100);
    other->addLeftEdgeModification(EdgeModification(other->opacity(), FadeInFunc()));
    other->setLeftEdgeModificationLength(20);
    m_media->addLeftEdgeModification(EdgeModification(m_media->scale()->at(0), FadeInFunc()));
    HostFunc const asking([&](double, double) {
        return other->transformedDoubleParameterValueAtTime(other->opacity(), 10) +
               m_media->transformedDoubleParameterValueAtTime(m_media->scale()->at(0), 5);
    });
    m_media->addLeftEdgeModification(EdgeModification(m_opacity, asking));
    m_media->setLeftEdgeModificationLength(20);
    EXPECT_DOUBLE_EQ(0.75, opacityAt(5));
}

TEST_F(EdgeTransformTest, AFunctionThatThrowsIsAskedAgain)
{
    int calls = 0;
    HostFunc const throwing([&](double, double) -> double {
        ++calls;
        throw std::runtime_error("no value");
    });
    m_media->addLeftEdgeModification(EdgeModification(m_opacity, throwing));
    m_media->setLeftEdgeModificationLength(20);
    EXPECT_THROW(opacityAt(5), std::runtime_error);
    EXPECT_THROW(opacityAt(5), std::runtime_error);
    EXPECT_EQ(2, calls);
}

}  // namespace
}  // namespace test
}  // namespace tarn
