#include "timeline/Callout.h"

#include "datatypes/Point.h"
#include "parameters/Attribute.h"
#include "parameters/LeftParameter.h"
#include "support/MediaKindTest.h"

#include <limits>

namespace tarn {
namespace test {
namespace {

class CalloutTest : public MediaKindTest
{
protected:
    boost::shared_ptr<Callout> on(boost::shared_ptr<Source const> const& from,
                                  unsigned trackNumber) const
    {
        return boost::shared_ptr<Callout>(new Callout(30, 100, project->weak(), from, trackNumber));
    }

    boost::shared_ptr<Callout> const callout{
        new Callout(30, 100, project->weak(), Rect<float>(0, 0, 320.5f, 240.25f), "a.png")};
    Callout const& constCallout = *callout;
};

TEST_F(CalloutTest, IsAStillOfAnyLength)
{
    EXPECT_EQ(Range<long long>(0, 100), callout->trackRange());
    EXPECT_EQ(Range<double>(30, 100), callout->mediaRange());
    EXPECT_EQ(0.0, callout->mediaStartLimit());
    EXPECT_EQ(std::numeric_limits<double>::max(), callout->mediaEndLimit());
    EXPECT_EQ(320.5, callout->width());
    EXPECT_EQ(240.25, callout->height());
}

TEST_F(CalloutTest, PointsNowhereAndHasNoRoomForTextAtFirst)
{
    EXPECT_EQ(Point(0, 0, 0), callout->hotSpotAttr()->value());
    EXPECT_EQ(Rect<float>(), callout->textRectAttr()->value());
}

TEST_F(CalloutTest, ItsTextIsEmptyAtFirst)
{
    EXPECT_EQ(1, callout->textParam()->numKeyFrames());
    EXPECT_EQ(0, callout->textParam()->firstKeyFrameTime());
    EXPECT_EQ("", callout->textParam()->valueAtTime(50));
}

TEST_F(CalloutTest, ConstFormsGiveTheSameObjects)
{
    EXPECT_EQ(callout->hotSpotAttr(), constCallout.hotSpotAttr());
    EXPECT_EQ(callout->textRectAttr(), constCallout.textRectAttr());
    EXPECT_EQ(callout->textParam(), constCallout.textParam());
}

TEST_F(CalloutTest, ListsTheParametersOfAPictureAndThenItsText)
{
    EXPECT_EQ(visualParameterNames() + std::string("text "), parameterNames(*callout));
    EXPECT_EQ(callout->textParam(), callout->paramWithName("text"));
}

TEST_F(CalloutTest, CountsTwoParametersAndTwoAttributes)
{
    EXPECT_EQ(2, callout->numParameters());
    EXPECT_EQ(2, callout->numAttributes());
}

TEST_F(CalloutTest, NeedsNoSource)
{
    boost::shared_ptr<Callout> const made = on(boost::shared_ptr<Source const>(), 7);
    EXPECT_EQ(0.0, made->width());
    EXPECT_EQ(0.0, made->height());
    EXPECT_FALSE(made->source());
    EXPECT_FALSE(made->isInstanceOf(boost::shared_ptr<Source const>()));
}

TEST_F(CalloutTest, MayHaveASource)
{
    boost::shared_ptr<Source> const from = picture();
    EXPECT_TRUE(on(from, 0)->isInstanceOf(from));
    EXPECT_FALSE(on(from, 0)->isInstanceOf(movie()));
    EXPECT_EQ(640.0, on(from, 0)->width());
}

TEST_F(CalloutTest, ATrackThatItsSourceDoesNotHaveIsRefused)
{
    boost::shared_ptr<Source> const from = picture();
    EXPECT_EQ("trying to make an AbstractIMFile with an invalid source track",
              refusal([&] { on(from, 1); }));
}

TEST_F(CalloutTest, ACopyHasTextAndAttributesOfItsOwn)
{
    callout->hotSpotAttr()->setValue(Point(1, 2, 3));
    callout->textRectAttr()->setValue(Rect<float>(1, 2, 3, 4));
    callout->textParam()->changeKeyFrame(0, "old");
    boost::shared_ptr<Callout> const copy = sharedClone(callout);
    callout->hotSpotAttr()->setValue(Point());
    callout->textRectAttr()->setValue(Rect<float>());
    callout->textParam()->changeKeyFrame(0, "new");
    EXPECT_EQ(Point(1, 2, 3), copy->hotSpotAttr()->value());
    EXPECT_EQ(Rect<float>(1, 2, 3, 4), copy->textRectAttr()->value());
    EXPECT_EQ("old", copy->textParam()->valueAtTime(0));
}

TEST_F(CalloutTest, NamesItsClass)
{
    EXPECT_EQ("Callout", callout->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
