#include "parameters/VectorParam.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::FakeProject;
using test::xmlOf;

class VectorParamTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
};

TEST_F(VectorParamTest, NumbersItsDimensions)
{
    VectorParam const eye(project->weak(), 3, "eye");
    EXPECT_EQ(3, eye.numDimensions());
    EXPECT_EQ("eye0", eye.at(0)->ident());
    EXPECT_EQ("eye1", eye.at(1)->ident());
    EXPECT_EQ("eye2", eye.at(2)->ident());
    EXPECT_EQ("eye", eye.identAttribute()->value());
}

TEST_F(VectorParamTest, StartsWithoutKeyFrames)
{
    VectorParam const eye(project->weak(), 3, "eye");
    EXPECT_EQ(0, eye.at(0)->numKeyFrames());
    EXPECT_EQ(0, eye.at(1)->numKeyFrames());
    EXPECT_EQ(0, eye.at(2)->numKeyFrames());
}

TEST_F(VectorParamTest, MayHaveNoDimensions)
{
    EXPECT_EQ(0, VectorParam(project->weak(), 0, "none").numDimensions());
    EXPECT_EQ(0, VectorParam(project->weak(), -2, "none").numDimensions());
}

TEST_F(VectorParamTest, ACloneHasDimensionsOfItsOwn)
{
    VectorParam eye(project->weak(), 2, "eye");
    eye.at(1)->addKeyFrame(0, 1.0);
    boost::shared_ptr<VectorParam> const clone(eye.clone());
    clone->at(1)->changeKeyFrame(0, 2.0);
    EXPECT_EQ(1.0, eye.at(1)->valueAtTime(0));
    EXPECT_EQ(2.0, clone->at(1)->valueAtTime(0));
    EXPECT_EQ("eye1", clone->at(1)->ident());
    EXPECT_EQ("eye", clone->identAttribute()->value());
}

TEST_F(VectorParamTest, WritesItsDimensionsInOrder)
{
    VectorParam eye(project->weak(), 1, "eye");
    eye.at(0)->addKeyFrame(0, 7.0);
    EXPECT_EQ("<VectorParam id=\"#\"  >\n"
              " <InterpolatingParam id=\"#\"  >\n"
              "  <Parameters>\n"
              "   <Parameter id=\"#\"  name=\"interpolater\">\n"
              "    <Keyframes>\n"
              "     <Keyframe time=\"0\" value=\"linr\"/>\n"
              "    </Keyframes>\n"
              "   </Parameter>\n"
              "  </Parameters>\n"
              "  <Keyframes>\n"
              "   <Keyframe time=\"0\" value=\"7\"/>\n"
              "  </Keyframes>\n"
              " </InterpolatingParam>\n"
              "</VectorParam>\n",
              xmlOf(eye));
}

TEST_F(VectorParamTest, WritesNothingInsideWithoutDimensions)
{
    EXPECT_EQ("<VectorParam id=\"#\"  >\n</VectorParam>\n",
              xmlOf(VectorParam(project->weak(), 0, "none")));
}

}  // namespace
}  // namespace tarn
