#include "edgemods/EdgeModCloneUtil.h"

#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/LinearSlideInFunc.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "effects/Blur.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeParametric.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"
#include "timeline/VisualMixer.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

class EdgeModCloneUtilTest : public ::testing::Test
{
protected:
    boost::shared_ptr<IMFile> still() const
    {
        return boost::shared_ptr<IMFile>(
            new IMFile(0, 100, m_project->weak(), Rect<float>(0, 0, 64, 48), "still"));
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<IMFile> m_source = still();
    boost::shared_ptr<IMFile> m_target = still();
};

TEST_F(EdgeModCloneUtilTest, FindsTheFirstOfAName)
{
    FakeParametric owner(m_project);
    owner.addEmpty();
    owner.add("other");
    boost::shared_ptr<InterpolatingParam<double>> const first = owner.add("wanted");
    owner.add("wanted");
    EXPECT_EQ(first, EdgeModCloneUtil::findDoubleParamWithName(&owner, "wanted"));
}

TEST_F(EdgeModCloneUtilTest, FindsNothingOfAnotherNameOrType)
{
    Blur const blur(m_project->weak());
    EXPECT_TRUE(blur.paramWithName("intensity"));
    EXPECT_FALSE(EdgeModCloneUtil::findDoubleParamWithName(&blur, "intensity"));
    EXPECT_FALSE(EdgeModCloneUtil::findDoubleParamWithName(&blur, "nobody"));
}

TEST_F(EdgeModCloneUtilTest, FindsEveryPartOfAMediasTransform)
{
    EXPECT_EQ(m_source->translation()->at(2),
              EdgeModCloneUtil::findDoubleParamWithName(m_source.get(), "translation2"));
    EXPECT_EQ(m_source->shear()->at(1),
              EdgeModCloneUtil::findDoubleParamWithName(m_source.get(), "shear1"));
    EXPECT_EQ(m_source->opacity(),
              EdgeModCloneUtil::findDoubleParamWithName(m_source.get(), "opacity"));
}

TEST_F(EdgeModCloneUtilTest, MakesTheSameFunctionForTheTargetsParameter)
{
    EdgeModification const made = EdgeModCloneUtil::createEdgeMod(
        m_target.get(), EdgeModification(m_source->opacity(), LinearSlideInFunc(50)));
    EXPECT_EQ(m_target->opacity(), made.parameter());
    EXPECT_EQ("LinearSlideInFunc", made.func().ident());
    EXPECT_EQ(50, made.func().execute(0, 0));
}

TEST_F(EdgeModCloneUtilTest, MakesOneOfNothingWhereTheTargetHasNoSuchParameter)
{
    OneOfEachKind const kinds(m_project->weak());
    EdgeModification const made = EdgeModCloneUtil::createEdgeMod(
        kinds.sound.get(), EdgeModification(m_source->opacity(), FadeOutFunc()));
    EXPECT_FALSE(made.parameter());
    EXPECT_EQ("FadeOutFunc", made.func().ident());
}

TEST_F(EdgeModCloneUtilTest, SetsUpEachEdgeInOrder)
{
    m_source->addLeftEdgeModification(EdgeModification(m_source->opacity(), FadeInFunc()));
    m_source->addLeftEdgeModification(EdgeModification(m_source->scale()->at(0), FadeInFunc()));
    m_source->addRightEdgeModification(EdgeModification(m_source->opacity(), FadeOutFunc()));
    m_source->setLeftEdgeModificationLength(20);
    EdgeModCloneUtil::setupLeftMods(m_target.get(), *m_source);
    ASSERT_EQ(2u, m_target->leftEdgeModifications().size());
    EXPECT_EQ(m_target->opacity(), m_target->leftEdgeModifications().front().parameter());
    EXPECT_EQ(m_target->scale()->at(0), m_target->leftEdgeModifications().back().parameter());
    EXPECT_TRUE(m_target->rightEdgeModifications().empty());
    EXPECT_EQ(0, m_target->leftEdgeModificationLength());

    EdgeModCloneUtil::setupRightMods(m_target.get(), *m_source);
    ASSERT_EQ(1u, m_target->rightEdgeModifications().size());
    EXPECT_EQ("FadeOutFunc", m_target->rightEdgeModifications().front().func().ident());
}

TEST_F(EdgeModCloneUtilTest, LeavesOutWhatTheTargetHasNoParameterFor)
{
    OneOfEachKind const kinds(m_project->weak());
    m_source->addLeftEdgeModification(EdgeModification(m_source->opacity(), FadeInFunc()));
    m_source->addLeftEdgeModification(EdgeModification());
    m_source->addRightEdgeModification(EdgeModification(m_source->opacity(), FadeInFunc()));
    EdgeModCloneUtil::setupLeftMods(kinds.sound.get(), *m_source);
    EdgeModCloneUtil::setupRightMods(kinds.sound.get(), *m_source);
    EXPECT_TRUE(kinds.sound->leftEdgeModifications().empty());
    EXPECT_TRUE(kinds.sound->rightEdgeModifications().empty());
}

TEST_F(EdgeModCloneUtilTest, RefusesASecondModificationOfTheTargetsParameter)
{
    m_source->addLeftEdgeModification(EdgeModification(m_source->opacity(), FadeInFunc()));
    EdgeModCloneUtil::setupLeftMods(m_target.get(), *m_source);
    EXPECT_STREQ("trying to add an edge mod for a parameter already with a mod",
                 thrownBy<TarnMediaLibException>([&] {
                     EdgeModCloneUtil::setupLeftMods(m_target.get(), *m_source);
                 }).what());
}

TEST_F(EdgeModCloneUtilTest, ACloneBendsItsOwnParameterOnly)
{
    m_source->addLeftEdgeModification(EdgeModification(m_source->opacity(), FadeInFunc()));
    m_source->addRightEdgeModification(EdgeModification(m_source->opacity(), FadeOutFunc()));
    m_source->setLeftEdgeModificationLength(20);
    m_source->setRightEdgeModificationLength(40);
    boost::shared_ptr<IMFile> const clone = sharedClone<IMFile>(m_source);
    EXPECT_EQ(clone->opacity(), clone->leftEdgeModifications().front().parameter());
    EXPECT_EQ(0.25, clone->transformedDoubleParameterValueAtTime(clone->opacity(), 5));
    EXPECT_EQ(0.75, clone->transformedDoubleParameterValueAtTime(clone->opacity(), 70));
    EXPECT_EQ(1, clone->transformedDoubleParameterValueAtTime(m_source->opacity(), 5));
}

TEST_F(EdgeModCloneUtilTest, ACloneRemembersTheLengthsAskedFor)
{
    m_source->setLeftEdgeModificationLength(80);
    m_source->setRightEdgeModificationLength(60);
    boost::shared_ptr<IMFile> const clone = sharedClone<IMFile>(m_source);
    EXPECT_EQ(50, clone->leftEdgeModificationLength());
    clone->trimEnd(-40);
    EXPECT_EQ(80, clone->leftEdgeModificationLength());
    EXPECT_EQ(60, clone->rightEdgeModificationLength());
}

TEST_F(EdgeModCloneUtilTest, AClonesSlideMeasuresTheClone)
{
    boost::shared_ptr<VisualMixer> const mixer(new VisualMixer(640, 480, m_project->weak()));
    AuxEdgeModInfo info;
    info.setVisualMixer(mixer);
    info.setVisualMedia(m_source);
    MixerXSlideInFunc slide;
    slide.setAuxInfo(info);
    m_source->addLeftEdgeModification(EdgeModification(m_source->translation()->at(0), slide));

    boost::shared_ptr<IMFile> const clone = sharedClone<IMFile>(m_source);
    EdgeModification const cloned = clone->leftEdgeModifications().front();
    EXPECT_EQ(clone, cloned.func().auxInfo()->visualMedia().lock());
    EXPECT_EQ(mixer, cloned.func().auxInfo()->visualMixer().lock());
    EdgeModification const original = m_source->leftEdgeModifications().front();
    EXPECT_EQ(m_source, original.func().auxInfo()->visualMedia().lock());
}

TEST_F(EdgeModCloneUtilTest, AClonesSlideOfNoMixerStaysSo)
{
    m_source->addRightEdgeModification(
        EdgeModification(m_source->translation()->at(0), MixerXSlideInFunc()));
    boost::shared_ptr<IMFile> const clone = sharedClone<IMFile>(m_source);
    EdgeModification const cloned = clone->rightEdgeModifications().front();
    EXPECT_FALSE(cloned.func().auxInfo()->visualMedia().lock());
    EXPECT_FALSE(cloned.func().auxInfo()->visualMixer().lock());
}

TEST_F(EdgeModCloneUtilTest, CloningNeedsALivingProject)
{
    m_project.reset();
    EXPECT_THROW(m_source->clone(), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace test
}  // namespace tarn
