#include "effects/VectorEffectable.h"

#include "effects/Blur.h"
#include "effects/CompositeEffect.h"
#include "effects/ParametricEffectableUtil.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "support/FakeProject.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

using EffectValueException = ValueException<boost::shared_ptr<Effect const>>;

/// A list of the effects a, b and c.
class VectorEffectableTest : public ::testing::Test
{
protected:
    VectorEffectableTest()
    {
        m_list.addEffect(m_a);
        m_list.addEffect(m_b);
        m_list.addEffect(m_c);
    }

    boost::shared_ptr<Effect> effect(std::string const& name) const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect(name, m_project->weak()));
    }
    /// The names in order; '-' for a null effect.
    static std::string names(VectorEffectable const& list)
    {
        std::string result;
        for (int i = 0; i < list.numEffects(); ++i)
            result += list.effectAtIndex(i) ? list.effectAtIndex(i)->name() : "-";
        return result;
    }
    template <class Action>
    static long long refusedIndex(Action const& action)
    {
        return thrownBy<IndexException>(action).index();
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<Effect> m_a = effect("a");
    boost::shared_ptr<Effect> m_b = effect("b");
    boost::shared_ptr<Effect> m_c = effect("c");
    VectorEffectable m_list;
};

TEST_F(VectorEffectableTest, StartsEmpty)
{
    EXPECT_EQ("", m_list.VectorEffectable::description());
    EXPECT_EQ(0, VectorEffectable().numEffects());
}

TEST_F(VectorEffectableTest, AddsAtTheEndAndTellsTheIndex)
{
    EXPECT_EQ(3, m_list.addEffect(effect("d")));
    EXPECT_EQ("abcd", names(m_list));
}

TEST_F(VectorEffectableTest, InsertsBeforeAnIndex)
{
    m_list.insertEffect(effect("x"), 1);
    EXPECT_EQ("axbc", names(m_list));
    m_list.insertEffect(effect("y"), 0);
    EXPECT_EQ("yaxbc", names(m_list));
}

TEST_F(VectorEffectableTest, InsertingAtTheSizeAppends)
{
    m_list.insertEffect(effect("x"), 3);
    EXPECT_EQ("abcx", names(m_list));
}

TEST_F(VectorEffectableTest, InsertingElsewhereIsRefused)
{
    EXPECT_EQ(4, refusedIndex([&] { m_list.insertEffect(effect("x"), 4); }));
    EXPECT_EQ(-1, refusedIndex([&] { m_list.insertEffect(effect("x"), -1); }));
    EXPECT_EQ("abc", names(m_list));
}

TEST_F(VectorEffectableTest, TakesANullEffect)
{
    EXPECT_EQ(3, m_list.addEffect(boost::shared_ptr<Effect>()));
    m_list.insertEffect(boost::shared_ptr<Effect>(), 0);
    EXPECT_EQ("-abc-", names(m_list));
}

TEST_F(VectorEffectableTest, SwapsTwo)
{
    m_list.swapEffectOrder(0, 2);
    EXPECT_EQ("cba", names(m_list));
}

TEST_F(VectorEffectableTest, SwappingOneWithItselfChangesNothing)
{
    m_list.swapEffectOrder(0, 0);
    EXPECT_EQ("abc", names(m_list));
}

TEST_F(VectorEffectableTest, SwappingRefusesTheFirstBadIndex)
{
    EXPECT_EQ(3, refusedIndex([&] { m_list.swapEffectOrder(3, -1); }));
    EXPECT_EQ(-1, refusedIndex([&] { m_list.swapEffectOrder(-1, 3); }));
    EXPECT_EQ("abc", names(m_list));
}

TEST_F(VectorEffectableTest, SwappingRefusesTheSecondIndexOnlyThen)
{
    EXPECT_EQ(3, refusedIndex([&] { m_list.swapEffectOrder(0, 3); }));
    EXPECT_EQ(-1, refusedIndex([&] { m_list.swapEffectOrder(2, -1); }));
    EXPECT_EQ(0, refusedIndex([&] { VectorEffectable().swapEffectOrder(0, 0); }));
}

TEST_F(VectorEffectableTest, RemovingByIndexGivesTheOneThatFollowed)
{
    RemovedEffect const removed = m_list.removeEffect(0);
    EXPECT_EQ(m_b, removed.first);
    EXPECT_EQ(0, removed.second);
    EXPECT_EQ("bc", names(m_list));
}

