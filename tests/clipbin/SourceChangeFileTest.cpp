#include "clipbin/Source.h"

#include "datatypes/ScreenMetaData.h"
#include "exceptions/IOException.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/Attribute.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "support/SourceTestBase.h"
#include "support/Thrown.h"

namespace tarn {
namespace test {
namespace {

/// What happens when a source is told that its file is another one now.
class SourceChangeFileTest : public SourceTestBase
{
protected:
    /// The source of "fake:old" with these tracks; "fake:new" has the other ones.
    boost::shared_ptr<Source> oldAndNew(std::vector<TrackStats> const& oldTracks,
                                        std::vector<TrackStats> const& newTracks) const
    {
        FakeStatsLoader::instance().set("fake:old", oldTracks);
        FakeStatsLoader::instance().set("fake:new", newTracks);
        return load("fake:old");
    }
    static std::string file(Source const& source) { return source.mediaFileStats()->filename(); }
    /// The text of the refusal to take "fake:new".
    static std::string refusal(Source& source)
    {
        return thrownBy<TarnMediaLibException>([&] { source.changeFile("fake:new"); }).what();
    }
    static boost::shared_ptr<ScreenMetaData const> metaDataOf(Source& source)
    {
        return videoOf(source)->screenMetaData()->value();
    }

