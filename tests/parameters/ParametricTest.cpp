#include "exceptions/KeyFrameException.h"
#include "parameters/VectorParam.h"
#include "support/FakeParametric.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::FakeParametric;
using test::FakeProject;
using Parameters = MTVector<boost::shared_ptr<ParameterInterface const>>;

/// Adds the time it is asked for to every value.
class Bending : public FakeParametric
{
public:
    using FakeParametric::FakeParametric;
    double doubleParametricTransform(boost::shared_ptr<ParameterInterface const> const& parameter,
                                     double value, double time) const override
    {
        asked = parameter;
        return value + time;
    }
    mutable boost::shared_ptr<ParameterInterface const> asked;
};

/// Opens what only owners may use.
class Flattening : public FakeParametric
{
public:
    using FakeParametric::FakeParametric;
    using Parametric::addVectorParamToParameters;
};

class ParametricTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
};

TEST_F(ParametricTest, LeavesValuesAsTheyAreByDefault)
{
    FakeParametric owner(project);
    EXPECT_EQ(2.5, owner.doubleParametricTransform(owner.add("a"), 2.5, 7));
}

TEST_F(ParametricTest, ReadsAValueAtParameterTime)
{
    // Local 50 is 50 / 2 + 100 = 125 for the key frames.
    FakeParametric owner(project, 100, 2);
    boost::shared_ptr<InterpolatingParam<double>> const level = owner.add("level");
    level->addKeyFrame(100, 0.0);
    level->addKeyFrame(200, 100.0);
    EXPECT_EQ(25.0, owner.transformedDoubleParameterValueAtTime(level, 50));
}

TEST_F(ParametricTest, TransformsAValueAtLocalTime)
{
    // The stored value is 25, as above; the transform adds the local time 50, not 125.
    Bending owner(project, 100, 2);
    boost::shared_ptr<InterpolatingParam<double>> const level = owner.add("level");
    level->addKeyFrame(100, 0.0);
    level->addKeyFrame(200, 100.0);
    EXPECT_EQ(75.0, owner.transformedDoubleParameterValueAtTime(level, 50));
    EXPECT_EQ(level, owner.asked);
}

TEST_F(ParametricTest, AnEmptyParameterHasNoValueToTransform)
{
    FakeParametric owner(project);
    boost::shared_ptr<InterpolatingParam<double>> const level = owner.add("level");
    EXPECT_THROW(owner.transformedDoubleParameterValueAtTime(level, 0), KeyFrameException);
}

TEST_F(ParametricTest, FindsAParameterByName)
{
    FakeParametric owner(project);
    owner.add("a");
    boost::shared_ptr<InterpolatingParam<double>> const b = owner.add("b");
    EXPECT_EQ(b, owner.paramWithName("b"));
}

TEST_F(ParametricTest, FindsTheFirstOfTwoOfOneName)
{
    FakeParametric owner(project);
    boost::shared_ptr<InterpolatingParam<double>> const first = owner.add("a");
    owner.add("a");
    EXPECT_EQ(first, owner.paramWithName("a"));
}

TEST_F(ParametricTest, FindsNothingForAnUnknownName)
{
    FakeParametric owner(project);
    EXPECT_FALSE(owner.paramWithName("a"));
    owner.add("b");
    EXPECT_FALSE(owner.paramWithName("a"));
}

TEST_F(ParametricTest, LooksPastEmptyEntries)
{
    FakeParametric owner(project);
    owner.addEmpty();
    boost::shared_ptr<InterpolatingParam<double>> const a = owner.add("a");
    EXPECT_EQ(a, owner.paramWithName("a"));
}

TEST_F(ParametricTest, FlattensAVectorInOrder)
{
    boost::shared_ptr<VectorParam> const eye(new VectorParam(project->weak(), 2, "eye"));
    Parameters parameters(project->weak());
    Flattening::addVectorParamToParameters(eye, &parameters);
    ASSERT_EQ(2u, parameters.size());
    EXPECT_EQ(eye->at(0), parameters[0]);
    EXPECT_EQ(eye->at(1), parameters[1]);
}

}  // namespace
}  // namespace tarn
