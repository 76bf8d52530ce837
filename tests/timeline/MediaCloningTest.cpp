#include "datatypes/CloneDecorator.h"
#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "effects/CompositeEffect.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "timeline/AMFile.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/TextBox.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <set>

namespace tarn {
namespace test {
namespace {

/// Notes what it was asked to decorate.
struct NotingDecorator : CloneDecorator<Media>
{
    void decorateClone(Media const& from, boost::shared_ptr<Media> const& clone) const override
    {
        ++calls;
        original = &from;
        last = clone;
    }

    mutable int calls = 0;
    mutable Media const* original = nullptr;
    mutable boost::weak_ptr<Media> last;
};

class MediaCloningTest : public ModelTest
{
protected:
    void SetUp() override
    {
        given("A1: aaa / V1: aaa");
        video = boost::dynamic_pointer_cast<VMFile>(media("V1.a"));
    }

    boost::shared_ptr<IMFile> still() const
    {
        return boost::shared_ptr<IMFile>(
            new IMFile(30, 100, lock(), Rect<float>(0, 0, 320, 240), "a.png"));
    }
    boost::shared_ptr<CompositeEffect> effect() const
    {
        return boost::shared_ptr<CompositeEffect>(new CompositeEffect("glow", lock()));
    }

    boost::shared_ptr<VMFile> video;
};

// ---- Ranges ----

TEST_F(MediaCloningTest, AClonesRangesAndScalarAreTheSame)
{
    video->stretch(2.0);
    video->setTrackStart(70);
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EXPECT_EQ(Range<long long>(70, 60), clone->trackRange());
    EXPECT_EQ(Range<double>(500, 30), clone->mediaRange());
    EXPECT_EQ(2.0, clone->scalar());
    EXPECT_EQ(0.0, clone->mediaStartLimit());
    EXPECT_EQ(10000.0, clone->mediaEndLimit());
}

TEST_F(MediaCloningTest, ACloneIsEditedOnItsOwn)
{
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    clone->trimStart(10);
    clone->stretch(3.0);
    EXPECT_EQ(Range<long long>(10, 60), clone->trackRange());
    EXPECT_EQ(Range<long long>(0, 30), video->trackRange());
    EXPECT_EQ(Range<double>(500, 30), video->mediaRange());
    EXPECT_EQ(1.0, video->scalar());
}

TEST_F(MediaCloningTest, ACloneMeasuresItsTrimsByItself)
{
    // The original may be trimmed by 500 units before its start, the trimmed clone by 10 more.
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    clone->setTrackStart(1000);
    clone->trimStart(10);
    EXPECT_TRUE(clone->validTrimStart(-510));
    EXPECT_FALSE(clone->validTrimStart(-511));
}

TEST_F(MediaCloningTest, AStillsCloneHasASumOfItsOwn)
{
    boost::shared_ptr<IMFile> const original = still();
    original->trimStart(40);
    boost::shared_ptr<IMFile> const clone = sharedClone(original);
    EXPECT_EQ(40, clone->trimStartSum());
    clone->trimStart(7);
    EXPECT_EQ(47, clone->trimStartSum());
    EXPECT_EQ(40, original->trimStartSum());
}

// ---- What stays behind ----

TEST_F(MediaCloningTest, ACloneLiesOnNoTrackAndIsNotLinked)
{
    ASSERT_TRUE(video->isLinkedWith(media("A1.a")));
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EXPECT_FALSE(clone->parentTrack().lock());
    EXPECT_TRUE(clone->linkBegin() == clone->linkEnd());
    EXPECT_FALSE(media("A1.a")->isLinkedWith(clone));
}

TEST_F(MediaCloningTest, ObserversStayWithTheOriginal)
{
    CountingObserver observer;
    video->attach(&observer);
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    clone->setTrackStart(5);
    EXPECT_EQ(0, observer.calls());
    video->detach(&observer);
}

TEST_F(MediaCloningTest, ACloneNotifiesWhileItsOriginalMayNot)
{
    Subject::NotifyDisabler const disabler(video.get());
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EXPECT_FALSE(video->isNotifying());
    EXPECT_TRUE(clone->isNotifying());
}

TEST_F(MediaCloningTest, ACloneHasAnIdentOfItsOwn)
{
    EXPECT_NE(video->xmlIdent(), sharedClone(video)->xmlIdent());
}

TEST_F(MediaCloningTest, MakingACloneNotifiesNobody)
{
    CountingObserver observer;
    video->attach(&observer);
    sharedClone(video);
    EXPECT_EQ(0, observer.calls());
    video->detach(&observer);
}

// ---- Parameters, attributes, effects ----

TEST_F(MediaCloningTest, ParametersAreCopiedDeeply)
{
    video->opacity()->changeKeyFrame(0, 0.5);
    video->sourceCropParam()->at(1)->changeKeyFrame(0, 3.0);
    video->translation()->at(2)->changeKeyFrame(0, 4.0);
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    video->opacity()->changeKeyFrame(0, 1.0);
    EXPECT_EQ(0.5, clone->opacity()->valueAtTime(0));
    EXPECT_EQ(3.0, clone->sourceCropParam()->at(1)->valueAtTime(0));
    EXPECT_EQ(4.0, clone->translation()->at(2)->valueAtTime(0));
    EXPECT_EQ(1.0, video->opacity()->valueAtTime(0));
}

TEST_F(MediaCloningTest, ParametersOfASoundAreCopiedDeeply)
{
    boost::shared_ptr<AMFile> const sound = boost::dynamic_pointer_cast<AMFile>(media("A1.a"));
    sound->volume()->changeKeyFrame(0, 0.5);
    sound->gain()->changeKeyFrame(0, 2.0);
    boost::shared_ptr<AMFile> const clone = sharedClone(sound);
    sound->volume()->changeKeyFrame(0, 1.0);
    sound->gain()->changeKeyFrame(0, 1.0);
    EXPECT_EQ(0.5, clone->volume()->valueAtTime(0));
    EXPECT_EQ(2.0, clone->gain()->valueAtTime(0));
}

TEST_F(MediaCloningTest, ASoundsCloneHasItsChannelsAndItsFormat)
{
    boost::shared_ptr<AMFile> const clone =
        sharedClone(boost::dynamic_pointer_cast<AMFile>(media("A1.a")));
    EXPECT_EQ((std::set<unsigned int>{0, 1}), clone->channels());
    EXPECT_EQ(1u, clone->trackNumber());
    EXPECT_EQ(44100u, clone->sampleRate());
    EXPECT_EQ(16u, clone->bitDepth());
    EXPECT_EQ(source('a'), clone->source());
}

TEST_F(MediaCloningTest, APicturesCloneHasItsSourceAndItsSize)
{
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EXPECT_EQ(source('a'), clone->source());
    EXPECT_EQ(0u, clone->trackNumber());
    EXPECT_EQ(640.0, clone->width());
    EXPECT_EQ(480.0, clone->height());
}

TEST_F(MediaCloningTest, TheNameIsCopied)
{
    video->identAttribute()->setValue("scene 1");
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    video->identAttribute()->setValue("scene 2");
    EXPECT_EQ("scene 1", clone->identAttribute()->value());
}

TEST_F(MediaCloningTest, EffectsAreCopiedAndRunOnTheClonesClock)
{
    video->addEffect(effect());
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    ASSERT_EQ(1, clone->numEffects());
    EXPECT_NE(video->effectAtIndex(0), clone->effectAtIndex(0));
    EXPECT_EQ("glow", clone->effectAtIndex(0)->name());
    EXPECT_EQ(clone.get(), clone->effectAtIndex(0)->effectTimeConverter());
    EXPECT_EQ(video.get(), video->effectAtIndex(0)->effectTimeConverter());
}

TEST_F(MediaCloningTest, EffectsOfACloneAreItsOwnList)
{
    video->addEffect(effect());
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    clone->removeEffect(0);
    EXPECT_EQ(1, video->numEffects());
    EXPECT_EQ(0, clone->numEffects());
}

TEST_F(MediaCloningTest, ANullEffectIsCopiedAsOne)
{
    video->addEffect(boost::shared_ptr<Effect>());
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    ASSERT_EQ(1, clone->numEffects());
    EXPECT_FALSE(clone->effectAtIndex(0));
}

// ---- Edges ----

TEST_F(MediaCloningTest, TheEdgeLengthsAskedForAreCopied)
{
    // 80 and 60 do not fit into 100, but into 200.
    boost::shared_ptr<IMFile> const original = still();
    original->setLeftEdgeModificationLength(80);
    original->setRightEdgeModificationLength(60);
    boost::shared_ptr<IMFile> const clone = sharedClone(original);
    EXPECT_EQ(50, clone->leftEdgeModificationLength());
    EXPECT_EQ(50, clone->rightEdgeModificationLength());
    clone->trimEnd(-100);
    EXPECT_EQ(80, clone->leftEdgeModificationLength());
    EXPECT_EQ(60, clone->rightEdgeModificationLength());
}

TEST_F(MediaCloningTest, EdgesActOnTheClonesOwnParameters)
{
    video->setLeftEdgeModificationLength(10);
    video->addLeftEdgeModification(EdgeModification(video->opacity(), FadeInFunc()));
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    ASSERT_EQ(1u, clone->leftEdgeModifications().size());
    EXPECT_EQ(clone->opacity(), clone->leftEdgeModifications().front().parameter());
    EXPECT_EQ(0.5, clone->transformedDoubleParameterValueAtTime(clone->opacity(), 5));
    EXPECT_EQ(1.0, clone->transformedDoubleParameterValueAtTime(video->opacity(), 5));
}

TEST_F(MediaCloningTest, BothEdgesAreCopiedInOrder)
{
    video->addLeftEdgeModification(EdgeModification(video->opacity(), FadeInFunc()));
    video->addLeftEdgeModification(EdgeModification(video->scale()->at(0), FadeOutFunc()));
    video->addRightEdgeModification(EdgeModification(video->opacity(), FadeOutFunc()));
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    ASSERT_EQ(2u, clone->leftEdgeModifications().size());
    EXPECT_EQ("FadeInFunc", clone->leftEdgeModifications().front().func().ident());
    EXPECT_EQ("FadeOutFunc", clone->leftEdgeModifications().back().func().ident());
    EXPECT_EQ(clone->scale()->at(0), clone->leftEdgeModifications().back().parameter());
    ASSERT_EQ(1u, clone->rightEdgeModifications().size());
    EXPECT_EQ(clone->opacity(), clone->rightEdgeModifications().front().parameter());
}

TEST_F(MediaCloningTest, AnEdgeOnAStrangersParameterIsLeftOut)
{
    boost::shared_ptr<InterpolatingParam<double>> const foreign(
        new InterpolatingParam<double>(lock(), "foreign"));
    video->addLeftEdgeModification(EdgeModification(foreign, FadeInFunc()));
    video->addLeftEdgeModification(EdgeModification(video->opacity(), FadeInFunc()));
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    ASSERT_EQ(1u, clone->leftEdgeModifications().size());
    EXPECT_EQ(clone->opacity(), clone->leftEdgeModifications().front().parameter());
}

TEST_F(MediaCloningTest, ASlideOfACloneMeasuresTheClone)
{
    AuxEdgeModInfo info;
    info.setVisualMixer(visualMixer());
    info.setVisualMedia(video);
    MixerXSlideInFunc slide;
    slide.setAuxInfo(info);
    video->addLeftEdgeModification(EdgeModification(video->translation()->at(0), slide));
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EdgeModification const copied = clone->leftEdgeModifications().front();
    ASSERT_TRUE(copied.func().auxInfo());
    EXPECT_EQ(clone, copied.func().auxInfo()->visualMedia().lock());
    EXPECT_EQ(visualMixer(), copied.func().auxInfo()->visualMixer().lock());
    EXPECT_EQ(video, video->leftEdgeModifications().front().func().auxInfo()->visualMedia().lock());
}

TEST_F(MediaCloningTest, ASlideThatMeasuresNothingStaysSo)
{
    video->addRightEdgeModification(
        EdgeModification(video->translation()->at(0), MixerXSlideInFunc()));
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EdgeModification const copied = clone->rightEdgeModifications().front();
    ASSERT_TRUE(copied.func().auxInfo());
    EXPECT_FALSE(copied.func().auxInfo()->visualMedia().lock());
    EXPECT_FALSE(copied.func().auxInfo()->visualMixer().lock());
}

TEST_F(MediaCloningTest, EdgesOfASoundAreCopied)
{
    boost::shared_ptr<AMFile> const sound = boost::dynamic_pointer_cast<AMFile>(media("A1.a"));
    sound->addRightEdgeModification(EdgeModification(sound->volume(), FadeOutFunc()));
    boost::shared_ptr<AMFile> const clone = sharedClone(sound);
    ASSERT_EQ(1u, clone->rightEdgeModifications().size());
    EXPECT_EQ(clone->volume(), clone->rightEdgeModifications().front().parameter());
}

// ---- Decorators ----

TEST_F(MediaCloningTest, ADecoratorSeesEveryCloneAndItsClones)
{
    boost::shared_ptr<NotingDecorator> const decorator(new NotingDecorator);
    video->setCloneDecorator(decorator);
    boost::shared_ptr<VMFile> const clone = sharedClone(video);
    EXPECT_EQ(1, decorator->calls);
    EXPECT_EQ(video.get(), decorator->original);
    EXPECT_EQ(clone, decorator->last.lock());
    boost::shared_ptr<VMFile> const second = sharedClone(clone);
    EXPECT_EQ(2, decorator->calls);
    EXPECT_EQ(clone.get(), decorator->original);
    EXPECT_EQ(second, decorator->last.lock());
}

// ---- Every kind ----

TEST_F(MediaCloningTest, EveryKindIsClonedAsWhatItIs)
{
    boost::shared_ptr<Media> const picture = still();
    boost::shared_ptr<Media> const fade(new ImageTransition(0, 10, lock()));
    boost::shared_ptr<Media> const crossFade(new AudioTransition(Range<long long>(0, 10), lock()));
    boost::shared_ptr<Media> const text(new TextBox("text", 0, 10, 0, 10, lock()));
    boost::shared_ptr<Media> const callout(
        new Callout(0, 10, lock(), Rect<float>(0, 0, 64, 48), "callout"));
    EXPECT_TRUE(boost::dynamic_pointer_cast<IMFile>(sharedClone(picture)));
    EXPECT_TRUE(boost::dynamic_pointer_cast<ImageTransition>(sharedClone(fade)));
    EXPECT_TRUE(boost::dynamic_pointer_cast<AudioTransition>(sharedClone(crossFade)));
    EXPECT_TRUE(boost::dynamic_pointer_cast<TextBox>(sharedClone(text)));
    EXPECT_TRUE(boost::dynamic_pointer_cast<Callout>(sharedClone(callout)));
    EXPECT_TRUE(boost::dynamic_pointer_cast<AMFile>(sharedClone(media("A1.a"))));
}

TEST_F(MediaCloningTest, ATransitionsCloneHasTheEffectAndTakesNoOther)
{
    boost::shared_ptr<ImageTransition> const fade(new ImageTransition(0, 10, lock()));
    fade->addEffect(effect());
    boost::shared_ptr<ImageTransition> const clone = sharedClone(fade);
    ASSERT_TRUE(clone->transitionEffect());
    EXPECT_EQ("glow", clone->transitionEffect()->name());
    EXPECT_NE(fade->transitionEffect(), clone->transitionEffect());
    EXPECT_THROW(clone->addEffect(effect()), TarnMediaLibException);
}

TEST_F(MediaCloningTest, EdgesOnACalloutsPictureAreCopied)
{
    boost::shared_ptr<Callout> const callout(
        new Callout(0, 10, lock(), Rect<float>(0, 0, 64, 48), "callout"));
    callout->addLeftEdgeModification(EdgeModification(callout->opacity(), FadeInFunc()));
    boost::shared_ptr<Callout> const clone = sharedClone(callout);
    ASSERT_EQ(1u, clone->leftEdgeModifications().size());
    EXPECT_EQ(clone->opacity(), clone->leftEdgeModifications().front().parameter());
}

}  // namespace
}  // namespace test
}  // namespace tarn
