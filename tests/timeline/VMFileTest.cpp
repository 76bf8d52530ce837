#include "timeline/VMFile.h"

#include "datatypes/ScreenMetaData.h"
#include "parameters/Attribute.h"
#include "support/MediaKindTest.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <limits>

namespace tarn {
namespace test {
namespace {

class VMFileTest : public MediaKindTest
{
protected:
    boost::shared_ptr<VMFile> video(boost::shared_ptr<Source const> const& from,
                                    unsigned trackNumber = 0) const
    {
        return boost::shared_ptr<VMFile>(
            new VMFile(Range<long long>(500, 100), project->weak(), from, trackNumber));
    }
    boost::shared_ptr<VMFile> named() const
    {
        return boost::shared_ptr<VMFile>(new VMFile(Range<long long>(500, 100), project->weak(),
                                                    Rect<float>(5, 6, 320.5f, 240.25f), "a.mov"));
    }
};

TEST_F(VMFileTest, ShowsARangeOfItsSource)
{
    boost::shared_ptr<VMFile> const made = video(movie());
    EXPECT_EQ(Range<long long>(0, 100), made->trackRange());
    EXPECT_EQ(Range<double>(500, 100), made->mediaRange());
    EXPECT_EQ(0u, made->trackNumber());
}

TEST_F(VMFileTest, ItsLimitsAreThoseOfItsSource)
{
    boost::shared_ptr<VMFile> const made = video(movie());
    EXPECT_EQ(0.0, made->mediaStartLimit());
    EXPECT_EQ(10000.0, made->mediaEndLimit());
}

TEST_F(VMFileTest, ItsSizeIsThatOfTheSourcesTrack)
{
    boost::shared_ptr<VMFile> const made = video(movie());
    EXPECT_EQ(640.0, made->width());
    EXPECT_EQ(480.0, made->height());
}

TEST_F(VMFileTest, IsAnInstanceOfItsSourceOnly)
{
    boost::shared_ptr<Source> const from = movie();
    EXPECT_EQ(from, video(from)->source());
    EXPECT_TRUE(video(from)->isInstanceOf(from));
    EXPECT_FALSE(video(from)->isInstanceOf(movie("fake:other")));
}

TEST_F(VMFileTest, KeepsItsSourceAlive)
{
    boost::shared_ptr<VMFile> const made = video(movie());
    ASSERT_TRUE(made->source());
    EXPECT_EQ("fake:movie", made->source()->mediaFileStats()->filename());
}

TEST_F(VMFileTest, TheSourcesOwnMediaDoesNotKeepItAlive)
{
    boost::shared_ptr<Source> from = movie();
    boost::shared_ptr<VMFile> const prototype = boost::dynamic_pointer_cast<VMFile>(
        from->timeline()->visualMixer()->trackAtIndex(0)->mediaBegin()->second);
    ASSERT_TRUE(prototype);
    boost::shared_ptr<VMFile> copy = sharedClone(prototype);
    boost::weak_ptr<Source> const watched = from;
    from.reset();
    EXPECT_TRUE(copy->source());
    copy.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(prototype->source());
}

TEST_F(VMFileTest, NamesTheFileOfItsSource)
{
    EXPECT_EQ("fake:movie", video(movie())->fileName());
    EXPECT_EQ("fake:movie", video(movie())->containerFileName());
}

TEST_F(VMFileTest, NamesTheTracksOwnFileInABundle)
{
    FakeStatsLoader::TrackStats track = FakeStatsLoader::picture(10000);
    track.filename = "component.mov";
    boost::shared_ptr<VMFile> const made = video(source("fake:bundle", {track}));
    EXPECT_EQ("component.mov", made->fileName());
    EXPECT_EQ("fake:bundle", made->containerFileName());
}

TEST_F(VMFileTest, ATrackThatTheSourceDoesNotHaveIsRefused)
{
    boost::shared_ptr<Source> const from = movie();
    EXPECT_EQ("trying to make a vmfile with an invalid source track",
              refusal([&] { video(from, 2); }));
    EXPECT_EQ("trying to make a vmfile with an invalid source track",
              refusal([&] { video(from, std::numeric_limits<unsigned>::max()); }));
}

TEST_F(VMFileTest, TheKindOfTheTrackIsNotChecked)
{
    EXPECT_EQ(1u, video(movie(), 1)->trackNumber());
}

TEST_F(VMFileTest, OfAFileByNameHasTheGivenSize)
{
    EXPECT_EQ(320.5, named()->width());
    EXPECT_EQ(240.25, named()->height());
    EXPECT_EQ("a.mov", named()->fileName());
    EXPECT_EQ("a.mov", named()->containerFileName());
}

TEST_F(VMFileTest, OfAFileByNameIsBoundedByItsRange)
{
    EXPECT_EQ(500.0, named()->mediaStartLimit());
    EXPECT_EQ(600.0, named()->mediaEndLimit());
    EXPECT_FALSE(named()->source());
    EXPECT_FALSE(named()->isInstanceOf(movie()));
}

TEST_F(VMFileTest, HasTheParametersOfAPicture)
{
    EXPECT_EQ(23, named()->numParameters());
    EXPECT_EQ(visualParameterNames(), parameterNames(*named()));
}

TEST_F(VMFileTest, ItsScreenMetaDataIsEmptyAtFirst)
{
    boost::shared_ptr<VMFile> const made = named();
    EXPECT_EQ(2, made->numAttributes());
    EXPECT_FALSE(made->screenMetaData()->value());
    EXPECT_EQ(made->screenMetaData(), boost::shared_ptr<VMFile const>(made)->screenMetaData());
    EXPECT_FALSE(sharedClone(made)->screenMetaData()->value());
}

TEST_F(VMFileTest, GrabbingAFrameChangesNothing)
{
    boost::shared_ptr<VMFile> const made = named();
    made->grabFrame(3.5);
    EXPECT_EQ(Range<double>(500, 100), made->mediaRange());
}

TEST_F(VMFileTest, DescribesItself)
{
    EXPECT_EQ("vmfile", named()->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
