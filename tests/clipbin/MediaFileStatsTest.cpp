#include "clipbin/MediaFileStats.h"

#include "clipbin/MediaFileStatsMac.h"
#include "clipbin/StatsLoader.h"
#include "exceptions/IOException.h"
#include "exceptions/IndexException.h"
#include "support/FakeStatsLoader.h"
#include "support/MediaFiles.h"
#include "support/Thrown.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <unistd.h>

namespace tarn {
namespace test {

namespace {

using Stats = std::unique_ptr<MediaFileStats>;
using TrackStats = MediaFileStats::TrackStats;

Stats emptyStats()
{
    return Stats(MediaFileStats::create());
}

Stats statsOf(std::string const& file)
{
    return Stats(MediaFileStats::create(file));
}

std::string messageOf(std::function<void()> const& call)
{
    try {
        call();
    } catch (IOException const& thrown) {
        return thrown.what();
    }
    return "nothing thrown";
}

long long refusedIndex(std::function<void()> const& call)
{
    try {
        call();
    } catch (IndexException const& thrown) {
        return thrown.index();
    }
    return -1;
}

TrackStats inComponent(TrackStats track, std::string const& file)
{
    track.filename = file;
    return track;
}

/// Claims the names that begin with its prefix, and counts what it is asked.
class PrefixLoader : public StatsLoader
{
public:
    PrefixLoader(std::string const& prefix, int width) : m_prefix(prefix), m_width(width) {}

    bool canOpenFile(std::string const& file) override
    {
        numAsked += file.compare(0, m_prefix.size(), m_prefix) == 0 ? 1 : 0;
        return file.compare(0, m_prefix.size(), m_prefix) == 0;
    }

    void loadStats(std::string const&, MediaFileStats* stats) override
    {
        nameSeen = stats->filename();
        stats->setRect(Rect<int>(0, 0, m_width, 1));
        if (m_width == 0) {
            throw std::runtime_error("the loader's own");
        }
    }

    int numAsked = 0;
    std::string nameSeen;

private:
    std::string m_prefix;
    int m_width;
};

/// Two loaders for "pair:" and one that throws, registered for the rest of the process.
struct Loaders
{
    PrefixLoader pair[2] = {PrefixLoader("pair:", 1), PrefixLoader("pair:", 2)};
    PrefixLoader throwing{"throwing:", 0};

    Loaders()
    {
        MediaFileStats::addStatsLoader(&pair[1]);
        MediaFileStats::addStatsLoader(&pair[0]);
        MediaFileStats::addStatsLoader(&throwing);
    }

