#include "parameters/InterpolatingParam.h"
#include "parameters/Attribute.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/LeftParameter.h"
#include "parameters/LinearInterpolater.h"
#include "parameters/MTVector.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <locale>
#include <sstream>

namespace tarn {
namespace {

using test::FakeProject;
using test::xmlOf;

class InterpolatingParamTest : public ::testing::Test
{
protected:
    template <class T>
    boost::shared_ptr<InterpolatingParam<T>> newParam(std::string const& name) const
    {
        return boost::shared_ptr<InterpolatingParam<T>>(
            new InterpolatingParam<T>(project->weak(), name));
    }

    boost::shared_ptr<FakeProject> project = FakeProject::create();
};

TEST_F(InterpolatingParamTest, StartsEmptyAndLinear)
{
    boost::shared_ptr<InterpolatingParam<float>> const parameter = newParam<float>("fov");
    EXPECT_EQ(0, parameter->numKeyFrames());
    EXPECT_EQ(1, parameter->interpolaterParam()->numKeyFrames());
    EXPECT_EQ("linr", parameter->interpolaterParam()->keyframeAtTime(0)->value()->id());
    EXPECT_EQ("interpolater", parameter->interpolaterParam()->ident());
}

TEST_F(InterpolatingParamTest, IsLinearAtAllTimes)
{
    boost::shared_ptr<InterpolatingParam<Point>> const parameter = newParam<Point>("p");
    EXPECT_EQ(LinearInterpolater<Point>::s_instance, parameter->interpolaterAtTime(-1e9));
    EXPECT_EQ(LinearInterpolater<Point>::s_instance, parameter->interpolaterAtTime(1e9));
}

TEST_F(InterpolatingParamTest, BlendsEachOfItsTypes)
{
    boost::shared_ptr<InterpolatingParam<float>> const number = newParam<float>("f");
    number->addKeyFrame(0, 10.0f);
    number->addKeyFrame(10, 20.0f);
    EXPECT_EQ(12.5f, number->valueAtTime(2.5));

    boost::shared_ptr<InterpolatingParam<AudioPosition>> const place = newParam<AudioPosition>("a");
    place->addKeyFrame(0, AudioPosition(0, 0, 0));
    place->addKeyFrame(10, AudioPosition(4, 8, -4));
    EXPECT_EQ(AudioPosition(1, 2, -1), place->valueAtTime(2.5));
}

TEST_F(InterpolatingParamTest, BlendsMatrices)
{
    boost::shared_ptr<InterpolatingParam<TransformMatrix>> const matrix =
        newParam<TransformMatrix>("m");
    matrix->addKeyFrame(0, TransformMatrix());
    matrix->addKeyFrame(10, TransformMatrix::translate(4, 8, -4));
    EXPECT_EQ(TransformMatrix::translate(1, 2, -1), matrix->valueAtTime(2.5));
}

TEST_F(InterpolatingParamTest, BecomesAStaircaseWithTheLeftPolicy)
{
    boost::shared_ptr<InterpolatingParam<float>> const parameter = newParam<float>("f");
    parameter->addKeyFrame(0, 10.0f);
    parameter->addKeyFrame(10, 20.0f);
    parameter->interpolaterParam()->changeKeyFrame(0, LeftInterpolater<float>::s_instance);
    EXPECT_EQ(10.0f, parameter->valueAtTime(9.75));
    EXPECT_EQ(20.0f, parameter->valueAtTime(10));
}

TEST_F(InterpolatingParamTest, ChangesPolicyInTheMiddleOfASpan)
{
    boost::shared_ptr<InterpolatingParam<float>> const parameter = newParam<float>("f");
    parameter->addKeyFrame(0, 10.0f);
    parameter->addKeyFrame(10, 20.0f);
    parameter->interpolaterParam()->changeKeyFrame(0, LeftInterpolater<float>::s_instance);
    parameter->interpolaterParam()->addKeyFrame(5, LinearInterpolater<float>::s_instance);
    EXPECT_EQ(10.0f, parameter->valueAtTime(4.5));
    EXPECT_EQ(15.0f, parameter->valueAtTime(5));
    EXPECT_EQ(17.5f, parameter->valueAtTime(7.5));
}

TEST_F(InterpolatingParamTest, ClonesHaveInterpolatersOfTheirOwnWithTheSamePolicies)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    boost::shared_ptr<InterpolatingParam<double>> const clone(parameter->clone());
    EXPECT_NE(parameter->interpolaterParam(), clone->interpolaterParam());
    EXPECT_EQ(parameter->interpolaterAtTime(3), clone->interpolaterAtTime(3));
    clone->interpolaterParam()->changeKeyFrame(0, LeftInterpolater<double>::s_instance);
    EXPECT_EQ(LinearInterpolater<double>::s_instance, parameter->interpolaterAtTime(3));
}

TEST_F(InterpolatingParamTest, IsItsOwnTimeBase)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    EXPECT_EQ(2.5, parameter->toParameterTime(2.5));
    EXPECT_EQ(-2.5, parameter->fromParameterTime(-2.5));
    EXPECT_EQ(7, parameter->fromGlobalToParametricTime(7));
}

