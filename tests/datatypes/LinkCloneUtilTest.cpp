#include "datatypes/LinkCloneUtil.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "support/Clip.h"
#include "support/Links.h"
#include "support/Thrown.h"

#include <map>

namespace tarn {
namespace test {
namespace {

using CloneMap = std::map<boost::shared_ptr<Media const>, boost::shared_ptr<Media>>;
using DeadLink = DanglingWeakPtrException<Media const>;

class LinkCloneUtilTest : public ClipTest
{
protected:
    CloneMap all() const { return {{a, copyOfA}, {b, copyOfB}, {c, copyOfC}}; }

    boost::shared_ptr<Clip> const a = clip(0, 100);
    boost::shared_ptr<Clip> const b = clip(0, 100);
    boost::shared_ptr<Clip> const c = clip(0, 100);
    boost::shared_ptr<Clip> const copyOfA = sharedClone(a);
    boost::shared_ptr<Clip> const copyOfB = sharedClone(b);
    boost::shared_ptr<Clip> const copyOfC = sharedClone(c);
};

TEST_F(LinkCloneUtilTest, ClonesAreLinkedAsTheirOriginals)
{
    a->link(b);
    LinkCloneUtil::linkClones(all());
    EXPECT_TRUE(copyOfA->isLinkedWith(copyOfB));
    EXPECT_TRUE(copyOfB->isLinkedWith(copyOfA));
    EXPECT_FALSE(copyOfC->isLinkedWith(copyOfA));
    EXPECT_EQ(0u, linksOf(copyOfC).size());
}

TEST_F(LinkCloneUtilTest, EachLinkIsMadeOnce)
{
    a->link(b);
    b->link(c);
    LinkCloneUtil::linkClones(all());
    EXPECT_EQ(2u, linksOf(copyOfA).size());
    EXPECT_EQ(2u, linksOf(copyOfB).size());
    EXPECT_EQ(2u, linksOf(copyOfC).size());
}

TEST_F(LinkCloneUtilTest, ClonesAreNotLinkedWithOriginals)
{
    a->link(b);
    LinkCloneUtil::linkClones(all());
    EXPECT_FALSE(copyOfA->isLinkedWith(a));
    EXPECT_FALSE(copyOfA->isLinkedWith(b));
    EXPECT_EQ(1u, linksOf(a).size());
}

TEST_F(LinkCloneUtilTest, OneCloneOfAPairIsLinkedWithNothing)
{
    a->link(b);
    LinkCloneUtil::linkClones(CloneMap{{a, copyOfA}});
    EXPECT_EQ(0u, linksOf(copyOfA).size());
}

TEST_F(LinkCloneUtilTest, ClonesOfPartOfAGroupAreLinkedAmongThemselves)
{
    a->link(b);
    b->link(c);
    LinkCloneUtil::linkClones(CloneMap{{a, copyOfA}, {c, copyOfC}});
    EXPECT_TRUE(copyOfA->isLinkedWith(copyOfC));
    EXPECT_EQ(1u, linksOf(copyOfA).size());
    EXPECT_EQ(1u, linksOf(copyOfC).size());
}

TEST_F(LinkCloneUtilTest, LinksTakeNoAccountOfRanges)
{
    a->link(b);
    copyOfB->trimEnd(10);
    LinkCloneUtil::linkClones(all());
    EXPECT_TRUE(copyOfA->isLinkedWith(copyOfB));
}

TEST_F(LinkCloneUtilTest, LinkingTwiceChangesNothing)
{
    a->link(b);
    LinkCloneUtil::linkClones(all());
    LinkCloneUtil::linkClones(all());
    EXPECT_EQ(1u, linksOf(copyOfA).size());
    EXPECT_EQ(1u, linksOf(copyOfB).size());
}

TEST_F(LinkCloneUtilTest, WithoutLinksNothingIsLinked)
{
    LinkCloneUtil::linkClones(all());
    EXPECT_EQ(0u, linksOf(copyOfA).size());
    EXPECT_NO_THROW(LinkCloneUtil::linkClones(CloneMap()));
}

TEST_F(LinkCloneUtilTest, ADeadLinkOfAnOriginalIsAnError)
{
    a->link(clip(0, 100));
    EXPECT_STREQ("", thrownBy<DeadLink>([&] { LinkCloneUtil::linkClones(all()); }).what());
}

TEST_F(LinkCloneUtilTest, TheReversedMapLeadsFromCloneToOriginal)
{
    auto const reversed = LinkCloneUtil::reverseCloneMap(all());
    ASSERT_EQ(3u, reversed->size());
    EXPECT_EQ(a, reversed->at(copyOfA));
    EXPECT_EQ(b, reversed->at(copyOfB));
    EXPECT_EQ(c, reversed->at(copyOfC));
}

TEST_F(LinkCloneUtilTest, TheReversedMapOfNothingIsEmpty)
{
    EXPECT_TRUE(LinkCloneUtil::reverseCloneMap(CloneMap())->empty());
}

}  // namespace
}  // namespace test
}  // namespace tarn
