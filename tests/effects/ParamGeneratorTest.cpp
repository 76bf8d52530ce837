#include "effects/ParamGenerator.h"

#include "datatypes/Color.h"
#include "datatypes/TransformMatrix.h"
#include "effects/EffectDef.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"
#include "support/FakeProject.h"
#include "timeline/IMFile.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

class ParamGeneratorTest : public ::testing::Test
{
protected:
    /// What one definition of that type and default makes.
    boost::shared_ptr<ParameterInterface> made(std::string const& type,
                                               boost::any const& defaultValue)
    {
        EffectDef def;
        def.addParamDef("it", type, defaultValue, 0.0, 0.0);
        ParamGenerator::genParameters(def, m_project->weak(), m_parameters);
        return m_parameters.at("it");
    }

    /// With which words such a definition is refused. Boost throws a class derived from the one
    /// that it names.
    std::string refusalOf(std::string const& type, boost::any const& defaultValue)
    {
        try {
            made(type, defaultValue);
        } catch (boost::bad_any_cast const& refusal) {
            return refusal.what();
        }
        return std::string();
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    std::map<std::string, boost::shared_ptr<ParameterInterface>> m_parameters;
};

TEST_F(ParamGeneratorTest, ADoubleIsBlendedAndStartsAtItsDefault)
{
    auto const parameter =
        boost::dynamic_pointer_cast<InterpolatingParam<double>>(made("double", 0.75));
    ASSERT_TRUE(parameter);
    EXPECT_EQ("it", parameter->ident());
    EXPECT_EQ(1, parameter->numKeyFrames());
    EXPECT_EQ(0.75, parameter->keyframeAtTime(0)->value());
}

TEST_F(ParamGeneratorTest, AnImageStartsWithNone)
{
    auto const parameter =
        boost::dynamic_pointer_cast<LeftParameter<boost::shared_ptr<IMFile>>>(made("image", 0.0));
    ASSERT_TRUE(parameter);
    EXPECT_EQ("it", parameter->ident());
    EXPECT_EQ(1, parameter->numKeyFrames());
    EXPECT_FALSE(parameter->keyframeAtTime(0)->value());
}

TEST_F(ParamGeneratorTest, APointIsBlendedAndStartsAtItsDefault)
{
    auto const parameter =
        boost::dynamic_pointer_cast<InterpolatingParam<Point>>(made("point", Point(1, 2, 3)));
    ASSERT_TRUE(parameter);
    EXPECT_EQ(1, parameter->numKeyFrames());
    EXPECT_EQ(Point(1, 2, 3), parameter->keyframeAtTime(0)->value());
}

TEST_F(ParamGeneratorTest, AColorIsWhiteWhateverTheDefault)
{
    auto const parameter =
        boost::dynamic_pointer_cast<LeftParameter<Color>>(made("color", std::string("red")));
    ASSERT_TRUE(parameter);
    EXPECT_EQ(1, parameter->numKeyFrames());
    EXPECT_EQ(Color(255, 255, 255, 0), parameter->keyframeAtTime(0)->value());
}

TEST_F(ParamGeneratorTest, AMatrixIsTheIdentityWhateverTheDefault)
{
    auto const parameter =
        boost::dynamic_pointer_cast<InterpolatingParam<TransformMatrix>>(made("matrix", 5));
    ASSERT_TRUE(parameter);
    EXPECT_EQ(1, parameter->numKeyFrames());
    EXPECT_EQ(TransformMatrix(), parameter->keyframeAtTime(0)->value());
}

TEST_F(ParamGeneratorTest, WhatHasNoValuesIsANullEntry)
{
    EXPECT_FALSE(made("data", 0.0));
    EXPECT_EQ(1u, m_parameters.size());
    EXPECT_FALSE(made("unknown", 0.0));
    EXPECT_FALSE(made("Double", 0.0));
    EXPECT_FALSE(made("doubles", 0.0));
    EXPECT_FALSE(made("", 0.0));
}

TEST_F(ParamGeneratorTest, ADefaultOfAnotherTypeIsRefused)
{
    EXPECT_EQ("boost::bad_any_cast: failed conversion using boost::any_cast",
              refusalOf("double", 1));
}

TEST_F(ParamGeneratorTest, EveryDefaultMustBeOfItsType)
{
    EXPECT_THROW(made("double", 1.0f), boost::bad_any_cast);
    EXPECT_THROW(made("double", Point()), boost::bad_any_cast);
    EXPECT_THROW(made("double", boost::any()), boost::bad_any_cast);
    EXPECT_THROW(made("point", 0.0), boost::bad_any_cast);
    EXPECT_TRUE(m_parameters.empty());
}

TEST_F(ParamGeneratorTest, WhatCameBeforeARefusalStays)
{
    EffectDef def;
    def.addParamDef("first", "double", 1.0, 0.0, 0.0);
    def.addParamDef("second", "point", 1.0, 0.0, 0.0);
    EXPECT_THROW(ParamGenerator::genParameters(def, m_project->weak(), m_parameters),
                 boost::bad_any_cast);
    EXPECT_EQ(1u, m_parameters.size());
    EXPECT_EQ("first", m_parameters.begin()->first);
}

TEST_F(ParamGeneratorTest, TheLaterOfOneNameTakesItsPlace)
{
    EffectDef def;
    def.addParamDef("it", "double", 1.0, 0.0, 0.0);
    def.addParamDef("it", "data", 0.0, 0.0, 0.0);
    def.addParamDef("other", "double", 0.0, 0.0, 0.0);
    ParamGenerator::genParameters(def, m_project->weak(), m_parameters);
    EXPECT_EQ(2u, m_parameters.size());
    EXPECT_FALSE(m_parameters.at("it"));
}

TEST_F(ParamGeneratorTest, KeepsEntriesOfOtherNames)
{
    m_parameters["old"];
    made("double", 1.0);
    EXPECT_EQ(2u, m_parameters.size());
}

TEST_F(ParamGeneratorTest, HoldsNoKeyFrameToTheSlidersRange)
{
    EffectDef def;
    def.addParamDef("it", "double", 5.0, 1.0, 0.0);
    ParamGenerator::genParameters(def, m_project->weak(), m_parameters);
    auto const parameter =
        boost::dynamic_pointer_cast<InterpolatingParam<double>>(m_parameters.at("it"));
    EXPECT_EQ(5, parameter->valueAtTime(0));
    parameter->changeKeyFrame(0, -3);
    EXPECT_EQ(-3, parameter->valueAtTime(0));
}

}  // namespace
}  // namespace test
}  // namespace tarn
