#include "datatypes/Transformer.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "support/Geometry.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarn {
namespace {

using test::FakeProject;
using test::isNear;
using Parameters = MTVector<boost::shared_ptr<ParameterInterface const>>;

/// Runs twice as fast as its local time, and adds `bend` to every value.
class Owner : public Parametric
{
public:
    explicit Owner(boost::weak_ptr<ThreadSafe const> const& project, double bend = 0)
        : m_project(project), m_bend(bend)
    {}
    double doubleParametricTransform(boost::shared_ptr<ParameterInterface const> const&,
                                     double value, double) const override
    {
        return value + m_bend;
    }
    double toParameterTime(double time) const override { return time * 2; }
    double fromParameterTime(double time) const override { return time / 2; }
    long long fromGlobalToParametricTime(long long time) const override { return time; }
    int numParameters() const override { return 0; }
    boost::shared_ptr<Parameters> parameterVector() const override
    {
        return boost::shared_ptr<Parameters>(new Parameters(m_project));
    }

private:
    boost::weak_ptr<ThreadSafe const> m_project;
    double m_bend;
};

class TransformerTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    Transformer transformer{project->weak()};
    Owner const owner{project->weak()};
};

TEST_F(TransformerTest, StartsAsNoPlacementAtAll)
{
    EXPECT_EQ(TransformMatrix(), transformer.calcTransformAtTime(&owner, 0));
    EXPECT_EQ(TransformMatrix(), transformer.calcTransformAtTime(&owner, 1000));
}

TEST_F(TransformerTest, HasTwoShearsAndThreeOfEverythingElse)
{
    EXPECT_EQ(3, transformer.translation()->numDimensions());
    EXPECT_EQ(3, transformer.rotation()->numDimensions());
    EXPECT_EQ(2, transformer.shear()->numDimensions());
    EXPECT_EQ(3, transformer.scale()->numDimensions());
    EXPECT_EQ(3, transformer.anchor()->numDimensions());
}

TEST_F(TransformerTest, HasOneKeyFrameForEachComponent)
{
    EXPECT_EQ(1, transformer.scale()->at(2)->numKeyFrames());
    EXPECT_EQ(1.0, transformer.scale()->at(2)->keyframeAtTime(0)->value());
    EXPECT_EQ(0.0, transformer.shear()->at(1)->keyframeAtTime(0)->value());
}

TEST_F(TransformerTest, ReadsValuesAtTheOwnersParameterTime)
{
    // Local time 5 is parameter time 10, in the middle of the move.
    transformer.translation()->at(0)->addKeyFrame(20, 100.0);
    EXPECT_EQ(TransformMatrix::translate(50, 0, 0), transformer.calcTransformAtTime(&owner, 5));
}

TEST_F(TransformerTest, ReadsValuesThroughTheOwnersTransform)
{
    // Every component gains 1: translation 1, rotation 1, shear 1, scale 2, anchor 1. The point
    // (1,1,1) is the anchor, so only the translation is left of it.
    Owner const bending(project->weak(), 1);
    EXPECT_TRUE(
        isNear(transformer.calcTransformAtTime(&bending, 0) * Point(1, 1, 1), Point(1, 1, 1)));
}

TEST_F(TransformerTest, TakesAScaleFromOutside)
{
    double const scale[3] = {2, 3, 4};
    transformer.translation()->at(1)->changeKeyFrame(0, 7.0);
    transformer.scale()->at(0)->changeKeyFrame(0, 100.0);
    TransformMatrix const m = transformer.calcTransformAtTimeWithScale(&owner, 0, scale);
    EXPECT_EQ(Point(2, 10, 4), m * Point(1, 1, 1));
}

TEST_F(TransformerTest, TakesATranslationFromOutside)
{
    double const translation[3] = {2, 3, 4};
    transformer.translation()->at(1)->changeKeyFrame(0, 7.0);
    transformer.scale()->at(0)->changeKeyFrame(0, 100.0);
    TransformMatrix const m =
        transformer.calcTransformAtTimeWithTranslation(&owner, 0, translation);
    EXPECT_EQ(Point(102, 4, 5), m * Point(1, 1, 1));
}

TEST_F(TransformerTest, ACopyHasParametersOfItsOwn)
{
    transformer.anchor()->at(0)->changeKeyFrame(0, 4.0);
    Transformer copy(transformer);
    copy.anchor()->at(0)->changeKeyFrame(0, 9.0);
    EXPECT_EQ(4.0, transformer.anchor()->at(0)->valueAtTime(0));
    EXPECT_EQ(9.0, copy.anchor()->at(0)->valueAtTime(0));
}

TEST_F(TransformerTest, ListsItsParametersInOrder)
{
    Parameters parameters(project->weak());
    Transformer::addTransformerParametersToParameters(&transformer, &parameters);
    ASSERT_EQ(14u, parameters.size());
    EXPECT_EQ("translation0", parameters[0]->ident());
    EXPECT_EQ("rotation0", parameters[3]->ident());
    EXPECT_EQ("shear0", parameters[6]->ident());
    EXPECT_EQ("shear1", parameters[7]->ident());
    EXPECT_EQ("scale0", parameters[8]->ident());
    EXPECT_EQ("anchor2", parameters[13]->ident());
}

TEST_F(TransformerTest, ConstAccessorsGiveTheSameParameters)
{
    Transformer const& seen = transformer;
    EXPECT_EQ(transformer.translation(), seen.translation());
    EXPECT_EQ(transformer.rotation(), seen.rotation());
    EXPECT_EQ(transformer.shear(), seen.shear());
    EXPECT_EQ(transformer.scale(), seen.scale());
    EXPECT_EQ(transformer.anchor(), seen.anchor());
}

TEST_F(TransformerTest, WritesItsVectorsInAnElementWithoutIdentity)
{
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    transformer.genXMLForTransformer(options, 1);
    std::string const xml = test::withoutIds(out.str());
    EXPECT_EQ(0u, xml.find(" <Transformer>\n  <VectorParam id=\"#\"  name=\"translation\">\n"));
    EXPECT_LT(xml.find("name=\"translation\""), xml.find("name=\"rotation\""));
    EXPECT_LT(xml.find("name=\"rotation\""), xml.find("name=\"shear\""));
    EXPECT_LT(xml.find("name=\"shear\""), xml.find("name=\"scale\""));
    EXPECT_LT(xml.find("name=\"scale\""), xml.find("name=\"anchor\""));
    EXPECT_EQ(xml.size() - 33, xml.find("  </VectorParam>\n </Transformer>\n"));
}

}  // namespace
}  // namespace tarn
