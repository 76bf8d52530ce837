#include "timeline/IMFile.h"

#include "support/MediaKindTest.h"

#include <limits>

namespace tarn {
namespace test {
namespace {

class IMFileTest : public MediaKindTest
{
protected:
    boost::shared_ptr<IMFile> still(boost::shared_ptr<Source const> const& from,
                                    unsigned trackNumber = 0) const
    {
        return boost::shared_ptr<IMFile>(new IMFile(30, 100, project->weak(), from, trackNumber));
    }
    boost::shared_ptr<IMFile> named() const
    {
        return boost::shared_ptr<IMFile>(
            new IMFile(30, 100, project->weak(), Rect<float>(0, 0, 320.5f, 240.25f), "a.png"));
    }
};

TEST_F(IMFileTest, IsAsLongAsWantedWhateverItsSource)
{
    boost::shared_ptr<IMFile> const made = still(picture());
    EXPECT_EQ(Range<long long>(0, 100), made->trackRange());
    EXPECT_EQ(Range<double>(30, 100), made->mediaRange());
    EXPECT_EQ(0.0, made->mediaStartLimit());
    EXPECT_EQ(std::numeric_limits<double>::max(), made->mediaEndLimit());
}

TEST_F(IMFileTest, ItsSizeIsThatOfTheSourcesTrack)
{
    EXPECT_EQ(640.0, still(picture())->width());
    EXPECT_EQ(480.0, still(picture())->height());
}

TEST_F(IMFileTest, IsAnInstanceOfItsSourceOnly)
{
    boost::shared_ptr<Source> const from = picture();
    EXPECT_EQ(from, still(from)->source());
    EXPECT_EQ(0u, still(from)->trackNumber());
    EXPECT_TRUE(still(from)->isInstanceOf(from));
    EXPECT_FALSE(still(from)->isInstanceOf(movie()));
}

TEST_F(IMFileTest, NamesTheFileOfItsSource)
{
    EXPECT_EQ("fake:picture", still(picture())->fileName());
    EXPECT_EQ("fake:picture", still(picture())->containerFileName());
}

TEST_F(IMFileTest, NamesTheTracksOwnFileInABundle)
{
    FakeStatsLoader::TrackStats track = FakeStatsLoader::still();
    track.filename = "component.png";
    boost::shared_ptr<IMFile> const made = still(source("fake:pictures", {track}));
    EXPECT_EQ("component.png", made->fileName());
    EXPECT_EQ("fake:pictures", made->containerFileName());
}

TEST_F(IMFileTest, ATrackThatTheSourceDoesNotHaveIsRefused)
{
    boost::shared_ptr<Source> const from = picture();
    EXPECT_EQ("trying to make an AbstractIMFile with an invalid source track",
              refusal([&] { still(from, 1); }));
}

TEST_F(IMFileTest, OfAFileByNameHasTheGivenSizeAndNoSource)
{
    EXPECT_EQ(320.5, named()->width());
    EXPECT_EQ(240.25, named()->height());
    EXPECT_EQ("a.png", named()->fileName());
    EXPECT_EQ("a.png", named()->containerFileName());
    EXPECT_FALSE(named()->source());
    EXPECT_FALSE(named()->isInstanceOf(picture()));
}

TEST_F(IMFileTest, HasTheParametersOfAPictureAndNoMoreThanTheIdent)
{
    EXPECT_EQ(23, named()->numParameters());
    EXPECT_EQ(visualParameterNames(), parameterNames(*named()));
    EXPECT_EQ(1, named()->numAttributes());
}

TEST_F(IMFileTest, DescribesItself)
{
    EXPECT_EQ("imfile", named()->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
