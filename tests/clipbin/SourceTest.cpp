#include "clipbin/Source.h"

#include "datatypes/ScreenMetaData.h"
#include "exceptions/IOException.h"
#include "exceptions/IndexException.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/Attribute.h"
#include "support/MediaFiles.h"
#include "support/SourceTestBase.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/IMFile.h"

#include <boost/filesystem.hpp>
#include <gmock/gmock.h>

#include <limits>
#include <sstream>

namespace tarn {
namespace test {
namespace {

class SourceTest : public SourceTestBase
{
protected:
    static boost::shared_ptr<ScreenMetaData const> metaDataOf(Source& source)
    {
        return videoOf(source)->screenMetaData()->value();
    }
    static TrackStats withFiles(TrackStats track, std::vector<std::string> const& files)
    {
        track.metaData = files;
        return track;
    }
    static std::string xmlWithBase(Source const& source, std::string const& basePath)
    {
        std::ostringstream out;
        XMLable::Options options{&out, basePath};
        source.toXML(options, 0, "");
        return withoutIds(out.str());
    }
    static ::testing::Matcher<std::string> hasSrc(std::string const& src)
    {
        return ::testing::StartsWith("<Source id=\"#\" src=\"" + src + "\" lastMod=");
    }
};

TEST_F(SourceTest, ItIsAsLongAsWhatItsTracksShare)
{
    EXPECT_EQ(Range<long long>(0, 80), sourceOf({picture(100), sound(80)})->timeRange());
    EXPECT_EQ(Range<long long>(0, 80), sourceOf({picture(80), sound(100)})->timeRange());
    EXPECT_EQ(Range<long long>(0, 70), sourceOf({picture(100), sound(80), sound(70)})->timeRange());
}

TEST_F(SourceTest, TracksThatStartApartShareTheMiddle)
{
    EXPECT_EQ(Range<long long>(10, 70),
              sourceOf({over(10, 100, picture(0)), sound(80)})->timeRange());
}

TEST_F(SourceTest, RangesAreConvertedToTheProjectsRateAndCut)
{
    // 60 a second to 30: half.
    EXPECT_EQ(Range<long long>(0, 50), sourceOf({picture(101, 60)})->timeRange());
    // 25 a second to 30: 7 * 1.2 = 8.4, 101 * 1.2 = 121.2.
    EXPECT_EQ(Range<long long>(8, 121), sourceOf({over(7, 101, picture(0, 25))})->timeRange());
    // Towards zero: -3.5 becomes -3.
    EXPECT_EQ(Range<long long>(-3, 50), sourceOf({over(-7, 100, picture(0, 60))})->timeRange());
}

TEST_F(SourceTest, EachTrackIsConvertedFromItsOwnRate)
{
    // 10 s of picture, 8 s of sound.
    EXPECT_EQ(Range<long long>(0, 240),
              sourceOf({picture(600, 60), sound(352800, 44100)})->timeRange());
}

TEST_F(SourceTest, LongRangesAtFineRatesDoNotOverflow)
{
    // 10^13 units of a millionth of a second are 10^7 s; times 30 is 3 * 10^8.
    EXPECT_EQ(Range<long long>(0, 300000000),
              sourceOf({picture(10000000000000, 1000000)})->timeRange());
}

TEST_F(SourceTest, TimesBeyond64BitsEndAtTheirLimits)
{
    long long const k_max = std::numeric_limits<long long>::max();
    long long const k_min = std::numeric_limits<long long>::min();
    // A unit a second is 30 of the project's.
    EXPECT_EQ(Range<long long>(k_min, k_max),
              sourceOf({over(k_min / 2, k_max / 2, picture(1, 1))})->timeRange());
}

TEST_F(SourceTest, AStillIsOneUnitWhateverItsFileSays)
{
    EXPECT_EQ(Range<long long>(0, 1), sourceOf({still()})->timeRange());
    EXPECT_EQ(Range<long long>(0, 1), sourceOf({over(20, 50, still())})->timeRange());
    EXPECT_EQ(Range<long long>(0, 1), sourceOf({over(0, 0, still())})->timeRange());
}

TEST_F(SourceTest, AStillWithoutARateLoadsAndAMovieDoesNot)
{
    TrackStats withoutRate = still();
    withoutRate.rangeEditRate = boost::rational<unsigned long>(0, 1);
    EXPECT_EQ(Range<long long>(0, 1), sourceOf({withoutRate})->timeRange());
    withoutRate.type = MediaFileStats::Video;
    EXPECT_THROW(sourceOf({withoutRate}), TarnMediaLibException);
}

TEST_F(SourceTest, TracksWithoutATimeInCommonAreRefused)
{
    std::string const text = "source has timerange of zero";
    auto const refusal = [this](std::vector<TrackStats> const& tracks) {
        return std::string(thrownBy<TarnMediaLibException>([&] { sourceOf(tracks); }).what());
    };
    EXPECT_EQ(text, refusal({picture(0)}));
    EXPECT_EQ(text, refusal({picture(10), over(20, 10, sound(0))}));
    EXPECT_EQ(text, refusal({picture(10), over(10, 10, sound(0))}));
    // One unit of 60 a second is half a unit of the project.
    EXPECT_EQ(text, refusal({picture(1, 60)}));
}

TEST_F(SourceTest, AFileWithoutTracksIsRefused)
{
    EXPECT_EQ(0, thrownBy<IndexException>([this] { sourceNamed("none", {}); }).index());
}

TEST_F(SourceTest, WhatTheLoaderThrowsPasses)
{
    FakeStatsLoader::instance().forget("fake:missing");
    EXPECT_STREQ("IOException: Unable to initialize file: fake:missing",
                 thrownBy<IOException>([this] { load("fake:missing"); }).what());
}

TEST_F(SourceTest, WithoutAProjectThereIsNoSource)
{
    FakeStatsLoader::instance().set("fake:source", {picture(10)});
    EXPECT_THROW(
        Source::create(project, boost::weak_ptr<ThreadSafe const>(), std::string("fake:source")),
        boost::bad_weak_ptr);
}

TEST_F(SourceTest, ItIsOnline)
{
    EXPECT_TRUE(sourceOf({picture(10)})->isOnline());
}

TEST_F(SourceTest, ItKeepsTheStatisticsItIsGiven)
{
    boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create());
    stats->setFilename("given");
    stats->addTrackStats(picture(10));
    auto const source = Source::create(project, project->weak(), stats);
    EXPECT_EQ(stats.get(), source->mediaFileStats());
    EXPECT_EQ("given", source->mediaFileStats()->filename());
}

TEST_F(SourceTest, ATracksRectangleIsTheFiles)
{
    TrackStats narrow = picture(10);
    narrow.rect = Rect<int>(1, 2, 30, 40);
    auto const source = sourceOf({picture(10), narrow});
    EXPECT_EQ(Rect<float>(0, 0, 640, 480), source->trackRect(0));
    EXPECT_EQ(Rect<float>(1, 2, 30, 40), source->trackRect(1));
    EXPECT_EQ(2, thrownBy<IndexException>([&] { source->trackRect(2); }).index());
}

TEST_F(SourceTest, EachTrackOfTheFileHasATrackOfItsOwn)
{
    auto const source = sourceOf({picture(100), sound(100), picture(100), sound(100)});
    ASSERT_EQ(2u, source->timeline()->visualMixer()->numTracks());
    ASSERT_EQ(2u, source->timeline()->audioMixer()->numTracks());
    EXPECT_EQ(0u, videoOf(*source, 0)->trackNumber());
    EXPECT_EQ(2u, videoOf(*source, 1)->trackNumber());
    EXPECT_EQ(1u, soundOf(*source, 0)->trackNumber());
    EXPECT_EQ(3u, soundOf(*source, 1)->trackNumber());
}

TEST_F(SourceTest, MediasCoverTheSourcesRangeAndStartAtZero)
{
    auto const source = sourceOf({over(10, 100, picture(0)), sound(80)});
    EXPECT_EQ(Range<long long>(0, 70), videoOf(*source)->trackRange());
    EXPECT_EQ(Range<double>(10, 70), videoOf(*source)->mediaRange());
    EXPECT_EQ(Range<long long>(0, 70), soundOf(*source)->trackRange());
    EXPECT_EQ(Range<double>(10, 70), soundOf(*source)->mediaRange());
}

TEST_F(SourceTest, AStillTrackGivesAStillOfOneUnit)
{
    auto const source = sourceOf({still()});
    boost::shared_ptr<Media> const media =
        source->timeline()->visualMixer()->trackAtIndex(0)->mediaBegin()->second;
    EXPECT_TRUE(boost::dynamic_pointer_cast<IMFile>(media));
    EXPECT_EQ(Range<long long>(0, 1), media->trackRange());
}

TEST_F(SourceTest, SoundAloneMakesNoVisualMixer)
{
    auto const source = sourceOf({sound(100)});
    EXPECT_FALSE(source->timeline()->hasVisualMixer());
    EXPECT_TRUE(source->mediaBegin<VisualMedia const>() == source->mediaEnd<VisualMedia const>());
}

TEST_F(SourceTest, PictureAloneMakesNoAudioMixer)
{
    auto const source = sourceOf({picture(100)});
    EXPECT_FALSE(source->timeline()->hasAudioMixer());
    EXPECT_TRUE(source->mediaBegin<AudioMedia const>() == source->mediaEnd<AudioMedia const>());
}

TEST_F(SourceTest, OneMediaCarriesAllChannelsOfASoundTrack)
{
    auto const source = sourceOf({sound(100)});
    ASSERT_EQ(1u, source->timeline()->audioMixer()->numTracks());
    EXPECT_EQ(1u, source->timeline()->audioMixer()->trackAtIndex(0)->numMedias());
    EXPECT_EQ((std::set<unsigned int>{0, 1}), soundOf(*source)->channels());
}

TEST_F(SourceTest, EveryMediaIsLinkedToTheFirst)
{
    auto const source = sourceOf({picture(100), sound(100), sound(100)});
    EXPECT_TRUE(soundOf(*source, 0)->isLinkedWith(videoOf(*source)));
    EXPECT_TRUE(soundOf(*source, 1)->isLinkedWith(videoOf(*source)));
    EXPECT_TRUE(videoOf(*source)->isLinkedWith(soundOf(*source, 0)));
    EXPECT_TRUE(videoOf(*source)->isLinkedWith(soundOf(*source, 1)));
}

TEST_F(SourceTest, TheVisualMixerIsAsBigAsTheMovie)
{
    TrackStats small = picture(100);
    small.rect = Rect<int>(0, 0, 64, 48);
    FakeStatsLoader::instance().set("fake:big", {small}, Rect<int>(0, 0, 800, 600));
    boost::shared_ptr<VisualMixer> const mixer = load("fake:big")->timeline()->visualMixer();
    EXPECT_EQ(800.0f, mixer->attributeWidth()->value());
    EXPECT_EQ(600.0f, mixer->attributeHeight()->value());
}

TEST_F(SourceTest, TheAudioMixerHasTheFormatOfTheFirstSoundAndOneChannel)
{
    TrackStats first = sound(100);
    first.sampleRate = boost::rational<unsigned long>(48000, 1);
    first.bitDepth = 24;
    auto const source = sourceOf({picture(100), first, sound(100)});
    boost::shared_ptr<AudioMixer> const mixer = source->timeline()->audioMixer();
    EXPECT_EQ(48000u, mixer->attributeSampleRate()->value());
    EXPECT_EQ(24u, mixer->attributeBitDepth()->value());
    EXPECT_EQ(1u, mixer->attributeNumChannels()->value());
}

TEST_F(SourceTest, ATrackOfAnotherKindGivesNoMedia)
{
    TrackStats text = sound(100);
    text.type = static_cast<MediaFileStats::TrackType>(7);
    auto const source = sourceOf({picture(100), text, sound(100)});
    EXPECT_EQ(2u, source->timeline()->numTracks());
    EXPECT_EQ(2u, soundOf(*source)->trackNumber());
}

TEST_F(SourceTest, ItsMediasDoNotKeepItAlive)
{
    boost::shared_ptr<Source> source = sourceOf({picture(100), sound(100)});
    boost::weak_ptr<Source> const watched(source);
    boost::shared_ptr<VMFile> const prototype = videoOf(*source);
    source.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(prototype->source());
}

TEST_F(SourceTest, AClonedMediaKeepsItAlive)
{
    boost::shared_ptr<Source> source = sourceOf({picture(100)});
    boost::weak_ptr<Source> const watched(source);
    boost::shared_ptr<Media> clone = sharedClone<Media>(videoOf(*source));
    source.reset();
    EXPECT_FALSE(watched.expired());
    clone.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(SourceTest, EveryVideoHasMetaDataWhichIsNotValidWithoutFiles)
{
    auto const source = sourceOf({picture(100)});
    ASSERT_TRUE(metaDataOf(*source));
    EXPECT_FALSE(metaDataOf(*source)->isValid());
}

TEST_F(SourceTest, SideFilesAreKnownByTheirLastNames)
{
    auto const source =
        sourceOf({withFiles(picture(100), {"/r/dirtyrect.dat", "/r/frontmost.dat",
                                           "s/cursoraction.dat", "cursorlocation.dat"})});
    EXPECT_TRUE(metaDataOf(*source)->isValid());
    EXPECT_EQ("/r/dirtyrect.dat", metaDataOf(*source)->dirtyRectsFilename());
    EXPECT_EQ("/r/frontmost.dat", metaDataOf(*source)->topmostWindowCoordinatesFilename());
    EXPECT_EQ("s/cursoraction.dat", metaDataOf(*source)->cursorActionFilename());
    EXPECT_EQ("cursorlocation.dat", metaDataOf(*source)->cursorLocationFilename());
}

TEST_F(SourceTest, OtherSideFilesAreIgnored)
{
    auto const source = sourceOf(
        {withFiles(picture(100), {"/dirtyrect.dat/x", "/r/Frontmost.dat", "/r/notes.txt", ""})});
    EXPECT_EQ("", metaDataOf(*source)->dirtyRectsFilename());
    EXPECT_EQ("", metaDataOf(*source)->topmostWindowCoordinatesFilename());
}

TEST_F(SourceTest, EachVideoTrackHasItsOwnMetaData)
{
    auto const source = sourceOf({withFiles(picture(100), {"/1/dirtyrect.dat"}),
                                  withFiles(picture(100), {"/2/dirtyrect.dat"})});
    EXPECT_EQ("/1/dirtyrect.dat",
              videoOf(*source, 0)->screenMetaData()->value()->dirtyRectsFilename());
    EXPECT_EQ("/2/dirtyrect.dat",
              videoOf(*source, 1)->screenMetaData()->value()->dirtyRectsFilename());
}

TEST_F(SourceTest, ACopyHasNeitherFileNorTimeline)
{
    auto const source = sourceOf({picture(100)});
    Source const copy(*source);
    EXPECT_TRUE(copy.isOnline());
    EXPECT_EQ(Range<long long>(0, 0), copy.timeRange());
    EXPECT_EQ(nullptr, copy.mediaFileStats());
    EXPECT_FALSE(copy.timeline());
    EXPECT_THROW(copy.trackRect(0), IndexException);
    EXPECT_EQ("<Source id=\"#\"  >\n</Source>\n", xmlOf(copy));
    EXPECT_EQ(std::string::npos, copy.description().find("fake:source"));
}

TEST_F(SourceTest, ACopyHasNoFileThatCouldBeChanged)
{
    Source copy(*sourceOf({picture(100)}));
    EXPECT_STREQ("attempting to replace source's file with an incompatable file",
                 thrownBy<TarnMediaLibException>([&] { copy.changeFile("fake:source"); }).what());
}

TEST_F(SourceTest, WithoutItsProjectItCannotBeAsked)
{
    auto const source = sourceOf({picture(100)});
    project.reset();
    EXPECT_THROW(source->mediaFileStats(), boost::bad_weak_ptr);
    EXPECT_THROW(boost::shared_ptr<Source const>(source)->timeline(), boost::bad_weak_ptr);
}

TEST_F(SourceTest, XmlTellsTheFileAndItsTracks)
{
    TrackStats movie = over(3, 3000, picture(0, 600));
    EXPECT_EQ("<Source id=\"#\" src=\"fake:source\" lastMod=\"not-a-date-time\" "
              "rect=\"(0,0,640,480)\" >\n"
              " <SourceTrack range=\"(3,3000)\" type=\"0\" editRate=\"600/1\" "
              "trackRect=\"(0,0,640,480)\" sampleRate=\"0/1\" bitDepth=\"0\" numChannels=\"0\"/>\n"
              " <SourceTrack range=\"(0,200)\" type=\"2\" editRate=\"30/1\" "
              "trackRect=\"(0,0,0,0)\" sampleRate=\"44100/1\" bitDepth=\"16\" numChannels=\"2\"/>\n"
              "</Source>\n",
              xmlOf(*sourceOf({movie, sound(200)})));
}

TEST_F(SourceTest, XmlTellsWhenTheFileWasWritten)
{
    std::string const file = MediaFiles::written("dated.mov", "x");
    // 2007-06-13: 13677 days after 1970-01-01; 14:25:01 is 51901 s.
    boost::filesystem::last_write_time(file, 13677 * 86400L + 51901);
    EXPECT_THAT(xmlOf(*sourceNamed(file, {picture(10)})),
                ::testing::HasSubstr("\" lastMod=\"20070613T142501\" rect=\""));
}

TEST_F(SourceTest, XmlLooksAtTheFileEachTime)
{
    std::string const file = MediaFiles::written("passing.mov", "x");
    auto const source = sourceNamed(file, {picture(10)});
    boost::filesystem::last_write_time(file, 0);
    EXPECT_THAT(xmlOf(*source), ::testing::HasSubstr("lastMod=\"19700101T000000\""));
    boost::filesystem::remove(file);
    EXPECT_THAT(xmlOf(*source), ::testing::HasSubstr("lastMod=\"not-a-date-time\""));
}

TEST_F(SourceTest, XmlWritesAPathThatContainsTheBaseRelativeToIt)
{
    auto const source = sourceNamed("/a/b/c.mov", {picture(10)});
    EXPECT_THAT(xmlWithBase(*source, ""), hasSrc("/a/b/c.mov"));
    EXPECT_THAT(xmlWithBase(*source, "/a"), hasSrc("./b/c.mov"));
    EXPECT_THAT(xmlWithBase(*source, "/b"), hasSrc("./a/c.mov"));
}

TEST_F(SourceTest, XmlLeavesAPathWithoutTheBaseAsItIs)
{
    EXPECT_THAT(xmlWithBase(*sourceNamed("/a/b/c.mov", {picture(10)}), "/x"), hasSrc("/a/b/c.mov"));
    EXPECT_THAT(xmlWithBase(*sourceNamed("b/c.mov", {picture(10)}), "/x"), hasSrc("b/c.mov"));
}

TEST_F(SourceTest, XmlOfARelativePathThatContainsTheBaseIsEmpty)
{
    EXPECT_THAT(xmlWithBase(*sourceNamed("x/a/c.mov", {picture(10)}), "/a"), hasSrc(""));
}

TEST_F(SourceTest, XmlEscapesThePath)
{
    EXPECT_THAT(xmlOf(*sourceNamed("/a&b\".mov", {picture(10)})), hasSrc("/a&amp;b&quot;.mov"));
}

TEST_F(SourceTest, ItsDescriptionShowsXmlAndStatistics)
{
    auto const source = sourceOf({picture(100)});
    std::ostringstream expected;
    expected << "Source at " << source.get() << "\n";
    source->toXML(expected);
    expected << "\n" << source->mediaFileStats()->description() << "\n";
    EXPECT_EQ(expected.str(), source->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
