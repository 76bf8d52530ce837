#include "timeline/ImageTransition.h"

#include "effects/Blur.h"
#include "effects/CompositeEffect.h"
#include "exceptions/IndexException.h"
#include "support/CountingObserver.h"
#include "support/MediaKindTest.h"

#include <limits>

namespace tarn {
namespace test {
namespace {

class ImageTransitionTest : public MediaKindTest
{
protected:
    boost::shared_ptr<Effect> effect() const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect("wipe", project->weak()));
    }

    boost::shared_ptr<ImageTransition> const transition{
        new ImageTransition(30, 100, project->weak())};
};

TEST_F(ImageTransitionTest, LastsAsLongAsWanted)
{
    EXPECT_EQ(Range<long long>(0, 100), transition->trackRange());
    EXPECT_EQ(Range<double>(30, 100), transition->mediaRange());
    EXPECT_EQ(0.0, transition->mediaStartLimit());
    EXPECT_EQ(std::numeric_limits<double>::max(), transition->mediaEndLimit());
}

TEST_F(ImageTransitionTest, HasNoSize)
{
    EXPECT_EQ("width of a transition is undefined", refusal([&] { transition->width(); }));
    EXPECT_EQ("height of a transition is undefined", refusal([&] { transition->height(); }));
}

TEST_F(ImageTransitionTest, HasNoCropRects)
{
    EXPECT_EQ("width of a transition is undefined",
              refusal([&] { transition->sourceCropRectAtTime(0); }));
    EXPECT_EQ("width of a transition is undefined",
              refusal([&] { transition->geometryCropRectAtTime(0); }));
}

TEST_F(ImageTransitionTest, IsTheMediaThatItRepresents)
{
    transition->setTrackStart(70);
    EXPECT_EQ(transition, transition->transitionMediaRepresentation());
    EXPECT_EQ(Range<long long>(70, 100), transition->transitionRange());
}

TEST_F(ImageTransitionTest, IsAnInstanceOfNoSource)
{
    EXPECT_FALSE(transition->isInstanceOf(picture()));
    EXPECT_FALSE(transition->isInstanceOf(boost::shared_ptr<Source const>()));
}

TEST_F(ImageTransitionTest, HasNoEffectAtFirst)
{
    EXPECT_EQ(0, transition->numEffects());
    EXPECT_FALSE(transition->transitionEffect());
}

TEST_F(ImageTransitionTest, CarriesOneEffect)
{
    boost::shared_ptr<Effect> const added = effect();
    EXPECT_EQ(0, transition->addEffect(added));
    EXPECT_EQ(added, transition->transitionEffect());
    EXPECT_EQ(transition.get(), added->effectTimeConverter());
}

TEST_F(ImageTransitionTest, ItsEffectMayBeInserted)
{
    boost::shared_ptr<Effect> const added = effect();
    EXPECT_THROW(transition->insertEffect(added, 1), IndexException);
    transition->insertEffect(added, 0);
    EXPECT_EQ(added, transition->transitionEffect());
}

TEST_F(ImageTransitionTest, ASecondEffectIsRefused)
{
    boost::shared_ptr<Effect> const first = effect();
    transition->addEffect(first);
    CountingObserver observer;
    transition->attach(&observer);
    EXPECT_EQ("add error: Image Transitions can only have one transition effect",
              refusal([&] { transition->addEffect(effect()); }));
    EXPECT_EQ("insert error: Image Transitions can only have one transition effect",
              refusal([&] { transition->insertEffect(effect(), 0); }));
    EXPECT_EQ(1, transition->numEffects());
    EXPECT_EQ(first, transition->transitionEffect());
    EXPECT_EQ(0, observer.calls());
    transition->detach(&observer);
}

TEST_F(ImageTransitionTest, ThatThereIsAnEffectIsAskedBeforeTheIndex)
{
    transition->addEffect(effect());
    EXPECT_EQ("insert error: Image Transitions can only have one transition effect",
              refusal([&] { transition->insertEffect(effect(), 7); }));
}

TEST_F(ImageTransitionTest, ItsEffectMayBeReplaced)
{
    transition->addEffect(effect());
    transition->removeEffect(0);
    boost::shared_ptr<Effect> const second = effect();
    transition->addEffect(second);
    EXPECT_EQ(second, transition->transitionEffect());
}

TEST_F(ImageTransitionTest, ListsTheParametersOfItsEffectLast)
{
    EXPECT_EQ(visualParameterNames(), parameterNames(*transition));
    transition->addEffect(boost::shared_ptr<Effect>(new Blur(project->weak())));
    EXPECT_EQ(visualParameterNames() + std::string("intensity foo "), parameterNames(*transition));
    EXPECT_EQ(23, transition->numParameters());
}

TEST_F(ImageTransitionTest, FindsAParameterOfItsEffect)
{
    EXPECT_FALSE(transition->paramWithName("intensity"));
    transition->addEffect(boost::shared_ptr<Effect>(new Blur(project->weak())));
    EXPECT_TRUE(transition->paramWithName("intensity"));
}

TEST_F(ImageTransitionTest, NamesItsClass)
{
    EXPECT_EQ("ImageTransition", transition->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
