#include "parameters/KeyframeUtil.h"
#include "datatypes/Range.h"
#include "exceptions/KeyFrameException.h"
#include "support/FakeParametric.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::FakeParametric;
using test::FakeProject;
using Times = Range<long long>;

class KeyframeUtilTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    FakeParametric owner{project};
};

TEST_F(KeyframeUtilTest, AnOwnerWithoutParametersSpansNothing)
{
    EXPECT_EQ(Times(0, 0), KeyframeUtil::keyframeRange(&owner));
}

TEST_F(KeyframeUtilTest, TheFirstParameterCountsWithOneKeyFrame)
{
    owner.add("a")->addKeyFrame(7, 1.0);
    EXPECT_EQ(Times(7, 0), KeyframeUtil::keyframeRange(&owner));
}

TEST_F(KeyframeUtilTest, TheFirstParameterCountsEvenEmpty)
{
    owner.add("a");
    owner.add("b")->addKeyFrame(7, 1.0);
    EXPECT_THROW(KeyframeUtil::keyframeRange(&owner), KeyFrameException);
}

TEST_F(KeyframeUtilTest, ALaterParameterWidensOnBothSides)
{
    owner.add("a")->addKeyFrame(5, 1.0);
    boost::shared_ptr<InterpolatingParam<double>> const b = owner.add("b");
    b->addKeyFrame(-3, 1.0);
    b->addKeyFrame(9, 1.0);
    EXPECT_EQ(Times(-3, 12), KeyframeUtil::keyframeRange(&owner));
}

TEST_F(KeyframeUtilTest, ALaterParameterInsideChangesNothing)
{
    boost::shared_ptr<InterpolatingParam<double>> const a = owner.add("a");
    a->addKeyFrame(0, 1.0);
    a->addKeyFrame(100, 1.0);
    boost::shared_ptr<InterpolatingParam<double>> const b = owner.add("b");
    b->addKeyFrame(20, 1.0);
    b->addKeyFrame(30, 1.0);
    EXPECT_EQ(Times(0, 100), KeyframeUtil::keyframeRange(&owner));
}

TEST_F(KeyframeUtilTest, ALaterParameterWithOneKeyFrameOrNoneDoesNotWiden)
{
    owner.add("a")->addKeyFrame(5, 1.0);
    owner.add("b")->addKeyFrame(50, 1.0);
    owner.add("c");
    EXPECT_EQ(Times(5, 0), KeyframeUtil::keyframeRange(&owner));
}

TEST_F(KeyframeUtilTest, LooksPastEmptyEntries)
{
    owner.addEmpty();
    owner.add("a")->addKeyFrame(7, 1.0);
    EXPECT_EQ(Times(7, 0), KeyframeUtil::keyframeRange(&owner));
}

}  // namespace
}  // namespace tarn