TEST_F(VectorEffectableTest, RemovingTheLastByIndexGivesNull)
{
    RemovedEffect const removed = m_list.removeEffect(2);
    EXPECT_FALSE(removed.first);
    EXPECT_EQ(2, removed.second);
    EXPECT_EQ("ab", names(m_list));
}

TEST_F(VectorEffectableTest, RemovingRefusesABadIndex)
{
    EXPECT_EQ(3, refusedIndex([&] { m_list.removeEffect(3); }));
    EXPECT_EQ(-1, refusedIndex([&] { m_list.removeEffect(-1); }));
    EXPECT_EQ("abc", names(m_list));
}

TEST_F(VectorEffectableTest, RemovingByPointerGivesTheEffectItself)
{
    RemovedEffect const removed = m_list.removeEffect(boost::shared_ptr<Effect const>(m_b));
    EXPECT_EQ(m_b, removed.first);
    EXPECT_EQ(1, removed.second);
    EXPECT_EQ("ac", names(m_list));
}

TEST_F(VectorEffectableTest, RemovingByPointerTakesTheFirstOfTwoEntries)
{
    m_list.addEffect(m_b);
    EXPECT_EQ(1, m_list.removeEffect(boost::shared_ptr<Effect const>(m_b)).second);
    EXPECT_EQ("acb", names(m_list));
}

TEST_F(VectorEffectableTest, RemovingANullEffectIsRefusedBeforeTheListIsLookedAt)
{
    m_list.addEffect(boost::shared_ptr<Effect>());
    EffectValueException const refusal = thrownBy<EffectValueException>(
        [&] { m_list.removeEffect(boost::shared_ptr<Effect const>()); });
    EXPECT_STREQ("trying to remove a null effect", refusal.what());
    EXPECT_FALSE(refusal.value());
    EXPECT_EQ("abc-", names(m_list));
}

TEST_F(VectorEffectableTest, RemovingAStrangerIsRefused)
{
    boost::shared_ptr<Effect const> const stranger = effect("a");
    EffectValueException const refusal =
        thrownBy<EffectValueException>([&] { m_list.removeEffect(stranger); });
    EXPECT_STREQ("effect to remove isn't found", refusal.what());
    EXPECT_EQ(stranger, refusal.value());
    EXPECT_EQ("abc", names(m_list));
}

TEST_F(VectorEffectableTest, FindsByIndexInBothForms)
{
    VectorEffectable const& constList = m_list;
    EXPECT_EQ(m_c, m_list.effectAtIndex(2));
    EXPECT_EQ(m_c, constList.effectAtIndex(2));
}

TEST_F(VectorEffectableTest, FindingRefusesABadIndexInBothForms)
{
    VectorEffectable const& constList = m_list;
    EXPECT_EQ(3, refusedIndex([&] { m_list.effectAtIndex(3); }));
    EXPECT_EQ(-1, refusedIndex([&] { m_list.effectAtIndex(-1); }));
    EXPECT_EQ(3, refusedIndex([&] { constList.effectAtIndex(3); }));
    EXPECT_EQ(-1, refusedIndex([&] { constList.effectAtIndex(-1); }));
}

TEST_F(VectorEffectableTest, ACloneHasClonesOfTheEffects)
{
    m_list.addEffect(boost::shared_ptr<Effect>());
    boost::shared_ptr<VectorEffectable> const copy(m_list.clone());
    EXPECT_EQ("abc-", names(*copy));
    EXPECT_NE(m_a, copy->effectAtIndex(0));
    copy->removeEffect(0);
    EXPECT_EQ("abc-", names(m_list));
}

TEST_F(VectorEffectableTest, ListsTheParametersOfItsEffectsInOrder)
{
    boost::shared_ptr<Effect> const first(new Blur(m_project->weak()));
    boost::shared_ptr<Effect> const second(new Blur(m_project->weak()));
    m_list.insertEffect(second, 0);
    m_list.insertEffect(first, 0);
    m_list.addEffect(boost::shared_ptr<Effect>());

    MTVector<boost::shared_ptr<ParameterInterface const>> parameters(m_project->weak());
    ParametricEffectableUtil::addEffectablesParameters(&m_list, &parameters);
    ASSERT_EQ(4u, parameters.size());
    EXPECT_EQ(first->parameters().front(), parameters[0]);
    EXPECT_EQ(first->parameters().back(), parameters[1]);
    EXPECT_EQ(second->parameters().front(), parameters[2]);
    EXPECT_EQ(second->parameters().back(), parameters[3]);
}

}  // namespace
}  // namespace test
}  // namespace tarn
