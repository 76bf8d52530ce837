#include "clipbin/QTStatsLoader.h"

#include "clipbin/MediaFileStats.h"
#include "exceptions/IOException.h"
#include "support/FakeMovieFramework.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>

namespace tarn {
namespace test {

namespace {

FakeMovieTrack track(std::string const& type, long long time, long long duration,
                     std::uint32_t timeScale)
{
    FakeMovieTrack track;
    track.type = type;
    track.range = {time, duration, timeScale};
    return track;
}

FakeMovieTrack picture(long long samples)
{
    FakeMovieTrack picture = track("vide", 20, 3000, 600);
    picture.size = {320, 240};
    picture.samples = samples;
    return picture;
}

FakeMovieTrack sound(double sampleRate)
{
    FakeMovieTrack sound = track("soun", 0, 44100, 44100);
    sound.format = MovieTrack::SoundFormat{sampleRate, 16, 2};
    return sound;
}

}  // namespace

class QTStatsLoaderTest : public ::testing::Test
{
protected:
    QTStatsLoaderTest()
        : framework(boost::make_shared<FakeMovieFramework>())
        , loader(framework)
        , stats(MediaFileStats::create())
    {}

    FakeMovie& movie() { return framework->movies["m"]; }

    void load() { loader.loadStats("m", stats.get()); }

    std::string failure()
    {
        try {
            load();
        } catch (IOException const& thrown) {
            return thrown.what();
        }
        return "nothing thrown";
    }

    unsigned long rateOfSound(double sampleRate)
    {
        movie().tracks = {sound(sampleRate)};
        load();
        return stats->sampleRate(stats->numTracks() - 1).numerator();
    }

