#include "parameters/LeftParameter.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/LinearInterpolater.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::FakeProject;
using test::xmlOf;

class LeftParameterTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    boost::shared_ptr<LeftParameter<std::string>> const text{
        new LeftParameter<std::string>(project->weak(), "text")};
};

TEST_F(LeftParameterTest, TakesANewValueExactlyAtItsKeyFrame)
{
    text->addKeyFrame(0, "a");
    text->addKeyFrame(10, "b");
    EXPECT_EQ("a", text->valueAtTime(9.999));
    EXPECT_EQ("b", text->valueAtTime(10));
    EXPECT_EQ("a", text->valueAtTime(-1));
    EXPECT_EQ("b", text->valueAtTime(11));
}

TEST_F(LeftParameterTest, IsAStaircaseForColoursToo)
{
    LeftParameter<Color> colour(project->weak(), "colour");
    colour.addKeyFrame(0, Color::black());
    colour.addKeyFrame(10, Color::white());
    EXPECT_EQ(Color::black(), colour.valueAtTime(5));
    EXPECT_EQ(Color::white(), colour.valueAtTime(10));
}

TEST_F(LeftParameterTest, AlwaysHasTheLeftPolicy)
{
    EXPECT_EQ(LeftInterpolater<std::string>::s_instance, text->interpolaterAtTime(-5));
    EXPECT_EQ(LeftInterpolater<std::string>::s_instance, text->interpolaterAtTime(1e100));
}

TEST_F(LeftParameterTest, HasNoParameterOfInterpolaters)
{
    LeftParameter<boost::shared_ptr<Interpolater<double>>> const policies(project->weak(), "i");
    EXPECT_FALSE(text->interpolaterParam());
    EXPECT_FALSE(policies.interpolaterParam());
}

TEST_F(LeftParameterTest, ComparesPointersAsPointers)
{
    LeftParameter<boost::shared_ptr<Interpolater<double>>> policies(project->weak(), "i");
    policies.addKeyFrame(0, LinearInterpolater<double>::s_instance);
    policies.addKeyFrame(5, LinearInterpolater<double>::s_instance);
    policies.addKeyFrame(10, LeftInterpolater<double>::s_instance);
    EXPECT_FALSE(policies.valuesDifferAtTimes(0, 5));
    EXPECT_TRUE(policies.valuesDifferAtTimes(5, 10));
}

TEST_F(LeftParameterTest, IsNamed)
{
    EXPECT_EQ("text", text->ident());
    EXPECT_EQ("", text->description());
}

TEST_F(LeftParameterTest, ACloneIsIndependent)
{
    text->addKeyFrame(0, "a");
    boost::shared_ptr<LeftParameter<std::string>> const clone(text->clone());
    clone->changeKeyFrame(0, "b");
    EXPECT_EQ("a", text->valueAtTime(0));
    EXPECT_EQ("text", clone->ident());
}

TEST_F(LeftParameterTest, WritesTextEscaped)
{
    text->addKeyFrame(0, "a < \"b\"\n& 'c'");
    EXPECT_EQ("<Parameter id=\"#\"  >\n"
              " <Keyframes>\n"
              "  <Keyframe time=\"0\" value=\"a &lt; &quot;b&quot;&#xa;&amp; &apos;c&apos;\"/>\n"
              " </Keyframes>\n"
              "</Parameter>\n",
              xmlOf(*text));
}

TEST_F(LeftParameterTest, WritesNothingInsideWhenEmpty)
{
    EXPECT_EQ("<Parameter id=\"#\"  >\n</Parameter>\n", xmlOf(*text));
}

TEST_F(LeftParameterTest, WritesAnEmptyPointerAsZero)
{
    LeftParameter<boost::shared_ptr<IMFile>> picture(project->weak(), "picture");
    picture.addKeyFrame(3, boost::shared_ptr<IMFile>());
    EXPECT_NE(std::string::npos, xmlOf(picture).find("<Keyframe time=\"3\" value=\"0\"/>"));
}

/// A host's own parameter, whose policy shows what comes next.
class NextParameter : public LeftParameter<std::string>
{
public:
    using LeftParameter<std::string>::LeftParameter;

    boost::shared_ptr<Interpolater<std::string>> interpolaterAtTime(double) const override
    {
        return boost::shared_ptr<Interpolater<std::string>>(new Next);
    }

private:
    class Next : public Interpolater<std::string>
    {
    public:
        Next() : Interpolater<std::string>("next") {}

    protected:
        std::string doInterpolate(std::string, std::string right, double) const override
        {
            return right;
        }
    };
};

TEST_F(LeftParameterTest, APolicyOfAHostsOwnIsAsked)
{
    NextParameter next(project->weak(), "next");
    next.addKeyFrame(0, "a");
    next.addKeyFrame(10, "b");
    EXPECT_EQ("b", next.valueAtTime(5));
}

}  // namespace
}  // namespace tarn
