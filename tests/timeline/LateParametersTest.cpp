// Parameters are made when someone asks for them. Nobody may be able to tell when that was.

#include "commands/AddKeyFrameCmd.h"
#include "datatypes/XMLIdentified.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"
#include "parameters/MTVector.h"
#include "parameters/ParametricTemporalDifferentiater.h"
#include "parameters/VectorParam.h"
#include "support/CountingObserver.h"
#include "support/FakeProject.h"
#include "support/FreshIdents.h"
#include "support/ModelTest.h"
#include "support/OneOfEachKind.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/pointer_cast.hpp>
#include <boost/smart_ptr/bad_weak_ptr.hpp>

#include <cmath>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace tarn {
namespace test {
namespace {

std::string xmlWithIds(XMLable const& object)
{
    std::ostringstream out;
    object.toXML(out);
    return out.str();
}

/// Asks for all there is to ask for.
void lookAtEverything(Parametric const& owner)
{
    auto const parameters = owner.parameterVector();
    for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        auto const number =
            boost::dynamic_pointer_cast<InterpolatingParam<double> const>(parameter);
        if (number) {
            number->interpolaterParam();
            number->identAttribute();
        }
    }
}

class LateParametersTest : public ModelTest
{
protected:
    void SetUp() override
    {
        given("A1: aaa / V1: aaa");
        picture = boost::dynamic_pointer_cast<VisualMedia>(media("V1.a"));
    }

    /// The identity number of the element that begins with these words.
    static int identOf(std::string const& xml, std::string const& name, std::string const& label)
    {
        std::size_t const end = xml.find(label);
        std::size_t const begin = xml.rfind("<" + name + " id=\"", end) + name.size() + 6;
        return std::stoi(xml.substr(begin));
    }

    boost::shared_ptr<VisualMedia> picture;
};

// ---- XML and idents ----

TEST_F(LateParametersTest, LookingAtAPictureLeavesItsXmlAsItWas)
{
    std::string const before = xmlWithIds(*picture);
    lookAtEverything(*picture);
    boost::dynamic_pointer_cast<VMFile>(picture)->screenMetaData();
    EXPECT_EQ(before, xmlWithIds(*picture));
}

TEST_F(LateParametersTest, LookingAtASoundLeavesItsXmlAsItWas)
{
    std::string const before = xmlWithIds(*media("A1.a"));
    lookAtEverything(*media("A1.a"));
    EXPECT_EQ(before, xmlWithIds(*media("A1.a")));
}

TEST_F(LateParametersTest, LookingAtTracksAndMixersLeavesTheProjectsXmlAsItWas)
{
    std::string const before = xmlWithIds(*project);
    lookAtEverything(*track("V1"));
    lookAtEverything(*visualMixer());
    visualMixer()->translation()->at(2)->interpolaterParam();
    EXPECT_EQ(before, xmlWithIds(*project));
}

TEST_F(LateParametersTest, LookingAtOneVectorLeavesTheXmlAsItWas)
{
    std::string const before = xmlWithIds(*picture);
    EXPECT_EQ(2, picture->shear()->numDimensions());
    EXPECT_EQ(before, xmlWithIds(*picture));
}

TEST_F(LateParametersTest, AParameterHasTheIdentThatWasShownBefore)
{
    std::string const before = xmlWithIds(*picture);
    EXPECT_EQ(identOf(before, "InterpolatingParam", "name=\"opacity\""),
              static_cast<int>(picture->opacity()->xmlIdent()));
    EXPECT_EQ(identOf(before, "VectorParam", "name=\"anchor\""),
              static_cast<int>(picture->anchor()->xmlIdent()));
}

TEST_F(LateParametersTest, IdentsAreDrawnInOrderOfConstruction)
{
    FreshIdents const idents;
    VisualTrack const track(lock());
    std::string const xml = xmlWithIds(track);
    int const first = static_cast<int>(track.xmlIdent());
    EXPECT_EQ(static_cast<int>(idents.first()), first);
    // The track and its ident attribute. A vector and its ident attribute, and for each of its
    // dimensions the parameter, its ident attribute, its interpolaters and their ident attribute.
    EXPECT_EQ(first + 2, identOf(xml, "VectorParam", "name=\"translation\""));
    EXPECT_EQ(first + 2 + 14, identOf(xml, "VectorParam", "name=\"rotation\""));
    EXPECT_EQ(first + 2 + 28, identOf(xml, "VectorParam", "name=\"shear\""));
    EXPECT_EQ(first + 2 + 38, identOf(xml, "VectorParam", "name=\"scale\""));
    EXPECT_EQ(first + 2 + 52, identOf(xml, "VectorParam", "name=\"anchor\""));
    EXPECT_EQ(static_cast<unsigned int>(first) + 2 + 28 + 2 + 4, track.shear()->at(1)->xmlIdent());
}

/// What becomes of idents when pictures come and go.
class IdentStory : public LateParametersTest
{
protected:
    /// Medias made, copied, destroyed and made again. Idents count from the first one drawn.
    std::string told(void (*look)(Parametric const& owner)) const
    {
        FreshIdents const idents;
        OneOfEachKind kinds(lock());
        look(*kinds.video);
        boost::shared_ptr<VMFile> copy = sharedClone(kinds.video);
        look(*copy);
        look(*kinds.sound);
        look(*kinds.text);
        kinds.video.reset();
        kinds.sound.reset();
        OneOfEachKind const others(lock());
        copy.reset();
        kinds.text.reset();
        OneOfEachKind const last(lock());
        std::string xml = xmlWithIds(*others.video) + xmlWithIds(*others.sound);
        xml += xmlWithIds(*last.text) + xmlWithIds(*last.still) + xmlWithIds(*last.callout);
        return idents.relative(xml);
    }

