#include "parameters/Attribute.h"
#include "support/CountingObserver.h"
#include "support/FakeProject.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::CountingObserver;
using test::FakeProject;
using test::xmlOf;

class AttributeTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> project = FakeProject::create();
};

TEST_F(AttributeTest, HoldsOneValue)
{
    Attribute<Point> attribute(Point(1, 2, 3), project->weak());
    EXPECT_EQ(Point(1, 2, 3), attribute.value());
    attribute.setValue(Point(4, 5, 6));
    EXPECT_EQ(Point(4, 5, 6), attribute.value());
}

TEST_F(AttributeTest, TellsOfAWrite)
{
    CountingObserver observer;
    Attribute<unsigned int> attribute(44100, project->weak());
    attribute.attach(&observer);
    attribute.setValue(48000);
    attribute.setValue(48000);
    attribute.detach(&observer);
    EXPECT_EQ(2, observer.calls());
}

TEST_F(AttributeTest, ACloneIsIndependent)
{
    CountingObserver observer;
    Attribute<std::string> attribute("a", project->weak());
    attribute.attach(&observer);
    boost::shared_ptr<Attribute<std::string>> const clone(attribute.clone());
    clone->setValue("b");
    attribute.detach(&observer);
    EXPECT_EQ("a", attribute.value());
    EXPECT_EQ("b", clone->value());
    EXPECT_EQ(0, observer.calls());
    EXPECT_NE(attribute.xmlIdent(), clone->xmlIdent());
}

TEST_F(AttributeTest, HasNothingToTellOfItself)
{
    EXPECT_EQ("", Attribute<double>(2.5, project->weak()).description());
}

TEST_F(AttributeTest, WritesItsValueByTheStream)
{
    EXPECT_EQ("<Attribute id=\"#\" value=\"0.333333\" >\n</Attribute>\n",
              xmlOf(Attribute<double>(1.0 / 3, project->weak())));
    EXPECT_EQ("<Attribute id=\"#\" value=\"(1,2,3,4.5)\" >\n</Attribute>\n",
              xmlOf(Attribute<Rect<float>>(Rect<float>(1, 2, 3, 4.5f), project->weak())));
    EXPECT_EQ("<Attribute id=\"#\" value=\"48000\" >\n</Attribute>\n",
              xmlOf(Attribute<unsigned int>(48000, project->weak())));
}

TEST_F(AttributeTest, WritesTextEscaped)
{
    EXPECT_EQ("<Attribute id=\"#\" value=\"&lt;a&gt; &amp; &quot;b&quot;\" >\n</Attribute>\n",
              xmlOf(Attribute<std::string>("<a> & \"b\"", project->weak())));
}

TEST_F(AttributeTest, WritesAnEmptyPointerAsZero)
{
    Attribute<boost::shared_ptr<ScreenMetaData const>> const attribute(
        boost::shared_ptr<ScreenMetaData const>(), project->weak());
    EXPECT_EQ("<Attribute id=\"#\" value=\"0\" >\n</Attribute>\n", xmlOf(attribute));
}

TEST_F(AttributeTest, ADeadProjectIsToldByBoost)
{
    Attribute<float> const attribute(1, project->weak());
    project.reset();
    EXPECT_THROW(attribute.value(), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace tarn
