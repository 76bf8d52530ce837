#include "parameters/ParametricTemporalDifferentiater.h"
#include "exceptions/KeyFrameException.h"
#include "support/FakeParametric.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using test::FakeParametric;
using test::FakeProject;

class ParametricTemporalDifferentiaterTest : public ::testing::Test
{
protected:
    bool differ(long long time1, long long time2) const
    {
        return ParametricTemporalDifferentiater::timesDiffer(owner, time1, time2);
    }

    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    boost::shared_ptr<FakeParametric> owner{new FakeParametric(project)};
};

TEST_F(ParametricTemporalDifferentiaterTest, NothingDiffersWithoutParameters)
{
    EXPECT_FALSE(differ(0, 100));
}

TEST_F(ParametricTemporalDifferentiaterTest, ATimeDoesNotDifferFromItself)
{
    owner->add("a")->addKeyFrame(0, 1.0);
    EXPECT_FALSE(differ(5, 5));
}

TEST_F(ParametricTemporalDifferentiaterTest, NotANumberDiffersFromItself)
{
    owner->add("a")->addKeyFrame(0, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(differ(5, 5));
}

TEST_F(ParametricTemporalDifferentiaterTest, OneAnimatedParameterIsEnough)
{
    owner->add("a")->addKeyFrame(0, 1.0);
    boost::shared_ptr<InterpolatingParam<double>> const b = owner->add("b");
    b->addKeyFrame(0, 1.0);
    b->addKeyFrame(10, 2.0);
    EXPECT_TRUE(differ(3, 4));
    EXPECT_FALSE(differ(10, 11));
}

TEST_F(ParametricTemporalDifferentiaterTest, ComparesAtWholeParameterTimes)
{
    // At scalar 4, local 1 and 3 are 0.25 and 0.75, both cut to 0; local 4 is 1.
    owner.reset(new FakeParametric(project, 0, 4));
    boost::shared_ptr<InterpolatingParam<double>> const a = owner->add("a");
    a->addKeyFrame(0, 1.0);
    a->addKeyFrame(10, 2.0);
    EXPECT_FALSE(differ(1, 3));
    EXPECT_TRUE(differ(3, 4));
}

TEST_F(ParametricTemporalDifferentiaterTest, LooksPastEmptyEntries)
{
    owner->addEmpty();
    EXPECT_FALSE(differ(0, 1));
}

TEST_F(ParametricTemporalDifferentiaterTest, AnEmptyParameterHasNothingToCompare)
{
    owner->add("a");
    EXPECT_THROW(differ(0, 1), KeyFrameException);
}

TEST_F(ParametricTemporalDifferentiaterTest, StopsAtTheFirstDifference)
{
    boost::shared_ptr<InterpolatingParam<double>> const a = owner->add("a");
    a->addKeyFrame(0, 1.0);
    a->addKeyFrame(10, 2.0);
    owner->add("empty");
    EXPECT_TRUE(differ(3, 4));
}

}  // namespace
}  // namespace tarn