    static void lookAtNothing(Parametric const&) {}
    static void lookAtOneVector(Parametric const& owner)
    {
        if (auto const* const media = dynamic_cast<VisualMedia const*>(&owner))
            media->scale();
    }
};

TEST_F(IdentStory, IsTheSameWhoeverLookedAtEverything)
{
    EXPECT_EQ(told(lookAtNothing), told(lookAtEverything));
}

TEST_F(IdentStory, IsTheSameWhoeverLookedAtOneVector)
{
    EXPECT_EQ(told(lookAtNothing), told(lookAtOneVector));
}

// ---- Values ----

TEST_F(LateParametersTest, APictureNobodyAskedIsWhole)
{
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), picture->sourceCropRectAtTime(5));
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), picture->geometryCropRectAtTime(5));
    EXPECT_EQ(TransformMatrix(), picture->transformAtTime(5));
}

TEST_F(LateParametersTest, EachVectorStartsAsItShould)
{
    EXPECT_EQ(0.0, picture->translation()->at(0)->valueAtTime(-7.5));
    EXPECT_EQ(0.0, picture->rotation()->at(1)->valueAtTime(0));
    EXPECT_EQ(0.0, picture->shear()->at(1)->valueAtTime(0));
    EXPECT_EQ(1.0, picture->scale()->at(2)->valueAtTime(1e9));
    EXPECT_EQ(0.0, picture->anchor()->at(2)->valueAtTime(0));
    EXPECT_EQ(0.0, picture->sourceCropParam()->at(3)->valueAtTime(0));
    EXPECT_EQ(0.0, picture->geometryCropParam()->at(3)->valueAtTime(0));
    EXPECT_EQ(1.0, picture->opacity()->valueAtTime(0));
}

TEST_F(LateParametersTest, AnAnimatedVectorMovesThePictureThatOthersLeaveAlone)
{
    picture->translation()->at(1)->changeKeyFrame(0, 12.0);
    EXPECT_EQ(TransformMatrix::translate(0, 12, 0), picture->transformAtTime(5));
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), picture->sourceCropRectAtTime(5));
}

TEST_F(LateParametersTest, AKeyFrameChangedBehindItsParameterIsSeen)
{
    picture->translation()->at(0)->keyframeAtTime(0)->setValue(4.0);
    EXPECT_EQ(TransformMatrix::translate(4, 0, 0), picture->transformAtTime(5));
    EXPECT_EQ(4.0,
              picture->transformedDoubleParameterValueAtTime(picture->translation()->at(0), 5));
}

TEST_F(LateParametersTest, AllShownValuesAreThoseOfTheParametersInOrder)
{
    picture->geometryCropParam()->at(1)->changeKeyFrame(0, 3.0);
    picture->rotation()->at(2)->addKeyFrame(1000, 2.0);
    picture->setLeftEdgeModificationLength(20);
    picture->addLeftEdgeModification(EdgeModification(picture->opacity(), FadeInFunc()));
    double values[VisualMedia::k_numShownValues];
    // Media time 505; a quarter of the fade.
    picture->shownValuesAtTime(5, values);
    std::vector<double> expected(VisualMedia::k_numShownValues, 0.0);
    expected[5] = 3.0;
    expected[8] = 0.25;
    expected[9 + 5] = 2.0 * 505 / 1000;
    expected[9 + 8] = expected[9 + 9] = expected[9 + 10] = 1.0;
    EXPECT_EQ(expected, std::vector<double>(std::begin(values), std::end(values)));
}

