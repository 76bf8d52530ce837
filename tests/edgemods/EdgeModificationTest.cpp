#include "edgemods/EdgeModification.h"

#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/LinearSlideInFunc.h"
#include "exceptions/KeyFrameException.h"
#include "parameters/InterpolatingParam.h"
#include "support/FakeProject.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// A parameter that rises from 0 at time 0 to 100 at time 10.
class EdgeModificationTest : public ::testing::Test
{
protected:
    EdgeModificationTest()
    {
        m_parameter->addKeyFrame(0, 0);
        m_parameter->addKeyFrame(10, 100);
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<InterpolatingParam<double>> m_parameter{
        new InterpolatingParam<double>(m_project->weak(), "rise")};
};

TEST_F(EdgeModificationTest, StartsAsAFadeInOfNothing)
{
    EdgeModification const modification;
    EXPECT_FALSE(modification.parameter());
    EXPECT_EQ("FadeInFunc", modification.func().ident());
}

TEST_F(EdgeModificationTest, NamesItsParameterAndHasAFunctionOfItsOwn)
{
    FadeOutFunc const fade;
    EdgeModification const modification(m_parameter, fade);
    EXPECT_EQ(m_parameter, modification.parameter());
    EXPECT_EQ("FadeOutFunc", modification.func().ident());
    EXPECT_NE(&fade, &modification.func());
    EXPECT_NE(fade.xmlIdent(), modification.func().xmlIdent());
}

TEST_F(EdgeModificationTest, EveryCopyHasAFunctionOfItsOwn)
{
    EdgeModification const modification(m_parameter, LinearSlideInFunc(50));
    EdgeModification const copy(modification);
    EXPECT_EQ(m_parameter, copy.parameter());
    EXPECT_NE(&modification.func(), &copy.func());
    EXPECT_EQ(50, copy.func().execute(0, 0));
}

TEST_F(EdgeModificationTest, AnAssignedOneHasAFunctionOfItsOwn)
{
    EdgeModification assigned;
    {
        EdgeModification const modification(m_parameter, LinearSlideInFunc(50));
        assigned = modification;
        EXPECT_NE(&modification.func(), &assigned.func());
    }
    EXPECT_EQ(m_parameter, assigned.parameter());
    EXPECT_EQ(50, assigned.func().execute(0, 0));
}

TEST_F(EdgeModificationTest, CanBeAssignedToItself)
{
    EdgeModification modification(m_parameter, LinearSlideInFunc(50));
    EdgeModification const& same = modification;
    modification = same;
    EXPECT_EQ(m_parameter, modification.parameter());
    EXPECT_EQ(50, modification.func().execute(0, 0));
}

TEST_F(EdgeModificationTest, BendsTheValueThatIsStoredAtATime)
{
    // Stored at 5: 50. Half faded in: 25. A quarter faded out: 37.5.
    EXPECT_EQ(25, EdgeModification(m_parameter, FadeInFunc()).execute(0.5, 5));
    EXPECT_EQ(37.5, EdgeModification(m_parameter, FadeOutFunc()).execute(0.25, 5));
    EXPECT_EQ(100, EdgeModification(m_parameter, FadeInFunc()).execute(1, 50));
}

TEST_F(EdgeModificationTest, WithoutAKeyFrameThereIsNoValue)
{
    boost::shared_ptr<Parameter<double>> const empty(
        new InterpolatingParam<double>(m_project->weak(), "empty"));
    EdgeModification const modification(empty, FadeInFunc());
    EXPECT_EQ(0, thrownBy<KeyFrameException>([&] { modification.execute(0.5, 5); }).time());
}

TEST_F(EdgeModificationTest, WithoutAParameterThereIsNoValue)
{
    EXPECT_STREQ(
        "trying to execute an edge mod without a parameter",
        thrownBy<TarnMediaLibException>([] { EdgeModification().execute(0.5, 5); }).what());
}

}  // namespace
}  // namespace test
}  // namespace tarn
