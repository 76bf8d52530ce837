#include "effects/CompositeEffect.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"
#include "support/Clip.h"
#include "support/CountingObserver.h"
#include "support/Thrown.h"

#include <string>

namespace tarn {
namespace test {
namespace {

using BadEffect = ValueException<boost::shared_ptr<Effect const>>;

/// The effects of a media that shows its source from 100 on and lies at 30: its effects run at
/// global time + 70.
class MediaEffectsTest : public ClipTest
{
protected:
    MediaEffectsTest()
    {
        media->setTrackStart(30);
        media->attach(&observer);
    }
    ~MediaEffectsTest() override { media->detach(&observer); }

    boost::shared_ptr<Effect> effect(std::string const& name) const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect(name, project->weak()));
    }
    /// The names of the effects in order, each followed by a blank.
    std::string names() const
    {
        std::string all;
        for (int i = 0; i < media->numEffects(); ++i)
            all += media->effectAtIndex(i)->name() + " ";
        return all;
    }
    void addAbc()
    {
        media->addEffect(a);
        media->addEffect(b);
        media->addEffect(c);
        callsBefore = observer.calls();
    }
    int newCalls() const { return observer.calls() - callsBefore; }

    boost::shared_ptr<Clip> const media = clip(100, 200);
    boost::shared_ptr<Effect> const a = effect("a");
    boost::shared_ptr<Effect> const b = effect("b");
    boost::shared_ptr<Effect> const c = effect("c");
    CountingObserver observer;
    int callsBefore = 0;
};

// ---- Adding ----

TEST_F(MediaEffectsTest, AnAddedEffectIsTheLast)
{
    EXPECT_EQ(0, media->addEffect(a));
    EXPECT_EQ(1, media->addEffect(b));
    EXPECT_EQ(2, media->numEffects());
    EXPECT_EQ("a b ", names());
    EXPECT_EQ(b, media->effectAtIndex(1));
    EXPECT_EQ(2, observer.calls());
}

TEST_F(MediaEffectsTest, AnAddedEffectRunsOnTheMediasClock)
{
    EXPECT_EQ(40, a->fromGlobalToParametricTime(40));
    media->addEffect(a);
    EXPECT_EQ(media.get(), a->effectTimeConverter());
    EXPECT_EQ(110, a->fromGlobalToParametricTime(40));
}

TEST_F(MediaEffectsTest, AnEffectCanBeInsertedAnywhere)
{
    media->addEffect(b);
    media->insertEffect(a, 0);
    media->insertEffect(c, 2);
    EXPECT_EQ("a b c ", names());
    EXPECT_EQ(media.get(), a->effectTimeConverter());
    EXPECT_EQ(media.get(), c->effectTimeConverter());
    EXPECT_EQ(3, observer.calls());
}

TEST_F(MediaEffectsTest, AnEffectCannotBeInsertedBeyondTheEnd)
{
    media->addEffect(a);
    EXPECT_EQ(2, thrownBy<IndexException>([&] { media->insertEffect(b, 2); }).index());
    EXPECT_EQ(-1, thrownBy<IndexException>([&] { media->insertEffect(b, -1); }).index());
    EXPECT_EQ("a ", names());
    EXPECT_FALSE(b->effectTimeConverter());
    EXPECT_EQ(1, observer.calls());
}

TEST_F(MediaEffectsTest, ANullEffectIsAccepted)
{
    EXPECT_EQ(0, media->addEffect(boost::shared_ptr<Effect>()));
    media->insertEffect(boost::shared_ptr<Effect>(), 1);
    EXPECT_EQ(2, media->numEffects());
    EXPECT_FALSE(media->effectAtIndex(0));
}

TEST_F(MediaEffectsTest, AnEffectOnTwoMediasRunsOnTheLaterOnesClock)
{
    boost::shared_ptr<Clip> const other = clip(0, 100);
    media->addEffect(a);
    other->addEffect(a);
    EXPECT_EQ(other.get(), a->effectTimeConverter());
    media->removeEffect(a);
    EXPECT_FALSE(a->effectTimeConverter());
}

// ---- Order ----

TEST_F(MediaEffectsTest, TwoEffectsCanChangePlaces)
{
    addAbc();
    media->swapEffectOrder(0, 2);
    EXPECT_EQ("c b a ", names());
    EXPECT_EQ(1, newCalls());
}

TEST_F(MediaEffectsTest, AnEffectCanChangePlacesWithItself)
{
    addAbc();
    media->swapEffectOrder(0, 0);
    EXPECT_EQ("a b c ", names());
}

TEST_F(MediaEffectsTest, ASwapNamesTheFirstIndexThatIsWrong)
{
    addAbc();
    EXPECT_EQ(3, thrownBy<IndexException>([&] { media->swapEffectOrder(3, 4); }).index());
    EXPECT_EQ(4, thrownBy<IndexException>([&] { media->swapEffectOrder(0, 4); }).index());
    EXPECT_EQ(-1, thrownBy<IndexException>([&] { media->swapEffectOrder(-1, 0); }).index());
    EXPECT_EQ("a b c ", names());
    EXPECT_EQ(0, newCalls());
}

TEST_F(MediaEffectsTest, AnEffectIsFoundByItsIndexOnly)
{
    media->addEffect(a);
    EXPECT_EQ(1, thrownBy<IndexException>([&] { media->effectAtIndex(1); }).index());
    boost::shared_ptr<Media const> const constMedia = media;
    EXPECT_EQ(-1, thrownBy<IndexException>([&] { constMedia->effectAtIndex(-1); }).index());
    EXPECT_EQ(a, constMedia->effectAtIndex(0));
}

// ---- Removing ----

TEST_F(MediaEffectsTest, AnEffectIsRemovedByItself)
{
    addAbc();
    RemovedEffect const removed = media->removeEffect(b);
    EXPECT_EQ(b, removed.first);
    EXPECT_EQ(1, removed.second);
    EXPECT_EQ("a c ", names());
    EXPECT_EQ(1, newCalls());
}

TEST_F(MediaEffectsTest, ARemovedEffectRunsOnTheGlobalClock)
{
    addAbc();
    media->removeEffect(b);
    EXPECT_FALSE(b->effectTimeConverter());
    EXPECT_EQ(40, b->fromGlobalToParametricTime(40));
    EXPECT_EQ(110, c->fromGlobalToParametricTime(40));
}

TEST_F(MediaEffectsTest, ARemovalByIndexTellsWhatFollows)
{
    addAbc();
    RemovedEffect const removed = media->removeEffect(1);
    EXPECT_EQ(c, removed.first);
    EXPECT_EQ(1, removed.second);
    EXPECT_EQ("a c ", names());
    EXPECT_EQ(1, newCalls());
}

TEST_F(MediaEffectsTest, ARemovalByIndexFreesTheRemovedEffectOnly)
{
    addAbc();
    media->removeEffect(1);
    EXPECT_FALSE(b->effectTimeConverter());
    EXPECT_EQ(media.get(), a->effectTimeConverter());
    EXPECT_EQ(media.get(), c->effectTimeConverter());
}

TEST_F(MediaEffectsTest, NothingFollowsTheLastEffect)
{
    addAbc();
    RemovedEffect const removed = media->removeEffect(2);
    EXPECT_FALSE(removed.first);
    EXPECT_EQ(2, removed.second);
    EXPECT_FALSE(c->effectTimeConverter());
    EXPECT_EQ("a b ", names());
}

TEST_F(MediaEffectsTest, NoEffectCanBeRemovedWhereNoneIs)
{
    addAbc();
    EXPECT_EQ(3, thrownBy<IndexException>([&] { media->removeEffect(3); }).index());
    EXPECT_EQ(-1, thrownBy<IndexException>([&] { media->removeEffect(-1); }).index());
    EXPECT_EQ("a b c ", names());
    EXPECT_EQ(0, newCalls());
}

TEST_F(MediaEffectsTest, ANullEffectCannotBeRemoved)
{
    BadEffect const thrown =
        thrownBy<BadEffect>([&] { media->removeEffect(boost::shared_ptr<Effect const>()); });
    EXPECT_STREQ("trying to remove a null effect", thrown.what());
    EXPECT_FALSE(thrown.value());
}

TEST_F(MediaEffectsTest, AStrangersEffectCannotBeRemoved)
{
    media->addEffect(a);
    boost::shared_ptr<Clip> const other = clip(0, 100);
    other->addEffect(b);
    BadEffect const thrown = thrownBy<BadEffect>([&] { media->removeEffect(b); });
    EXPECT_STREQ("effect to remove isn't found", thrown.what());
    EXPECT_EQ(b, thrown.value());
    EXPECT_EQ(other.get(), b->effectTimeConverter());
    EXPECT_EQ(1, observer.calls());
}

// ---- The end of a media ----

TEST_F(MediaEffectsTest, AnEffectOutlivesItsMedia)
{
    boost::shared_ptr<Clip> mortal = clip(100, 200);
    mortal->addEffect(a);
    mortal.reset();
    EXPECT_FALSE(a->effectTimeConverter());
    EXPECT_EQ(40, a->fromGlobalToParametricTime(40));
}

TEST_F(MediaEffectsTest, TheEndOfAMediaLeavesEffectsThatRunOnAnothersClock)
{
    boost::shared_ptr<Clip> mortal = clip(0, 100);
    mortal->addEffect(a);
    media->addEffect(a);
    mortal.reset();
    EXPECT_EQ(media.get(), a->effectTimeConverter());
}

}  // namespace
}  // namespace test
}  // namespace tarn
