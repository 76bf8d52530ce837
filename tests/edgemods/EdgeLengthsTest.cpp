#include "edgemods/EdgeModifiable.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/CountingObserver.h"
#include "support/FakeProject.h"
#include "support/Thrown.h"
#include "timeline/IMFile.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace test {
namespace {

using Lengths = std::pair<long long, long long>;

class EdgeLengthsTest : public ::testing::Test
{
protected:
    boost::shared_ptr<IMFile> still(long long duration) const
    {
        return boost::shared_ptr<IMFile>(
            new IMFile(0, duration, m_project->weak(), Rect<float>(0, 0, 64, 48), "still"));
    }
    static Lengths lengthsOf(EdgeModifiable const& media)
    {
        return Lengths(media.leftEdgeModificationLength(), media.rightEdgeModificationLength());
    }
    /// What a media of that duration tells after those lengths were asked for.
    Lengths lengths(long long duration, long long left, long long right) const
    {
        boost::shared_ptr<IMFile> const media = still(duration);
        media->setLeftEdgeModificationLength(left);
        media->setRightEdgeModificationLength(right);
        return lengthsOf(*media);
    }
    EdgeModification fadeIn(boost::shared_ptr<Parameter<double> const> const& parameter) const
    {
        return EdgeModification(parameter, FadeInFunc());
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<IMFile> m_media = still(100);
    boost::shared_ptr<InterpolatingParam<double>> m_opacity = m_media->opacity();
    CountingObserver m_observer;
};

TEST_F(EdgeLengthsTest, StartWithoutLengthAndModifications)
{
    EXPECT_EQ(Lengths(0, 0), lengthsOf(*m_media));
    EXPECT_TRUE(m_media->leftEdgeModifications().empty());
    EXPECT_TRUE(m_media->rightEdgeModifications().empty());
}

TEST_F(EdgeLengthsTest, LengthsWhoseSumIsNoNumber)
{
    long long const most = std::numeric_limits<long long>::max();
    long long const least = std::numeric_limits<long long>::min();
    EXPECT_EQ(Lengths(50, 50), lengths(100, most, most));
    EXPECT_EQ(Lengths(99, 1), lengths(100, most, 1));
    EXPECT_EQ(Lengths(1, 99), lengths(100, 1, most));
    // Less than nothing fits into any media.
    EXPECT_EQ(Lengths(least, least), lengths(100, least, least));
    EXPECT_EQ(Lengths(-1, least), lengths(100, -1, least));
}

TEST_F(EdgeLengthsTest, BothAreKeptWhereTheyFit)
{
    EXPECT_EQ(Lengths(30, 30), lengths(100, 30, 30));
    EXPECT_EQ(Lengths(60, 40), lengths(100, 60, 40));
    EXPECT_EQ(Lengths(100, 0), lengths(100, 100, 0));
}

TEST_F(EdgeLengthsTest, TheShorterIsKeptAndTheLongerGetsTheRest)
{
    EXPECT_EQ(Lengths(60, 40), lengths(100, 80, 40));
    EXPECT_EQ(Lengths(40, 60), lengths(100, 40, 80));
    EXPECT_EQ(Lengths(50, 50), lengths(100, 80, 50));
}

TEST_F(EdgeLengthsTest, BothGetHalfWhereNotEvenTheShorterFitsInHalf)
{
    EXPECT_EQ(Lengths(50, 50), lengths(100, 80, 60));
    EXPECT_EQ(Lengths(50, 50), lengths(100, 60, 80));
    EXPECT_EQ(Lengths(50, 50), lengths(100, 70, 70));
    EXPECT_EQ(Lengths(50, 50), lengths(101, 80, 60));
}

TEST_F(EdgeLengthsTest, OneEdgeAloneIsAsLongAsTheMediaAtMost)
{
    EXPECT_EQ(Lengths(100, 0), lengths(100, 200, 0));
    EXPECT_EQ(Lengths(0, 100), lengths(100, 0, 200));
}

TEST_F(EdgeLengthsTest, NegativeLengthsGoThroughTheSameRule)
{
    // 100 >= -10 + 20. Then 100 < -10 + 200, twice the shorter is -20: the rest is 100 + 10.
    EXPECT_EQ(Lengths(-10, 20), lengths(100, -10, 20));
    EXPECT_EQ(Lengths(-10, 110), lengths(100, -10, 200));
}

TEST_F(EdgeLengthsTest, WhatWasAskedForIsNotForgottenByTrims)
{
    // Trimmed to 50: twice 40 does not fit, half of 50 each.
    m_media->setLeftEdgeModificationLength(80);
    m_media->setRightEdgeModificationLength(40);
    m_media->trimEnd(50);
    EXPECT_EQ(Lengths(25, 25), lengthsOf(*m_media));
    m_media->trimEnd(-50);
    EXPECT_EQ(Lengths(60, 40), lengthsOf(*m_media));
    m_media->trimEnd(-100);
    EXPECT_EQ(Lengths(80, 40), lengthsOf(*m_media));
}

TEST_F(EdgeLengthsTest, AMediaTellsOfANewLength)
{
    m_media->attach(&m_observer);
    m_media->setLeftEdgeModificationLength(5);
    EXPECT_EQ(1, m_observer.calls());
    m_media->setRightEdgeModificationLength(5);
    EXPECT_EQ(2, m_observer.calls());
    m_media->detach(&m_observer);
}

TEST_F(EdgeLengthsTest, ModificationsStandInOrderOfAdding)
{
    m_media->addLeftEdgeModification(fadeIn(m_media->scale()->at(0)));
    m_media->addLeftEdgeModification(fadeIn(m_opacity));
    ASSERT_EQ(2u, m_media->leftEdgeModifications().size());
    EXPECT_EQ(m_media->scale()->at(0), m_media->leftEdgeModifications().front().parameter());
    EXPECT_EQ(m_opacity, m_media->leftEdgeModifications().back().parameter());
    EXPECT_TRUE(m_media->rightEdgeModifications().empty());
}

TEST_F(EdgeLengthsTest, OneParameterMayBeModifiedOnBothEdges)
{
    m_media->addLeftEdgeModification(fadeIn(m_opacity));
    m_media->addRightEdgeModification(EdgeModification(m_opacity, FadeOutFunc()));
    EXPECT_EQ("FadeInFunc", m_media->leftEdgeModifications().front().func().ident());
    EXPECT_EQ("FadeOutFunc", m_media->rightEdgeModifications().front().func().ident());
}

TEST_F(EdgeLengthsTest, OneParameterIsModifiedOncePerEdge)
{
    char const* const k_message = "trying to add an edge mod for a parameter already with a mod";
    m_media->addLeftEdgeModification(fadeIn(m_opacity));
    m_media->addRightEdgeModification(fadeIn(m_opacity));
    m_media->attach(&m_observer);
    EXPECT_STREQ(k_message,
                 thrownBy<TarnMediaLibException>([&] {
                     m_media->addLeftEdgeModification(EdgeModification(m_opacity, FadeOutFunc()));
                 }).what());
    EXPECT_STREQ(k_message, thrownBy<TarnMediaLibException>([&] {
                                m_media->addRightEdgeModification(fadeIn(m_opacity));
                            }).what());
    EXPECT_EQ(1u, m_media->leftEdgeModifications().size());
    EXPECT_EQ("FadeInFunc", m_media->leftEdgeModifications().front().func().ident());
    EXPECT_EQ(1u, m_media->rightEdgeModifications().size());
    EXPECT_EQ(0, m_observer.calls());
    m_media->detach(&m_observer);
}

TEST_F(EdgeLengthsTest, AModificationOfNothingIsTaken)
{
    m_media->addLeftEdgeModification(EdgeModification());
    EXPECT_EQ(1u, m_media->leftEdgeModifications().size());
    EXPECT_EQ(1, m_media->transformedDoubleParameterValueAtTime(m_opacity, 0));
}

TEST_F(EdgeLengthsTest, RemovingGivesTheModificationBack)
{
    m_media->addLeftEdgeModification(fadeIn(m_opacity));
    m_media->addRightEdgeModification(EdgeModification(m_opacity, FadeOutFunc()));
    EXPECT_EQ("FadeOutFunc", m_media->removeRightEdgeModification(m_opacity).func().ident());
    EXPECT_TRUE(m_media->rightEdgeModifications().empty());
    EdgeModification const left = m_media->removeLeftEdgeModification(m_opacity);
    EXPECT_EQ(m_opacity, left.parameter());
    EXPECT_TRUE(m_media->leftEdgeModifications().empty());
}

TEST_F(EdgeLengthsTest, RemovingWhatIsNotThereIsRefused)
{
    m_media->addLeftEdgeModification(fadeIn(m_media->scale()->at(0)));
    EXPECT_STREQ("trying to remove non existant left edge mod",
                 thrownBy<TarnMediaLibException>([&] {
                     m_media->removeLeftEdgeModification(m_opacity);
                 }).what());
    EXPECT_STREQ("trying to remove non existant right edge mod",
                 thrownBy<TarnMediaLibException>([&] {
                     m_media->removeRightEdgeModification(m_media->scale()->at(0));
                 }).what());
    EXPECT_EQ(1u, m_media->leftEdgeModifications().size());
}

TEST_F(EdgeLengthsTest, AMediaTellsOfAddingAndRemoving)
{
    m_media->attach(&m_observer);
    m_media->addLeftEdgeModification(fadeIn(m_opacity));
    EXPECT_EQ(1, m_observer.calls());
    m_media->addRightEdgeModification(fadeIn(m_opacity));
    EXPECT_EQ(2, m_observer.calls());
    m_media->removeLeftEdgeModification(m_opacity);
    EXPECT_EQ(3, m_observer.calls());
    m_media->removeRightEdgeModification(m_opacity);
    EXPECT_EQ(4, m_observer.calls());
    EXPECT_THROW(m_media->removeRightEdgeModification(m_opacity), TarnMediaLibException);
    EXPECT_EQ(4, m_observer.calls());
    m_media->detach(&m_observer);
}

TEST_F(EdgeLengthsTest, QueriesNeedALivingProject)
{
    m_project.reset();
    EXPECT_THROW(m_media->leftEdgeModificationLength(), boost::bad_weak_ptr);
    EXPECT_THROW(m_media->rightEdgeModificationLength(), boost::bad_weak_ptr);
    EXPECT_THROW(m_media->leftEdgeModifications(), boost::bad_weak_ptr);
    EXPECT_THROW(m_media->rightEdgeModifications(), boost::bad_weak_ptr);
}

TEST_F(EdgeLengthsTest, LengthsWhoseSumIsNoNumberGoThroughTheSameRule)
{
    long long const k_max = std::numeric_limits<long long>::max();
    long long const k_min = std::numeric_limits<long long>::min();
    EXPECT_EQ(Lengths(50, 50), lengths(100, k_max, k_max));
    EXPECT_EQ(Lengths(k_min, k_min), lengths(100, k_min, k_min));
    // Twice -5e18 is no number either, but certainly fits: the longer one gets the rest.
    long long const k_wild = -5000000000000000000;
    EXPECT_EQ(Lengths(k_wild, 100 - k_wild), lengths(100, k_wild, k_max));
}

}  // namespace
}  // namespace test
}  // namespace tarn
