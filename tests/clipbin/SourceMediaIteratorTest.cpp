#include "clipbin/Source.h"

#include "exceptions/IndexException.h"
#include "project/ReadWriteMutex.h"
#include "support/OtherThread.h"
#include "support/SourceTestBase.h"
#include "support/Thrown.h"

#include <memory>

namespace tarn {
namespace test {
namespace {

class SourceMediaIteratorTest : public SourceTestBase
{
protected:
    /// Whether another thread could edit now. The iterators must live on in the caller.
    bool canBeEdited() const
    {
        OtherThread writer([this] { ReadWriteMutex::ScopedWriteLock lock(project->mutex()); });
        return writer.finishes();
    }
    static long long indexOf(std::function<void()> const& action)
    {
        return thrownBy<IndexException>(action).index();
    }

    // Two pictures and a sound between them: tracks 0 and 1 are pictures, 2 is the sound.
    boost::shared_ptr<Source> source = sourceOf({picture(100), sound(100), picture(100)});
};

TEST_F(SourceMediaIteratorTest, TheWalkBeginsAtTrackZero)
{
    EXPECT_EQ(0, source->mediaBegin<Media const>().trackIndex());
    EXPECT_EQ(0, source->mediaBegin<VisualMedia const>().trackIndex());
    EXPECT_EQ(0, source->mediaBegin<AudioMedia const>().trackIndex());
}

TEST_F(SourceMediaIteratorTest, TheWalkEndsBehindTheTracksOfItsKind)
{
    EXPECT_EQ(3, source->mediaEnd<Media const>().trackIndex());
    EXPECT_EQ(2, source->mediaEnd<VisualMedia const>().trackIndex());
    EXPECT_EQ(1, source->mediaEnd<AudioMedia const>().trackIndex());
}

TEST_F(SourceMediaIteratorTest, WithoutAMixerOfItsKindAWalkIsEmpty)
{
    EXPECT_EQ(0, sourceOf({sound(10)})->mediaEnd<VisualMedia const>().trackIndex());
    EXPECT_EQ(0, sourceOf({picture(10)})->mediaEnd<AudioMedia const>().trackIndex());
}

TEST_F(SourceMediaIteratorTest, PicturesComeBeforeSounds)
{
    auto at = source->mediaBegin<Media const>();
    EXPECT_EQ(videoOf(*source, 0), *at);
    ++at;
    EXPECT_EQ(videoOf(*source, 1), *at);
    ++at;
    EXPECT_EQ(soundOf(*source), *at);
    ++at;
    EXPECT_TRUE(at == source->mediaEnd<Media const>());
}

TEST_F(SourceMediaIteratorTest, AWalkOfOneKindShowsThatKind)
{
    auto picture = source->mediaBegin<VisualMedia const>();
    EXPECT_EQ(videoOf(*source, 0), *picture);
    EXPECT_EQ(640.0, picture->width());
    ++picture;
    EXPECT_EQ(videoOf(*source, 1), *picture);
    auto const sound = source->mediaBegin<AudioMedia const>();
    EXPECT_EQ(soundOf(*source), *sound);
    EXPECT_EQ(2u, sound->numChannels());
}

TEST_F(SourceMediaIteratorTest, StepsAreNotChecked)
{
    auto at = source->mediaBegin<Media const>();
    --at;
    --at;
    EXPECT_EQ(-2, at.trackIndex());
    auto end = source->mediaEnd<Media const>();
    ++end;
    EXPECT_EQ(4, end.trackIndex());
}

TEST_F(SourceMediaIteratorTest, BeforeTheFirstTrackThereIsNoMedia)
{
    Source::MediaIterator const before(source.get(), -1);
    EXPECT_EQ(-1, indexOf([&] { before.currentMedia(); }));
    EXPECT_EQ(-1, indexOf([&] { before.currentVisualMedia(); }));
    EXPECT_EQ(-1, indexOf([&] { before.currentAudioMedia(); }));
}

TEST_F(SourceMediaIteratorTest, BehindTheLastTrackTheSoundsAreAsked)
{
    Source::MediaIterator const behind(source.get(), 4);
    // Less the two pictures.
    EXPECT_EQ(2, indexOf([&] { behind.currentMedia(); }));
    EXPECT_EQ(4, indexOf([&] { behind.currentVisualMedia(); }));
    EXPECT_EQ(4, indexOf([&] { behind.currentAudioMedia(); }));
}

TEST_F(SourceMediaIteratorTest, OneKindIsAskedWithTheIndexAsItStands)
{
    Source::MediaIterator const first(source.get(), 0);
    EXPECT_EQ(videoOf(*source, 0), first.currentVisualMedia());
    EXPECT_EQ(soundOf(*source), first.currentAudioMedia());
    Source::MediaIterator const second(source.get(), 1);
    EXPECT_EQ(videoOf(*source, 1), second.currentVisualMedia());
    EXPECT_EQ(1, indexOf([&] { second.currentAudioMedia(); }));
}

TEST_F(SourceMediaIteratorTest, WithoutAMixerTheIndexItWasAskedForIsNamed)
{
    auto const silent = sourceOf({picture(10)});
    Source::MediaIterator const behind(silent.get(), 1);
    EXPECT_EQ(0, indexOf([&] { behind.currentMedia(); }));
    EXPECT_EQ(1, indexOf([&] { behind.currentAudioMedia(); }));
    auto const blind = sourceOf({sound(10)});
    Source::MediaIterator const first(blind.get(), 0);
    EXPECT_EQ(0, indexOf([&] { first.currentVisualMedia(); }));
    EXPECT_EQ(soundOf(*blind), first.currentMedia());
}

TEST_F(SourceMediaIteratorTest, ATrackWithoutAMediaShowsNone)
{
    source->timeline()->visualMixer()->newTrack<VisualTrack>(-1);
    Source::MediaIterator const onEmpty(source.get(), 2);
    EXPECT_FALSE(onEmpty.currentMedia());
    EXPECT_FALSE(onEmpty.currentVisualMedia());
}

TEST_F(SourceMediaIteratorTest, EqualMeansTheSameSourceAndIndex)
{
    auto const other = sourceOf({picture(10)});
    Source::MediaIterator const first(source.get(), 0);
    EXPECT_TRUE(first == Source::MediaIterator(source.get(), 0));
    EXPECT_TRUE(first != Source::MediaIterator(source.get(), 1));
    EXPECT_TRUE(first != Source::MediaIterator(other.get(), 0));
    EXPECT_FALSE(first == Source::MediaIterator(other.get(), 0));
}

TEST_F(SourceMediaIteratorTest, ACopyStepsAlone)
{
    auto first = source->mediaBegin<Media const>();
    auto copy(first);
    ++copy;
    EXPECT_EQ(0, first.trackIndex());
    EXPECT_EQ(1, copy.trackIndex());
    first = copy;
    ++copy;
    EXPECT_EQ(1, first.trackIndex());
}

TEST_F(SourceMediaIteratorTest, AnIteratorKeepsEditsOutWhileItLives)
{
    std::unique_ptr<Source::MediaIterator> at(new Source::MediaIterator(source.get(), 0));
    OtherThread writer([this] { ReadWriteMutex::ScopedWriteLock lock(project->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    at.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(SourceMediaIteratorTest, ACopyHasALockOfItsOwn)
{
    std::unique_ptr<Source::MediaIterator> at(new Source::MediaIterator(source.get(), 0));
    std::unique_ptr<Source::MediaIterator> copy(new Source::MediaIterator(*at));
    at.reset();
    OtherThread writer([this] { ReadWriteMutex::ScopedWriteLock lock(project->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    copy.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(SourceMediaIteratorTest, AfterAnAssignmentOneLockIsLeft)
{
    auto const other = sourceOf({picture(10)});
    {
        Source::MediaIterator at(source.get(), 0);
        at = Source::MediaIterator(other.get(), 3);
        EXPECT_EQ(3, at.trackIndex());
        EXPECT_TRUE(at == Source::MediaIterator(other.get(), 3));
    }
    EXPECT_TRUE(canBeEdited());
}

TEST_F(SourceMediaIteratorTest, WithoutItsProjectThereIsNoWalk)
{
    project.reset();
    EXPECT_THROW(source->mediaBegin<Media const>(), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace test
}  // namespace tarn