    std::string const k_incompatible =
        "attempting to replace source's file with an incompatable file";
};

TEST_F(SourceChangeFileTest, ALikeFileTakesThePlace)
{
    auto const source = oldAndNew({picture(100)}, {picture(100)});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new", file(*source));
    EXPECT_EQ("fake:new", videoOf(*source)->fileName());
}

TEST_F(SourceChangeFileTest, ObserversAreTold)
{
    auto const source = oldAndNew({picture(100)}, {picture(100)});
    CountingObserver observer;
    source->attach(&observer);
    source->changeFile("fake:new");
    EXPECT_EQ(1, observer.calls());
    source->detach(&observer);
}

TEST_F(SourceChangeFileTest, AnotherNumberOfTracksIsRefused)
{
    EXPECT_EQ(k_incompatible, refusal(*oldAndNew({picture(100)}, {picture(100), sound(100)})));
    EXPECT_EQ(k_incompatible, refusal(*oldAndNew({picture(100), sound(100)}, {picture(100)})));
}

TEST_F(SourceChangeFileTest, AnotherKindOfFirstTrackIsRefused)
{
    EXPECT_EQ(k_incompatible, refusal(*oldAndNew({picture(100)}, {sound(100)})));
    EXPECT_EQ(k_incompatible, refusal(*oldAndNew({picture(1)}, {still()})));
}

TEST_F(SourceChangeFileTest, AnotherLengthOfTheFirstTrackIsRefused)
{
    EXPECT_EQ(k_incompatible, refusal(*oldAndNew({picture(100)}, {picture(101)})));
}

TEST_F(SourceChangeFileTest, LengthIsDurationTimesRate)
{
    // 100 * 30 = 60 * 50, though it is 3.3 s against 1.2 s.
    oldAndNew({picture(100)}, {picture(60, 50)})->changeFile("fake:new");
    // 3.3 s both, but 100 * 30 is not 200 * 60.
    EXPECT_EQ(k_incompatible, refusal(*oldAndNew({picture(100)}, {picture(200, 60)})));
}

TEST_F(SourceChangeFileTest, LengthIsCutToAWholeNumber)
{
    TrackStats ntsc = picture(100);
    ntsc.rangeEditRate = boost::rational<unsigned long>(30000, 1001);
    // 100 * 30000 / 1001 = 2997.002, which is cut to 999 * 3.
    oldAndNew({ntsc}, {picture(999, 3)})->changeFile("fake:new");
}

TEST_F(SourceChangeFileTest, TheStartOfTheFirstTrackIsNotCompared)
{
    auto const source = oldAndNew({picture(100)}, {over(50, 100, picture(0))});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new", file(*source));
}

TEST_F(SourceChangeFileTest, LaterTracksAreNotCompared)
{
    auto const source = oldAndNew({picture(100), sound(100)}, {picture(100), picture(7)});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new", file(*source));
}

TEST_F(SourceChangeFileTest, ARefusalChangesNothing)
{
    auto const source = oldAndNew({picture(100)}, {picture(101)});
    CountingObserver observer;
    source->attach(&observer);
    EXPECT_THROW(source->changeFile("fake:new"), TarnMediaLibException);
    EXPECT_EQ("fake:old", file(*source));
    EXPECT_EQ(0, observer.calls());
    source->detach(&observer);
}

TEST_F(SourceChangeFileTest, AFileThatCannotBeReadChangesNothing)
{
    auto const source = oldAndNew({picture(100)}, {picture(100)});
    FakeStatsLoader::instance().forget("fake:new");
    EXPECT_STREQ("IOException: Unable to initialize file: fake:new",
                 thrownBy<IOException>([&] { source->changeFile("fake:new"); }).what());
    EXPECT_EQ("fake:old", file(*source));
}

TEST_F(SourceChangeFileTest, RangesAndMediasStayAsTheyWere)
{
    TrackStats other = over(50, 100, picture(0));
    other.rect = Rect<int>(0, 0, 10, 10);
    auto const source = oldAndNew({picture(100), sound(80)}, {other, sound(20)});
    boost::shared_ptr<VMFile> const video = videoOf(*source);
    source->changeFile("fake:new");
    EXPECT_EQ(Range<long long>(0, 80), source->timeRange());
    EXPECT_EQ(Range<long long>(0, 100), source->mediaFileStats()->trackRange(0));
    EXPECT_EQ(Rect<float>(0, 0, 640, 480), source->trackRect(0));
    EXPECT_EQ(video, videoOf(*source));
    EXPECT_EQ(Range<double>(0, 80), video->mediaRange());
}

TEST_F(SourceChangeFileTest, SideFilesFollowWhereTheOldNameOccurs)
{
    TrackStats recording = picture(100);
    recording.metaData = {"fake:old/frontmost.dat", "/x/fake:old/cursorlocation.dat",
                          "/elsewhere/cursoraction.dat", "fake:old/fake:old/dirtyrect.dat"};
    auto const source = oldAndNew({recording}, {picture(100)});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new/frontmost.dat", metaDataOf(*source)->topmostWindowCoordinatesFilename());
    EXPECT_EQ("/x/fake:new/cursorlocation.dat", metaDataOf(*source)->cursorLocationFilename());
    EXPECT_EQ("/elsewhere/cursoraction.dat", metaDataOf(*source)->cursorActionFilename());
    // The first occurrence alone.
    EXPECT_EQ("fake:new/fake:old/dirtyrect.dat", metaDataOf(*source)->dirtyRectsFilename());
}

TEST_F(SourceChangeFileTest, MissingSideFilesStayMissing)
{
    auto const source = oldAndNew({picture(100)}, {picture(100)});
    source->changeFile("fake:new");
    EXPECT_EQ("", metaDataOf(*source)->topmostWindowCoordinatesFilename());
    EXPECT_FALSE(metaDataOf(*source)->isValid());
}

TEST_F(SourceChangeFileTest, EveryVideoTrackIsServed)
{
    TrackStats recording = picture(100);
    recording.metaData = {"fake:old/dirtyrect.dat"};
    auto const source = oldAndNew({picture(100), recording}, {picture(100), picture(100)});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new/dirtyrect.dat",
              videoOf(*source, 1)->screenMetaData()->value()->dirtyRectsFilename());
}

TEST_F(SourceChangeFileTest, MetaDataSetFromOutsideIsLeftAlone)
{
    TrackStats recording = picture(100);
    recording.metaData = {"fake:old/dirtyrect.dat"};
    auto const source = oldAndNew({recording}, {picture(100)});
    boost::shared_ptr<ScreenMetaData const> const own = metaDataOf(*source);
    boost::shared_ptr<ScreenMetaData> const foreign(
        ScreenMetaData::create(project->weak(), boost::weak_ptr<ProjectEditRate const>(project)));
    foreign->setDirtyRects("fake:old/dirtyrect.dat");
    videoOf(*source)->screenMetaData()->setValue(foreign);
    source->changeFile("fake:new");
    EXPECT_EQ("fake:old/dirtyrect.dat", foreign->dirtyRectsFilename());
    EXPECT_EQ("fake:new/dirtyrect.dat", own->dirtyRectsFilename());
}

TEST_F(SourceChangeFileTest, ComponentFilesFollowWhereTheOldNameOccurs)
{
    TrackStats component = picture(100);
    component.filename = "fake:old/picture.mov";
    TrackStats stranger = sound(100);
    stranger.filename = "/elsewhere/sound.mov";
    auto const source =
        oldAndNew({component, stranger, sound(100)}, {picture(100), sound(100), sound(100)});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new/picture.mov", source->mediaFileStats()->filename(0));
    EXPECT_EQ("/elsewhere/sound.mov", source->mediaFileStats()->filename(1));
    EXPECT_EQ("", source->mediaFileStats()->filename(2));
}

class ProjectChangeFileTest : public ModelTest
{
};

TEST_F(ProjectChangeFileTest, TheProjectChangesAFileOutsideTheHistory)
{
    given("V1: aaa");
    MediaFileStats const& stats = *source('a')->mediaFileStats();
    FakeStatsLoader::instance().set("fake:replacement", {stats.trackStats(0), stats.trackStats(1)});
    project->changeSourcesFile(source('a'), "fake:replacement");
    EXPECT_EQ("fake:replacement", stats.filename());
    EXPECT_THROW(project->undo(), TarnMediaLibException);
}

TEST_F(SourceChangeFileTest, ASoundAloneTakesAnotherFileToo)
{
    auto const source = oldAndNew({sound(100)}, {sound(100)});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new", file(*source));
    EXPECT_EQ("fake:new", soundOf(*source)->fileName());
}

TEST_F(SourceChangeFileTest, AStillHasNothingBesideIt)
{
    auto const source = oldAndNew({still()}, {still()});
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new", file(*source));
}

TEST_F(SourceChangeFileTest, AVideoThatAHostPutThereHasNothingBesideIt)
{
    auto const source = oldAndNew({picture(100)}, {picture(100)});
    boost::shared_ptr<VMFile> const added(
        new VMFile(Range<long long>(0, 10), project->weak(), source, 0));
    boost::shared_ptr<Track> const track = source->timeline()->visualMixer()->trackAtIndex(0);
    track->addMedia(added, 500);
    source->changeFile("fake:new");
    EXPECT_EQ("fake:new", added->fileName());
    // It owns the source, whose timeline owned it.
    track->removeMedia(added, false);
}

}  // namespace
}  // namespace test
}  // namespace tarn