    boost::shared_ptr<FakeMovieFramework> framework;
    QTStatsLoader loader;
    std::unique_ptr<MediaFileStats> stats;
};

TEST_F(QTStatsLoaderTest, OpensWhatTheFrameworkCanOpen)
{
    framework->openable = {"m"};
    EXPECT_TRUE(loader.canOpenFile("m"));
    EXPECT_FALSE(loader.canOpenFile("n"));
}

TEST_F(QTStatsLoaderTest, AMovieThatDoesNotOpenIsRefusedAndChangesNothing)
{
    EXPECT_EQ("IOException: Unable to initialize file: m", failure());
    EXPECT_EQ("", stats->filename());
}

TEST_F(QTStatsLoaderTest, AMovieWithoutTracksIsRefused)
{
    movie();
    EXPECT_EQ("IOException: No track information read from m", failure());
}

TEST_F(QTStatsLoaderTest, AMovieOfOtherTracksAloneIsRefusedWithItsNameAndSizeRead)
{
    movie().tracks = {track("text", 0, 100, 600), track("tmcd", 0, 100, 600)};
    EXPECT_EQ("IOException: No track information read from m", failure());
    EXPECT_EQ("m", stats->filename());
    EXPECT_EQ(Rect<int>(0, 0, 640, 480), stats->rect());
}

TEST_F(QTStatsLoaderTest, NaturalSizeIsCutToWholePixels)
{
    movie().size = {639.99, 1.5};
    movie().tracks = {picture(2)};
    load();
    EXPECT_EQ(Rect<int>(0, 0, 639, 1), stats->rect());
}

TEST_F(QTStatsLoaderTest, AMovingPictureKeepsItsRange)
{
    movie().tracks = {picture(2)};
    load();
    EXPECT_EQ(MediaFileStats::Video, stats->trackType(0));
    EXPECT_EQ(Range<long long>(20, 3000), stats->trackRange(0));
    EXPECT_EQ(boost::rational<unsigned long>(600, 1), stats->rangeEditRate(0));
    EXPECT_EQ(Rect<int>(0, 0, 320, 240), stats->trackRect(0));
}

TEST_F(QTStatsLoaderTest, APictureTrackWithOneSampleIsAStillOfDurationOne)
{
    movie().tracks = {picture(1)};
    load();
    EXPECT_EQ(MediaFileStats::Image, stats->trackType(0));
    EXPECT_EQ(Range<long long>(20, 1), stats->trackRange(0));
    EXPECT_EQ(boost::rational<unsigned long>(600, 1), stats->rangeEditRate(0));
}

TEST_F(QTStatsLoaderTest, APictureTrackWithoutSamplesIsAStill)
{
    movie().tracks = {picture(0)};
    load();
    EXPECT_EQ(MediaFileStats::Image, stats->trackType(0));
    EXPECT_EQ(1, stats->trackRange(0).duration);
}

TEST_F(QTStatsLoaderTest, PicturesHaveNoSoundFormat)
{
    movie().tracks = {picture(2)};
    movie().tracks[0].format = MovieTrack::SoundFormat{44100, 16, 2};
    movie().tracks[0].isDescribed = false;
    load();
    EXPECT_EQ(boost::rational<unsigned long>(0, 1), stats->sampleRate(0));
    EXPECT_EQ(0U, stats->bitDepth(0));
    EXPECT_EQ(0U, stats->numChannels(0));
}

TEST_F(QTStatsLoaderTest, ASoundTrackHasItsFormat)
{
    movie().tracks = {sound(48000)};
    load();
    EXPECT_EQ(MediaFileStats::Audio, stats->trackType(0));
    EXPECT_EQ(Range<long long>(0, 44100), stats->trackRange(0));
    EXPECT_EQ(boost::rational<unsigned long>(44100, 1), stats->rangeEditRate(0));
    EXPECT_EQ(boost::rational<unsigned long>(48000, 1), stats->sampleRate(0));
    EXPECT_EQ(16U, stats->bitDepth(0));
    EXPECT_EQ(2U, stats->numChannels(0));
}

TEST_F(QTStatsLoaderTest, ASoundTrackKeepsTheSizeItIsSaidToHave)
{
    movie().tracks = {sound(48000)};
    movie().tracks[0].size = {12.9, 7};
    load();
    EXPECT_EQ(Rect<int>(0, 0, 12, 7), stats->trackRect(0));
}

TEST_F(QTStatsLoaderTest, SampleRatesAreCutToWholeOnes)
{
    EXPECT_EQ(44100U, rateOfSound(44100.9));
}

TEST_F(QTStatsLoaderTest, SampleRatesStayWithinThirtyTwoBits)
{
    EXPECT_EQ(4294967295U, rateOfSound(5e9));
    EXPECT_EQ(4294967295U, rateOfSound(std::numeric_limits<double>::infinity()));
    EXPECT_EQ(0U, rateOfSound(-1));
    EXPECT_EQ(0U, rateOfSound(std::numeric_limits<double>::quiet_NaN()));
}

TEST_F(QTStatsLoaderTest, ATimeScaleOfZeroIsKept)
{
    movie().tracks = {picture(2)};
    movie().tracks[0].range.timeScale = 0;
    load();
    EXPECT_EQ(boost::rational<unsigned long>(0, 1), stats->rangeEditRate(0));
}

TEST_F(QTStatsLoaderTest, SoundWithoutASampleDescriptionIsRefused)
{
    movie().tracks = {sound(48000)};
    movie().tracks[0].isDescribed = false;
    EXPECT_EQ("IOException: Unable to get media sample description for file: m", failure());
}

TEST_F(QTStatsLoaderTest, SoundWithoutAFormatIsRefused)
{
    movie().tracks = {sound(48000)};
    movie().tracks[0].format.reset();
    EXPECT_EQ("IOException: Unable to get AudioStreamBasicDescription for file: m", failure());
}

TEST_F(QTStatsLoaderTest, AFailureLeavesTheTracksReadBefore)
{
    movie().tracks = {picture(2), sound(48000)};
    movie().tracks[1].format.reset();
    EXPECT_EQ("IOException: Unable to get AudioStreamBasicDescription for file: m", failure());
    EXPECT_EQ(1U, stats->numTracks());
}

TEST_F(QTStatsLoaderTest, OtherTracksAreDroppedAndTheOrderStays)
{
    FakeMovieTrack text = track("text", 0, 1, 600);
    text.isDescribed = false;
    movie().tracks = {sound(48000), text, picture(2), track("VIDE", 0, 1, 600), picture(1)};
    load();
    ASSERT_EQ(3U, stats->numTracks());
    EXPECT_EQ(MediaFileStats::Audio, stats->trackType(0));
    EXPECT_EQ(MediaFileStats::Video, stats->trackType(1));
    EXPECT_EQ(MediaFileStats::Image, stats->trackType(2));
}

TEST_F(QTStatsLoaderTest, TracksHaveNeitherComponentNorSideFiles)
{
    movie().tracks = {picture(2)};
    load();
    EXPECT_EQ("", stats->filename(0));
    EXPECT_TRUE(stats->metaData(0).empty());
}

TEST_F(QTStatsLoaderTest, TheMovieIsReleasedOnceItIsRead)
{
    movie().tracks = {picture(2)};
    load();
    EXPECT_TRUE(framework->isReleased());
}

TEST_F(QTStatsLoaderTest, TheMovieIsReleasedWhenReadingFails)
{
    movie().tracks = {sound(48000)};
    movie().tracks[0].isDescribed = false;
    EXPECT_THROW(load(), IOException);
    EXPECT_TRUE(framework->isReleased());
}

}  // namespace test
}  // namespace tarn