TEST_F(LateParametersTest, AllShownValuesFollowWhatIsAnimatedAndLeaveTheRest)
{
    double values[VisualMedia::k_numShownValues];
    // Media time 505 of 1000.
    picture->translation()->at(0)->addKeyFrame(1000, 10.0);
    picture->shownValuesAtTime(5, values);
    EXPECT_EQ(1.0, values[8]);
    EXPECT_DOUBLE_EQ(5.05, values[9]);
    picture->opacity()->addKeyFrame(1000, 0.0);
    picture->shownValuesAtTime(5, values);
    EXPECT_DOUBLE_EQ(0.495, values[8]);
    EXPECT_DOUBLE_EQ(5.05, values[9]);
}

TEST_F(LateParametersTest, AllShownValuesOfAPictureNobodyAskedAreWritten)
{
    std::vector<double> expected(VisualMedia::k_numShownValues, 0.0);
    expected[8] = 1.0;
    expected[9 + 8] = expected[9 + 9] = expected[9 + 10] = 1.0;
    std::vector<double> values(VisualMedia::k_numShownValues, -77.0);
    picture->shownValuesAtTime(5, values.data());
    EXPECT_EQ(expected, values);
}

TEST_F(LateParametersTest, AllShownValuesOfAnUnanimatedPictureAreWritten)
{
    std::vector<double> expected(VisualMedia::k_numShownValues, 0.0);
    for (int i = 0; i < 4; ++i) {
        expected[static_cast<std::size_t>(i)] = 1.0 + i;
        picture->sourceCropParam()->at(i)->changeKeyFrame(0, 1.0 + i);
        expected[static_cast<std::size_t>(4 + i)] = 5.0 + i;
        picture->geometryCropParam()->at(i)->changeKeyFrame(0, 5.0 + i);
    }
    expected[8] = 0.5;
    picture->opacity()->changeKeyFrame(0, 0.5);
    expected[9 + 1] = 20.0;
    picture->translation()->at(1)->changeKeyFrame(0, 20.0);
    expected[9 + 7] = 0.25;
    picture->shear()->at(1)->changeKeyFrame(0, 0.25);
    expected[9 + 8] = expected[9 + 9] = expected[9 + 10] = 1.0;
    std::vector<double> values(VisualMedia::k_numShownValues, -77.0);
    picture->shownValuesAtTime(5, values.data());
    EXPECT_EQ(expected, values);
}

TEST_F(LateParametersTest, NothingDiffersBetweenTimesOfAPictureNobodyAsked)
{
    EXPECT_FALSE(ParametricTemporalDifferentiater::timesDiffer(picture, 0, 10));
}

TEST_F(LateParametersTest, AMatrixOfADeadProjectIsRefused)
{
    boost::shared_ptr<FakeProject> dying = FakeProject::create();
    OneOfEachKind const kinds(dying->weak());
    dying.reset();
    EXPECT_THROW(kinds.video->transformAtTime(0), boost::bad_weak_ptr);
    EXPECT_THROW(kinds.video->calcTransformAtTime(kinds.video.get(), 0), boost::bad_weak_ptr);
    EXPECT_THROW(kinds.video->opacity()->valueAtTime(0), boost::bad_weak_ptr);
}

// ---- Identity, copies, undo, observers ----

TEST_F(LateParametersTest, EveryoneGetsTheSameObject)
{
    VisualMedia const& seen = *picture;
    EXPECT_EQ(picture->opacity(), seen.opacity());
    EXPECT_EQ(picture->scale()->at(1), seen.scale()->at(1));
    EXPECT_EQ(picture->scale()->at(1), picture->paramWithName("scale1"));
}

TEST_F(LateParametersTest, AParameterOutlivesItsMedia)
{
    boost::shared_ptr<FakeProject> const other = FakeProject::create();
    boost::shared_ptr<InterpolatingParam<double>> const opacity =
        OneOfEachKind(other->weak()).video->opacity();
    EXPECT_EQ(1.0, opacity->valueAtTime(3));
}

TEST_F(LateParametersTest, ACopyOfAnUntouchedPictureReadsTheSame)
{
    lookAtEverything(*picture);
    boost::shared_ptr<VisualMedia> const copy = sharedClone(picture);
    EXPECT_NE(picture->opacity(), copy->opacity());
    EXPECT_EQ(1.0, copy->opacity()->valueAtTime(0));
    EXPECT_EQ("scale2", copy->scale()->at(2)->ident());
}

TEST_F(LateParametersTest, ACopyTakesOverWhatWasChanged)
{
    picture->opacity()->changeKeyFrame(0, 0.5);
    picture->rotation()->at(0)->changeKeyFrame(0, -0.0);
    picture->scale()->at(2)->identAttribute()->setValue("depth");
    picture->shear()->at(0)->interpolaterParam()->removeKeyFrame(0);
    boost::shared_ptr<VisualMedia> const copy = sharedClone(picture);
    EXPECT_EQ(0.5, copy->opacity()->valueAtTime(0));
    EXPECT_TRUE(std::signbit(copy->rotation()->at(0)->valueAtTime(0)));
    EXPECT_EQ("depth", copy->scale()->at(2)->ident());
    EXPECT_EQ(0, copy->shear()->at(0)->interpolaterParam()->numKeyFrames());
}