TEST_F(InterpolatingParamTest, OwnsOneParameter)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    EXPECT_EQ(1, parameter->numParameters());
    EXPECT_EQ(1u, parameter->parameterVector()->size());
    EXPECT_EQ(parameter->interpolaterParam(), parameter->paramWithName("interpolater"));
}

TEST_F(InterpolatingParamTest, HasOneIdentityThroughBothItsFaces)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    Parametric const& owner = *parameter;
    ParameterInterface const& owned = *parameter;
    EXPECT_EQ(owner.xmlIdent(), owned.xmlIdent());
}

TEST_F(InterpolatingParamTest, AHostsOwnKindIsDescribedByNothingUnlessItSaysMore)
{
    EXPECT_EQ("", newParam<double>("d")->ParameterInterface::description());
}

TEST_F(InterpolatingParamTest, DescribesEachFrameByTimeAndAddress)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    EXPECT_EQ("", parameter->description());
    parameter->addKeyFrame(-2, 1.0);
    parameter->addKeyFrame(5, 2.0);
    std::ostringstream wanted;
    wanted << "-2, " << parameter->keyframeAtTime(-2) << "\n5, " << parameter->keyframeAtTime(5)
           << "\n";
    EXPECT_EQ(wanted.str(), parameter->description());
}

TEST_F(InterpolatingParamTest, WritesItsInterpolaterThenItsKeyFrames)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    parameter->addKeyFrame(10, 1.0 / 3);
    parameter->addKeyFrame(-5, 1e10);
    EXPECT_EQ("<InterpolatingParam id=\"#\"  >\n"
              " <Parameters>\n"
              "  <Parameter id=\"#\"  name=\"interpolater\">\n"
              "   <Keyframes>\n"
              "    <Keyframe time=\"0\" value=\"linr\"/>\n"
              "   </Keyframes>\n"
              "  </Parameter>\n"
              " </Parameters>\n"
              " <Keyframes>\n"
              "  <Keyframe time=\"-5\" value=\"1e+10\"/>\n"
              "  <Keyframe time=\"10\" value=\"0.333333\"/>\n"
              " </Keyframes>\n"
              "</InterpolatingParam>\n",
              xmlOf(*parameter));
}

TEST_F(InterpolatingParamTest, WritesNoKeyframesElementWhenEmpty)
{
    std::string const xml = xmlOf(*newParam<AudioPosition>("a"));
    EXPECT_EQ("<InterpolatingParam id=\"#\"  >\n"
              " <Parameters>\n"
              "  <Parameter id=\"#\"  name=\"interpolater\">\n"
              "   <Keyframes>\n"
              "    <Keyframe time=\"0\" value=\"linr\"/>\n"
              "   </Keyframes>\n"
              "  </Parameter>\n"
              " </Parameters>\n"
              "</InterpolatingParam>\n",
              xml);
}

