#include "effects/Blur.h"

#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

class BlurTest : public ::testing::Test
{
protected:
    static boost::shared_ptr<InterpolatingParam<float>> intensityOf(Blur const& blur)
    {
        return boost::dynamic_pointer_cast<InterpolatingParam<float>>(blur.parameters().front());
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    Blur m_blur{m_project->weak()};
};

TEST_F(BlurTest, IsCalledBlur)
{
    EXPECT_EQ("Blur", m_blur.name());
}

TEST_F(BlurTest, ListsTwoParametersAndCountsNone)
{
    EXPECT_EQ(2u, m_blur.parameters().size());
    EXPECT_EQ("intensity", m_blur.parameters().front()->ident());
    EXPECT_EQ("foo", m_blur.parameters().back()->ident());
    EXPECT_EQ(0, m_blur.numParameters());
}

TEST_F(BlurTest, ListsTheSameParametersAsAVector)
{
    auto const parameters = m_blur.parameterVector();
    ASSERT_EQ(2u, parameters->size());
    EXPECT_EQ(m_blur.parameters().front(), (*parameters)[0]);
    EXPECT_EQ(m_blur.parameters().back(), (*parameters)[1]);
}

TEST_F(BlurTest, BothAreFloatsWithoutKeyFrames)
{
    EXPECT_TRUE(intensityOf(m_blur));
    EXPECT_TRUE(boost::dynamic_pointer_cast<InterpolatingParam<float>>(m_blur.parameters().back()));
    EXPECT_EQ(0, m_blur.parameters().front()->numKeyFrames());
    EXPECT_EQ(0, m_blur.parameters().back()->numKeyFrames());
}

TEST_F(BlurTest, FindsItsParametersByName)
{
    EXPECT_EQ(m_blur.parameters().back(), m_blur.paramWithName("foo"));
    EXPECT_FALSE(m_blur.paramWithName("bar"));
}

TEST_F(BlurTest, AClonesParametersAreItsOwn)
{
    intensityOf(m_blur)->addKeyFrame(3, 0.5f);
    boost::shared_ptr<Blur> const copy(m_blur.clone());
    intensityOf(m_blur)->changeKeyFrame(3, 0.75f);
    EXPECT_EQ("Blur", copy->name());
    EXPECT_EQ(0.5f, intensityOf(*copy)->valueAtTime(3));
    EXPECT_EQ("foo", copy->parameters().back()->ident());
    EXPECT_NE(m_blur.parameters().back(), copy->parameters().back());
}

TEST_F(BlurTest, WritesBothParameters)
{
    intensityOf(m_blur)->addKeyFrame(3, 0.5f);
    EXPECT_EQ("<Blur id=\"#\"  >\n"
              " <Parameters>\n"
              "  <InterpolatingParam id=\"#\"  >\n"
              "   <Parameters>\n"
              "    <Parameter id=\"#\"  name=\"interpolater\">\n"
              "     <Keyframes>\n"
              "      <Keyframe time=\"0\" value=\"linr\"/>\n"
              "     </Keyframes>\n"
              "    </Parameter>\n"
              "   </Parameters>\n"
              "   <Keyframes>\n"
              "    <Keyframe time=\"3\" value=\"0.5\"/>\n"
              "   </Keyframes>\n"
              "  </InterpolatingParam>\n"
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
              "</Blur>\n",
              xmlOf(m_blur));
}

}  // namespace
}  // namespace test
}  // namespace tarn
