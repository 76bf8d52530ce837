#include "timeline/TextBox.h"

#include "parameters/Attribute.h"
#include "parameters/LeftParameter.h"
#include "support/MediaKindTest.h"

namespace tarn {
namespace test {
namespace {

class TextBoxTest : public MediaKindTest
{
protected:
    boost::shared_ptr<TextBox> const box{
        new TextBox("hello", 30, 100, 5, 1000, project->weak(), 64.5f, 48.25f)};
    TextBox const& constBox = *box;
};

TEST_F(TextBoxTest, KeepsRangeAndLimits)
{
    EXPECT_EQ(Range<long long>(0, 100), box->trackRange());
    EXPECT_EQ(Range<double>(30, 100), box->mediaRange());
    EXPECT_EQ(5.0, box->mediaStartLimit());
    EXPECT_EQ(1000.0, box->mediaEndLimit());
}

TEST_F(TextBoxTest, ItsTextHoldsAtAllTimes)
{
    EXPECT_EQ(1, box->text()->numKeyFrames());
    EXPECT_EQ(0, box->text()->firstKeyFrameTime());
    EXPECT_EQ("hello", box->text()->valueAtTime(-1000));
    EXPECT_EQ("hello", box->text()->valueAtTime(0));
    EXPECT_EQ("hello", box->text()->valueAtTime(1000));
}

TEST_F(TextBoxTest, ALaterKeyFrameChangesTheTextAtExactlyThatTime)
{
    box->text()->addKeyFrame(20, "goodbye");
    EXPECT_EQ("hello", box->text()->valueAtTime(19.999));
    EXPECT_EQ("goodbye", box->text()->valueAtTime(20));
    EXPECT_EQ("goodbye", box->text()->valueAtTime(1000));
}

TEST_F(TextBoxTest, ItsSizeIsInItsAttributes)
{
    EXPECT_EQ(64.5, box->width());
    EXPECT_EQ(48.25, box->height());
    box->widthAttr()->setValue(2.5f);
    box->heightAttr()->setValue(3.5f);
    EXPECT_EQ(2.5, box->width());
    EXPECT_EQ(3.5, box->height());
}

TEST_F(TextBoxTest, HasNoSizeUnlessGiven)
{
    TextBox const small("hello", 0, 100, 0, 1000, project->weak());
    EXPECT_EQ(0.0, small.width());
    EXPECT_EQ(0.0, small.height());
}

TEST_F(TextBoxTest, ConstFormsGiveTheSameObjects)
{
    EXPECT_EQ(box->text(), constBox.text());
    EXPECT_EQ(box->widthAttr(), constBox.widthAttr());
    EXPECT_EQ(box->heightAttr(), constBox.heightAttr());
}

TEST_F(TextBoxTest, ListsTheParametersOfAPictureAndThenItsText)
{
    EXPECT_EQ(visualParameterNames() + std::string("text "), parameterNames(*box));
    EXPECT_EQ(box->text(), box->paramWithName("text"));
}

TEST_F(TextBoxTest, CountsTwoParametersAndThreeAttributes)
{
    EXPECT_EQ(2, box->numParameters());
    EXPECT_EQ(3, box->numAttributes());
}

TEST_F(TextBoxTest, IsAnInstanceOfNoSource)
{
    EXPECT_FALSE(box->isInstanceOf(movie()));
    EXPECT_FALSE(box->isInstanceOf(picture()));
    EXPECT_FALSE(box->isInstanceOf(boost::shared_ptr<Source const>()));
}

TEST_F(TextBoxTest, ItsCropRectIsOfItsSize)
{
    EXPECT_EQ(Rect<double>(0, 0, 64.5, 48.25), box->geometryCropRectAtTime(0));
}

TEST_F(TextBoxTest, ACopyHasTextAndSizeOfItsOwn)
{
    boost::shared_ptr<TextBox> const copy = sharedClone(box);
    box->text()->changeKeyFrame(0, "new");
    box->widthAttr()->setValue(1.0f);
    box->heightAttr()->setValue(1.0f);
    EXPECT_EQ("hello", copy->text()->valueAtTime(0));
    EXPECT_EQ(64.5, copy->width());
    EXPECT_EQ(48.25, copy->height());
}

TEST_F(TextBoxTest, NamesItsClass)
{
    EXPECT_EQ("TextBox", box->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
