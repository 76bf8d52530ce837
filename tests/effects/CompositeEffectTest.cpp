#include "effects/CompositeEffect.h"

#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

class CompositeEffectTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    CompositeEffect m_effect{"Old film", m_project->weak()};
};

TEST_F(CompositeEffectTest, HasANameAndNoParameters)
{
    EXPECT_EQ("Old film", m_effect.name());
    EXPECT_EQ(0, m_effect.numParameters());
    EXPECT_TRUE(m_effect.parameters().empty());
    EXPECT_TRUE(m_effect.parameterVector()->empty());
}

TEST_F(CompositeEffectTest, DescribesItselfByNothing)
{
    EXPECT_EQ("", m_effect.description());
}

TEST_F(CompositeEffectTest, WritesItsNameAndNothingInside)
{
    EXPECT_EQ("<CompositeEffect id=\"#\" name=\"Old film\" >\n"
              "</CompositeEffect>\n",
              xmlOf(m_effect));
}

TEST_F(CompositeEffectTest, EscapesItsName)
{
    EXPECT_EQ("<CompositeEffect id=\"#\" name=\"a &lt;&amp;&gt; b\" >\n"
              "</CompositeEffect>\n",
              xmlOf(CompositeEffect("a <&> b", m_project->weak())));
}

TEST_F(CompositeEffectTest, IsClonedWithItsName)
{
    boost::shared_ptr<CompositeEffect> const copy(m_effect.clone());
    EXPECT_EQ("Old film", copy->name());
    EXPECT_NE(m_effect.xmlIdent(), copy->xmlIdent());
}

}  // namespace
}  // namespace test
}  // namespace tarn
