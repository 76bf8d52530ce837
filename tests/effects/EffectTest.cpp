#include "effects/Effect.h"

#include "effects/EffectTimeConverter.h"
#include "effects/VectorEffectable.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// An effect that adds nothing to what every effect has, but for the parameters of a test.
class PlainEffect : public Effect
{
public:
    using Effect::Effect;
    PlainEffect(PlainEffect const& other) : XMLIdentified(other), Effect(other) {}

    PlainEffect* clone() const override { return new PlainEffect(*this); }
    std::list<boost::shared_ptr<ParameterInterface>> parameters() const override
    {
        return m_parameters;
    }
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override
    {
        using Parameters = MTVector<boost::shared_ptr<ParameterInterface const>>;
        return boost::shared_ptr<Parameters>(new Parameters(projectMutex()));
    }

    std::list<boost::shared_ptr<ParameterInterface>> m_parameters;
};

/// g is 3 g + 1.
class FakeConverter : public EffectTimeConverter
{
public:
    long long globalTimeToEffectTime(long long time) const override { return 3 * time + 1; }
};

class EffectTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    PlainEffect m_effect{"Sepia", m_project->weak()};
    FakeConverter m_converter;
};

TEST_F(EffectTest, HasTheNameItWasMadeWith)
{
    EXPECT_EQ("Sepia", m_effect.name());
    EXPECT_EQ("", PlainEffect(m_project->weak()).name());
}

TEST_F(EffectTest, StartsOnNothing)
{
    EXPECT_EQ(nullptr, m_effect.effectTimeConverter());
    EXPECT_FALSE(m_effect.parentEffectable().lock());
}

TEST_F(EffectTest, DescribesItselfByNothing)
{
    EXPECT_EQ("", m_effect.description());
}

TEST_F(EffectTest, CountsNoParametersWhateverItLists)
{
    m_effect.m_parameters.push_back(boost::shared_ptr<ParameterInterface>(
        new InterpolatingParam<double>(m_project->weak(), "amount")));
    EXPECT_EQ(0, m_effect.numParameters());
}

TEST_F(EffectTest, RunsOnTheTimelinesClockByItself)
{
    EXPECT_EQ(41, m_effect.fromGlobalToParametricTime(41));
    EXPECT_EQ(-7, m_effect.fromGlobalToParametricTime(-7));
}

TEST_F(EffectTest, RunsOnTheClockOfItsConverter)
{
    m_effect.setEffectTimeConverter(&m_converter);
    EXPECT_EQ(&m_converter, m_effect.effectTimeConverter());
    EXPECT_EQ(31, m_effect.fromGlobalToParametricTime(10));
}

TEST_F(EffectTest, RunsOnTheTimelinesClockAgainWithoutItsConverter)
{
    m_effect.setEffectTimeConverter(&m_converter);
    m_effect.setEffectTimeConverter(nullptr);
    EXPECT_EQ(10, m_effect.fromGlobalToParametricTime(10));
}

TEST_F(EffectTest, EffectTimeIsTheTimeOfTheKeyFrames)
{
    m_effect.setEffectTimeConverter(&m_converter);
    EXPECT_EQ(2.75, m_effect.toParameterTime(2.75));
    EXPECT_EQ(-2.75, m_effect.fromParameterTime(-2.75));
}

TEST_F(EffectTest, ShowsItsParametersAsTheyAreStored)
{
    EXPECT_EQ(0.5, m_effect.doubleParametricTransform(boost::shared_ptr<ParameterInterface const>(),
                                                      0.5, 3));
}

TEST_F(EffectTest, ConversionsNeedALivingProject)
{
    m_project.reset();
    EXPECT_THROW(m_effect.fromGlobalToParametricTime(1), boost::bad_weak_ptr);
    EXPECT_THROW(m_effect.toParameterTime(1), boost::bad_weak_ptr);
    EXPECT_THROW(m_effect.fromParameterTime(1), boost::bad_weak_ptr);
}

TEST_F(EffectTest, ACopyHasTheNameButNoOwner)
{
    boost::shared_ptr<VectorEffectable> const owner(new VectorEffectable);
    m_effect.setEffectTimeConverter(&m_converter);
    m_effect.setParentEffectable(owner);
    boost::shared_ptr<Effect> const copy(m_effect.clone());
    EXPECT_EQ("Sepia", copy->name());
    EXPECT_EQ(nullptr, copy->effectTimeConverter());
    EXPECT_FALSE(copy->parentEffectable().lock());
    EXPECT_EQ(10, copy->fromGlobalToParametricTime(10));
    EXPECT_EQ(owner, m_effect.parentEffectable().lock());
}

TEST_F(EffectTest, ACopyHasAnIdentityOfItsOwn)
{
    boost::shared_ptr<Effect> const copy(m_effect.clone());
    EXPECT_NE(m_effect.xmlIdent(), copy->xmlIdent());
}

TEST_F(EffectTest, DoesNotKeepItsParentAlive)
{
    boost::shared_ptr<VectorEffectable> owner(new VectorEffectable);
    m_effect.setParentEffectable(owner);
    owner.reset();
    EXPECT_TRUE(m_effect.parentEffectable().expired());
}

TEST_F(EffectTest, WritesAnEmptyBlockWithoutParameters)
{
    EXPECT_EQ("<Effect id=\"#\"  >\n"
              " <Parameters>\n"
              " </Parameters>\n"
              "</Effect>\n",
              xmlOf(m_effect));
}

TEST_F(EffectTest, WritesItsParametersWithoutALabel)
{
    m_effect.m_parameters.push_back(boost::shared_ptr<ParameterInterface>(
        new InterpolatingParam<double>(m_project->weak(), "amount")));
    EXPECT_EQ("<Effect id=\"#\"  >\n"
              " <Parameters>\n"
              "  <InterpolatingParam id=\"#\"  >\n"
              "   <Parameters>\n"
              "    <Parameter id=\"#\"  name=\"interpolater\">\n"
              "     <Keyframes>\n"
              "      <Keyframe time=\"0\" value=\"linr\"/>\n"
              "     </Keyframes>\n"
              "    </Parameter>\n"
              "   </Parameters>\n"
              "  </InterpolatingParam>\n"
              " </Parameters>\n"
              "</Effect>\n",
              xmlOf(m_effect));
}

}  // namespace
}  // namespace test
}  // namespace tarn