TEST_F(InterpolatingParamTest, WritesValuesInTheirStreamForm)
{
    boost::shared_ptr<InterpolatingParam<Point>> const point = newParam<Point>("p");
    point->addKeyFrame(0, Point(1, 2.5, -3));
    EXPECT_NE(std::string::npos, xmlOf(*point).find("time=\"0\" value=\"(1,2.5,-3)\"/>"));

    boost::shared_ptr<InterpolatingParam<float>> const number = newParam<float>("f");
    number->addKeyFrame(0, 0.1f);
    EXPECT_NE(std::string::npos, xmlOf(*number).find("time=\"0\" value=\"0.1\"/>"));
}

TEST_F(InterpolatingParamTest, OnlyOfNumbersIsItKnownThatTheyAreUntouched)
{
    boost::shared_ptr<InterpolatingParam<double>> const number = newParam<double>("d");
    EXPECT_FALSE(number->isUntouched(2.5));
    number->addKeyFrame(0, 2.5);
    EXPECT_TRUE(number->isUntouched(2.5));
    EXPECT_FALSE(number->isUntouched(3.5));
    boost::shared_ptr<InterpolatingParam<Point>> const point = newParam<Point>("p");
    point->addKeyFrame(0, Point());
    EXPECT_FALSE(point->isUntouched(Point()));
}

TEST_F(InterpolatingParamTest, ItsIdentIsWhatItsAttributeSaysNow)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    EXPECT_EQ("d", parameter->ident());
    parameter->identAttribute()->setValue("depth");
    EXPECT_EQ("depth", parameter->ident());
}

TEST_F(InterpolatingParamTest, AnIdentOrAnInterpolaterThatWasAskedForIsATouch)
{
    boost::shared_ptr<InterpolatingParam<double>> const named = newParam<double>("d");
    named->addKeyFrame(0, 2.5);
    named->identAttribute();
    EXPECT_FALSE(named->isUntouched(2.5));
    boost::shared_ptr<InterpolatingParam<double>> const blended = newParam<double>("d");
    blended->addKeyFrame(0, 2.5);
    blended->interpolaterParam();
    EXPECT_FALSE(blended->isUntouched(2.5));
}

TEST_F(InterpolatingParamTest, WritesAnEmptyInterpolaterAsEmptyText)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    parameter->interpolaterParam()->changeKeyFrame(0, boost::shared_ptr<Interpolater<double>>());
    EXPECT_NE(std::string::npos, xmlOf(*parameter).find("<Keyframe time=\"0\" value=\"\"/>"));
}

TEST_F(InterpolatingParamTest, ADeadProjectIsToldByBoost)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter = newParam<double>("d");
    parameter->addKeyFrame(0, 1.0);
    project.reset();
    EXPECT_THROW(parameter->valueAtTime(0), boost::bad_weak_ptr);
    EXPECT_THROW(parameter->ident(), boost::bad_weak_ptr);
    EXPECT_EQ(1, parameter->numKeyFrames());
}

/// A locale that writes 0,5.
class CommaForPoint : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
};

std::locale commaLocale()
{
    return std::locale(std::locale::classic(), new CommaForPoint);
}

TEST_F(InterpolatingParamTest, ValuesDoNotDependOnHowTheStreamWritesNumbers)
{
    boost::shared_ptr<InterpolatingParam<double>> const number = newParam<double>("n");
    number->addKeyFrame(0, 2.0 / 3);
    std::ostringstream precise;
    precise << std::setprecision(12);
    number->toXML(precise);
    EXPECT_NE(std::string::npos, precise.str().find("value=\"0.666667\"/>"));
    std::ostringstream local;
    local.imbue(commaLocale());
    number->toXML(local);
    EXPECT_NE(std::string::npos, local.str().find("value=\"0.666667\"/>"));
}

TEST_F(InterpolatingParamTest, ValuesAreWrittenInTheLocaleOfTheProcess)
{
    boost::shared_ptr<InterpolatingParam<double>> const number = newParam<double>("n");
    number->addKeyFrame(0, 0.5);
    std::ostringstream classic;
    classic.imbue(std::locale::classic());
    std::locale const before = std::locale::global(commaLocale());
    number->toXML(classic);
    std::locale::global(before);
    EXPECT_NE(std::string::npos, classic.str().find("value=\"0,5\"/>"));
}

}  // namespace
}  // namespace tarn