TEST_F(LateParametersTest, ACopyTakesOverTheNameOfAWholeVector)
{
    picture->anchor()->identAttribute()->setValue("pivot");
    EXPECT_EQ("pivot", sharedClone(picture)->anchor()->identAttribute()->value());
}

TEST_F(LateParametersTest, ACopyTakesOverTheOnlyParameterThatWasTouched)
{
    picture->scale()->at(2)->changeKeyFrame(0, 3.0);
    boost::shared_ptr<VisualMedia> const scaled = sharedClone(picture);
    EXPECT_EQ(3.0, scaled->scale()->at(2)->valueAtTime(0));
    EXPECT_EQ(1.0, scaled->scale()->at(1)->valueAtTime(0));
    EXPECT_EQ(0.0, scaled->translation()->at(0)->valueAtTime(0));
}

TEST_F(LateParametersTest, ACopyTakesOverTheOnlyCropThatWasTouched)
{
    picture->geometryCropParam()->at(3)->changeKeyFrame(0, 7.0);
    boost::shared_ptr<VisualMedia> const copy = sharedClone(picture);
    EXPECT_EQ(7.0, copy->geometryCropParam()->at(3)->valueAtTime(0));
    EXPECT_EQ(0.0, copy->sourceCropParam()->at(3)->valueAtTime(0));
    EXPECT_EQ(1.0, copy->opacity()->valueAtTime(0));
}

TEST_F(LateParametersTest, ACopyHasTheKeyFramesNobodyHasReadYet)
{
    picture->opacity()->addKeyFrame(20, 0.5);
    picture->shear()->at(1)->addKeyFrame(20, 3.0);
    picture->scale()->at(0)->removeKeyFrame(0);
    boost::shared_ptr<VisualMedia> const copy = sharedClone(picture);
    EXPECT_EQ(2, copy->opacity()->numKeyFrames());
    EXPECT_EQ(2, copy->shear()->at(1)->numKeyFrames());
    EXPECT_EQ(0, copy->scale()->at(0)->numKeyFrames());
}

TEST_F(LateParametersTest, AMovedKeyFrameIsCopied)
{
    picture->opacity()->moveKeyFrame(0, 1);
    picture->anchor()->at(0)->moveKeyFrame(0, 20);
    boost::shared_ptr<VisualMedia> const copy = sharedClone(picture);
    EXPECT_TRUE(copy->opacity()->hasKeyFrameAtTime(1));
    EXPECT_TRUE(copy->anchor()->at(0)->hasKeyFrameAtTime(20));
}

TEST_F(LateParametersTest, UndoGivesBackTheXmlOfAPictureNobodyAsked)
{
    std::string const before = xmlWithIds(*picture);
    project->execute(AddKeyFrameCmd<double>::create(picture->translation()->at(0), 30, 7.0));
    EXPECT_NE(before, xmlWithIds(*picture));
    project->undo();
    EXPECT_EQ(before, xmlWithIds(*picture));
}

TEST_F(LateParametersTest, ObserversHearOfEditsOnly)
{
    CountingObserver observer;
    picture->opacity()->attach(&observer);
    picture->transformAtTime(3);
    sharedClone(picture);
    EXPECT_EQ(0, observer.calls());
    picture->opacity()->addKeyFrame(10, 0.5);
    EXPECT_EQ(1, observer.calls());
    picture->opacity()->detach(&observer);
}

// ---- Many readers ----

TEST_F(LateParametersTest, ReadersInParallelGetTheSameObjects)
{
    OneOfEachKind const kinds(lock());
    std::string const before = xmlWithIds(*kinds.video);
    std::vector<boost::shared_ptr<VectorParam const>> scales(4);
    std::vector<std::string> texts(4);
    std::vector<std::thread> readers;
    for (std::size_t i = 0; i < scales.size(); ++i) {
        readers.emplace_back([&kinds, &scales, &texts, i] {
            VMFile const& seen = *kinds.video;
            seen.transformAtTime(3);
            texts[i] = xmlWithIds(seen);
            scales[i] = seen.scale();
            lookAtEverything(seen);
            boost::shared_ptr<VMFile> const copy(seen.clone());
            copy->opacity();
        });
    }
    for (std::thread& reader : readers)
        reader.join();
    for (std::size_t i = 0; i < scales.size(); ++i) {
        EXPECT_EQ(kinds.video->scale(), scales[i]);
        EXPECT_EQ(before, texts[i]);
    }
    EXPECT_EQ(before, xmlWithIds(*kinds.video));
}

}  // namespace
}  // namespace test
}  // namespace tarn