    static Loaders& instance()
    {
        static Loaders& s_instance = *new Loaders;
        return s_instance;
    }
};

}  // namespace

TEST(MediaFileStatsTest, NewStatsAreEmpty)
{
    Stats const stats = emptyStats();
    EXPECT_EQ("", stats->filename());
    EXPECT_EQ(Rect<int>(0, 0, 0, 0), stats->rect());
    EXPECT_EQ(0U, stats->numTracks());
}

TEST(MediaFileStatsTest, NewTrackStatsAreVideoAndOtherwiseZero)
{
    TrackStats const track;
    EXPECT_EQ(Range<long long>(0, 0), track.range);
    EXPECT_EQ(boost::rational<unsigned long>(0, 1), track.rangeEditRate);
    EXPECT_EQ(0, track.type);
    EXPECT_EQ(Rect<int>(0, 0, 0, 0), track.rect);
    EXPECT_EQ(boost::rational<unsigned long>(0, 1), track.sampleRate);
    EXPECT_EQ(0U, track.bitDepth);
    EXPECT_EQ(0U, track.numChannels);
    EXPECT_EQ("", track.filename);
    EXPECT_TRUE(track.metaData.empty());
}

TEST(MediaFileStatsTest, TrackTypesHaveTheirNumbers)
{
    EXPECT_EQ(0, MediaFileStats::Video);
    EXPECT_EQ(1, MediaFileStats::Image);
    EXPECT_EQ(2, MediaFileStats::Audio);
}

TEST(MediaFileStatsTest, FileAndRectAreWhatWasSet)
{
    Stats const stats = emptyStats();
    stats->setFilename("/movies/a.mov");
    stats->setRect(Rect<int>(0, 0, 640, 480));
    EXPECT_EQ("/movies/a.mov", stats->filename());
    EXPECT_EQ(Rect<int>(0, 0, 640, 480), stats->rect());
}

TEST(MediaFileStatsTest, EveryFieldOfATrackIsRead)
{
    TrackStats track = FakeStatsLoader::sound(80, 600);
    track.range = Range<long long>(7, 80);
    track.rect = Rect<int>(0, 0, 3, 4);
    track.filename = "/bundle/sound.wav";
    track.metaData = {"/bundle/cursoraction.dat"};
    Stats const stats = emptyStats();
    stats->addTrackStats(FakeStatsLoader::picture(100));
    stats->addTrackStats(track);
    EXPECT_EQ(2U, stats->numTracks());
    EXPECT_EQ(Range<long long>(7, 80), stats->trackRange(1));
    EXPECT_EQ(boost::rational<unsigned long>(600, 1), stats->rangeEditRate(1));
    EXPECT_EQ(MediaFileStats::Audio, stats->trackType(1));
    EXPECT_EQ(Rect<int>(0, 0, 3, 4), stats->trackRect(1));
    EXPECT_EQ(boost::rational<unsigned long>(44100, 1), stats->sampleRate(1));
    EXPECT_EQ(16U, stats->bitDepth(1));
    EXPECT_EQ(2U, stats->numChannels(1));
    EXPECT_EQ("/bundle/sound.wav", stats->filename(1));
    EXPECT_THAT(stats->metaData(1), ::testing::ElementsAre("/bundle/cursoraction.dat"));
}

TEST(MediaFileStatsTest, AddingATrackCopiesIt)
{
    TrackStats track = FakeStatsLoader::picture(100);
    Stats const stats = emptyStats();
    stats->addTrackStats(track);
    track.range.duration = 5;
    EXPECT_EQ(100, stats->trackRange(0).duration);
}

TEST(MediaFileStatsTest, ATrackIsChangedThroughItsReference)
{
    Stats const stats = emptyStats();
    stats->addTrackStats(FakeStatsLoader::picture(100));
    stats->trackStats(0).filename = "/elsewhere.mov";
    EXPECT_EQ("/elsewhere.mov", stats->filename(0));
}

TEST(MediaFileStatsTest, AnUnknownTypeOfTrackIsKept)
{
    TrackStats track;
    track.type = static_cast<MediaFileStats::TrackType>(17);
    Stats const stats = emptyStats();
    stats->addTrackStats(track);
    EXPECT_EQ(17, stats->trackType(0));
}

TEST(MediaFileStatsTest, EveryOperationRefusesAnIndexThatIsNoTrack)
{
    Stats const stats = emptyStats();
    stats->addTrackStats(FakeStatsLoader::picture(100));
    MediaFileStats const& constStats = *stats;
    EXPECT_STREQ("Invalid index 1", thrownBy<IndexException>([&] { stats->trackStats(1); }).what());
    EXPECT_EQ(1, refusedIndex([&] { stats->trackStats(1); }));
    EXPECT_EQ(1, refusedIndex([&] { constStats.trackStats(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->trackRange(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->rangeEditRate(1); }));
    EXPECT_EQ(2, refusedIndex([&] { stats->trackType(2); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->trackRect(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->sampleRate(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->bitDepth(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->numChannels(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->filename(1); }));
    EXPECT_EQ(1, refusedIndex([&] { stats->metaData(1); }));
    EXPECT_EQ(4294967295LL,
              refusedIndex([&] { stats->fileTrackNumberForTrackNumber(4294967295U); }));
}

TEST(MediaFileStatsTest, EmptyStatsHaveNoTrackToTranslate)
{
    EXPECT_EQ(0, refusedIndex([] { emptyStats()->fileTrackNumberForTrackNumber(0); }));
}

TEST(MediaFileStatsTest, DescriptionTellsTheFileAndEachTrack)
{
    Stats const stats = emptyStats();
    stats->setFilename("/a.mov");
    stats->setRect(Rect<int>(0, 0, 640, 480));
    stats->addTrackStats(FakeStatsLoader::picture(3000, 600));
    stats->addTrackStats(FakeStatsLoader::sound(80, 25));
    std::ostringstream address;
    address << static_cast<void const*>(stats.get());
    EXPECT_EQ("MediaFileStats at " + address.str() +
                  "\n"
                  "filename: /a.mov\n"
                  "rect: (0, 0, 640, 480)\n"
                  "num tracks: 2\n"
                  "track0:\n"
                  "  range: (0, 3000)\n"
                  "  rangeEditRate: 600/1\n"
                  "  type: 0\n"
                  "  rect: (0, 0, 640, 480)\n"
                  "  sampleRate: 0/1\n"
                  "  bitDepth: 0\n"
                  "  numChannels: 0\n"
                  "track1:\n"
                  "  range: (0, 80)\n"
                  "  rangeEditRate: 25/1\n"
                  "  type: 2\n"
                  "  rect: (0, 0, 0, 0)\n"
                  "  sampleRate: 44100/1\n"
                  "  bitDepth: 16\n"
                  "  numChannels: 2\n",
              stats->description());
}

TEST(MediaFileStatsTest, AFileIsReadByTheLoaderThatClaimsIt)
{
    FakeStatsLoader::instance().set("fake:stats", {FakeStatsLoader::picture(100)});
    Stats const stats = statsOf("fake:stats");
    EXPECT_EQ("fake:stats", stats->filename());
    EXPECT_EQ(100, stats->trackRange(0).duration);
}

TEST(MediaFileStatsTest, TheLoaderFindsTheFileNameSet)
{
    Loaders& loaders = Loaders::instance();
    statsOf("pair:named");
    EXPECT_EQ("pair:named", loaders.pair[1].nameSeen);
}

TEST(MediaFileStatsTest, AFileThatNoLoaderClaimsIsRefused)
{
    EXPECT_EQ("IOException: No appropriate stats loader for file: /no/such/file",
              messageOf([] { statsOf("/no/such/file"); }));
}

TEST(MediaFileStatsTest, OfSeveralWillingLoadersTheLastInOrderOfAddressReads)
{
    Loaders::instance();
    EXPECT_EQ(2, statsOf("pair:any")->rect().width);
}

TEST(MediaFileStatsTest, EveryLoaderIsAskedOnce)
{
    Loaders& loaders = Loaders::instance();
    int const first = loaders.pair[0].numAsked;
    int const second = loaders.pair[1].numAsked;
    statsOf("pair:counted");
    EXPECT_EQ(first + 1, loaders.pair[0].numAsked);
    EXPECT_EQ(second + 1, loaders.pair[1].numAsked);
}

TEST(MediaFileStatsTest, WhatALoaderThrowsPassesUnchanged)
{
    Loaders::instance();
    EXPECT_THROW(statsOf("throwing:any"), std::runtime_error);
}

TEST(MediaFileStatsTest, AnEmptyLoaderIsNotRegistered)
{
    MediaFileStats::addStatsLoader(nullptr);
    EXPECT_FALSE(MediaFileStats::isFileOpenable("/no/such/file"));
}

TEST(MediaFileStatsTest, AFileIsOpenableIfSomeLoaderClaimsItReadableOrNot)
{
    FakeStatsLoader::instance().forget("fake:gone");
    EXPECT_TRUE(MediaFileStats::isFileOpenable("fake:gone"));
    EXPECT_EQ("IOException: Unable to initialize file: fake:gone",
              messageOf([] { statsOf("fake:gone"); }));
}

TEST(MediaFileStatsTest, TheDefaultLoaderIsThereAfterAFailedOpen)
{
    EXPECT_THROW(statsOf("/no/such/file"), IOException);
    EXPECT_TRUE(
        MediaFileStats::isFileOpenable(MediaFiles::made("default.wav", MediaFiles::tone(1))));
}

TEST(MediaFileStatsTest, APlainFileKeepsItsTrackNumbersEvenIfItIsGone)
{
    Stats const stats = emptyStats();
    stats->setFilename("/no/such/file");
    stats->addTrackStats(FakeStatsLoader::picture(100));
    stats->addTrackStats(FakeStatsLoader::sound(100));
    EXPECT_EQ(1U, stats->fileTrackNumberForTrackNumber(1));
}

TEST(MediaFileStatsTest, OnlyTheFirstTrackMakesABundle)
{
    Stats const stats = emptyStats();
    stats->addTrackStats(FakeStatsLoader::picture(100));
    stats->addTrackStats(inComponent(FakeStatsLoader::sound(100), "/no/such/file"));
    EXPECT_EQ(1U, stats->fileTrackNumberForTrackNumber(1));
}

class BundleTest : public ::testing::Test
{
protected:
    BundleTest() : stats(emptyStats())
    {
        TrackStats const video = FakeStatsLoader::picture(100);
        TrackStats const audio = FakeStatsLoader::sound(100);
        FakeStatsLoader::instance().set("fake:screen", {video});
        FakeStatsLoader::instance().set("fake:camera", {audio, video, audio});
        stats->addTrackStats(inComponent(video, "fake:screen"));
        stats->addTrackStats(inComponent(audio, "fake:camera"));
        stats->addTrackStats(inComponent(video, "fake:camera"));
        stats->addTrackStats(inComponent(audio, "fake:camera"));
    }

    Stats stats;
};

TEST_F(BundleTest, TheSecondSoundOfAComponentIsTheSecondSoundOfItsFile)
{
    EXPECT_EQ(2U, stats->fileTrackNumberForTrackNumber(3));
}

TEST_F(BundleTest, TheFirstPictureOfAComponentIsCountedWithinItsFileAlone)
{
    EXPECT_EQ(0U, stats->fileTrackNumberForTrackNumber(0));
    EXPECT_EQ(0U, stats->fileTrackNumberForTrackNumber(1));
    EXPECT_EQ(1U, stats->fileTrackNumberForTrackNumber(2));
}

TEST_F(BundleTest, AComponentWithTooFewTracksAnswersItsTrackCount)
{
    FakeStatsLoader::instance().set("fake:camera", {FakeStatsLoader::sound(100)});
    EXPECT_EQ(1U, stats->fileTrackNumberForTrackNumber(3));
}

TEST_F(BundleTest, AnUnreadableComponentFailsAsItsFileDoes)
{
    FakeStatsLoader::instance().forget("fake:camera");
    EXPECT_EQ("IOException: Unable to initialize file: fake:camera",
              messageOf([this] { stats->fileTrackNumberForTrackNumber(3); }));
}

TEST_F(BundleTest, AnIndexThatIsNoTrackIsRefused)
{
    EXPECT_EQ(4, refusedIndex([this] { stats->fileTrackNumberForTrackNumber(4); }));
}

TEST(MediaFileStatsMacTest, AbsolutePathFollowsLinks)
{
    std::string const target = MediaFiles::written("target", "x");
    std::string const link = MediaFiles::folder() + "/link";
    ASSERT_EQ(0, symlink("target", link.c_str()));
    EXPECT_EQ(MediaFileStatsMac::toAbsolutePath(target), MediaFileStatsMac::toAbsolutePath(link));
    EXPECT_THAT(MediaFileStatsMac::toAbsolutePath(link), ::testing::EndsWith("/target"));
}

TEST(MediaFileStatsMacTest, AbsolutePathHasNoLimitOfItsOwn)
{
    std::string path = "/";
    for (int i = 0; i < 1000; ++i) {
        path += "./";
    }
    EXPECT_EQ("/usr", MediaFileStatsMac::toAbsolutePath(path + "usr"));
}

TEST(MediaFileStatsMacTest, AMissingPathComesBackAsGiven)
{
    EXPECT_EQ("/no/../such/./file", MediaFileStatsMac::toAbsolutePath("/no/../such/./file"));
}

TEST(MediaFileStatsMacTest, CreateMakesStatsOfThisPlatform)
{
    EXPECT_NE(nullptr, dynamic_cast<MediaFileStatsMac*>(emptyStats().get()));
}

}  // namespace test
}  // namespace tarn
