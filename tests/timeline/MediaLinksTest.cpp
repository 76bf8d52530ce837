#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "support/Clip.h"
#include "support/CountingObserver.h"
#include "support/Links.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <set>
#include <vector>

namespace tarn {
namespace test {
namespace {

using DeadLink = DanglingWeakPtrException<Media const>;
using Medias = std::vector<boost::shared_ptr<Media const>>;

std::set<Media const*> linkedWith(boost::shared_ptr<Media const> const& media)
{
    std::set<Media const*> links;
    for (boost::shared_ptr<Media const> const& link : linksOf(media))
        links.insert(link.get());
    return links;
}

template <class Action>
std::string refusal(Action const& action)
{
    return thrownBy<TarnMediaLibException>(action).what();
}

class MediaLinksTest : public ClipTest
{
protected:
    ~MediaLinksTest() override { a->detach(&observer); }

    boost::shared_ptr<Clip> const a = clip(0, 100);
    boost::shared_ptr<Clip> const b = clip(0, 100);
    boost::shared_ptr<Clip> const c = clip(0, 100);
    boost::shared_ptr<Clip> const d = clip(0, 100);
    CountingObserver observer;
};

// ---- link ----

TEST_F(MediaLinksTest, ALinkGoesBothWays)
{
    a->link(b);
    EXPECT_EQ(Medias{b}, linksOf(a));
    EXPECT_EQ(Medias{a}, linksOf(b));
    EXPECT_TRUE(a->isLinkedWith(b));
    EXPECT_TRUE(b->isLinkedWith(a));
    EXPECT_FALSE(a->isLinkedWith(c));
}

TEST_F(MediaLinksTest, ThreeLinkedInARowAreAMesh)
{
    a->link(b);
    b->link(c);
    EXPECT_EQ((std::set<Media const*>{b.get(), c.get()}), linkedWith(a));
    EXPECT_EQ((std::set<Media const*>{a.get(), c.get()}), linkedWith(b));
    EXPECT_EQ((std::set<Media const*>{a.get(), b.get()}), linkedWith(c));
    EXPECT_EQ(2u, linksOf(a).size());
    EXPECT_EQ(2u, linksOf(b).size());
    EXPECT_EQ(2u, linksOf(c).size());
}

TEST_F(MediaLinksTest, TwoLinkedPairsBecomeOneMesh)
{
    a->link(b);
    c->link(d);
    a->link(c);
    EXPECT_EQ((std::set<Media const*>{b.get(), c.get(), d.get()}), linkedWith(a));
    EXPECT_EQ((std::set<Media const*>{a.get(), c.get(), d.get()}), linkedWith(b));
    EXPECT_EQ((std::set<Media const*>{a.get(), b.get(), d.get()}), linkedWith(c));
    EXPECT_EQ((std::set<Media const*>{a.get(), b.get(), c.get()}), linkedWith(d));
}

TEST_F(MediaLinksTest, LinkingAgainChangesNothing)
{
    a->link(b);
    a->link(b);
    b->link(a);
    EXPECT_EQ(Medias{b}, linksOf(a));
    EXPECT_EQ(Medias{a}, linksOf(b));
}

TEST_F(MediaLinksTest, NoMediaLinksWithItself)
{
    a->link(a);
    EXPECT_TRUE(linksOf(a).empty());
    EXPECT_FALSE(a->isLinkedWith(a));
}

TEST_F(MediaLinksTest, LinkingWithNothingChangesNothing)
{
    a->link(boost::shared_ptr<Media>());
    EXPECT_TRUE(linksOf(a).empty());
}

TEST_F(MediaLinksTest, ALinkTakesNoAccountOfRanges)
{
    boost::shared_ptr<Clip> const shorter = clip(0, 99);
    a->link(shorter);
    EXPECT_TRUE(a->isLinkedWith(shorter));
}

TEST_F(MediaLinksTest, ALinkDoesNotNotify)
{
    a->attach(&observer);
    a->link(b);
    EXPECT_EQ(0, observer.calls());
}

TEST_F(MediaLinksTest, ALinkKeepsNoMediaAlive)
{
    boost::shared_ptr<Clip> mortal = clip(0, 100);
    boost::weak_ptr<Clip> const watched = mortal;
    a->link(mortal);
    mortal.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(MediaLinksTest, LinksAreListedInOrderOfLinking)
{
    a->addLink(c);
    a->addLink(b);
    a->addLink(d);
    EXPECT_EQ((Medias{c, b, d}), linksOf(a));
}

// ---- addLink ----

TEST_F(MediaLinksTest, AnAddedLinkGoesOneWay)
{
    a->addLink(b);
    EXPECT_EQ(Medias{b}, linksOf(a));
    EXPECT_TRUE(linksOf(b).empty());
    EXPECT_TRUE(a->isLinkedWith(b));
    EXPECT_FALSE(b->isLinkedWith(a));
}

TEST_F(MediaLinksTest, AnAddedLinkNotifiesItsMedia)
{
    a->attach(&observer);
    a->addLink(b);
    EXPECT_EQ(1, observer.calls());
    b->addLink(a);
    EXPECT_EQ(1, observer.calls());
}

TEST_F(MediaLinksTest, NoLinkToItselfCanBeAdded)
{
    EXPECT_EQ("unable to link media", refusal([&] { a->addLink(a); }));
    EXPECT_TRUE(linksOf(a).empty());
}

TEST_F(MediaLinksTest, NoLinkCanBeAddedTwice)
{
    a->addLink(b);
    EXPECT_EQ("unable to link media", refusal([&] { a->addLink(b); }));
    EXPECT_EQ(Medias{b}, linksOf(a));
}

TEST_F(MediaLinksTest, MediasOfUnequalLengthAreNotLinkable)
{
    boost::shared_ptr<Clip> const shorter = clip(0, 99);
    EXPECT_FALSE(a->isLinkableWith(shorter));
    EXPECT_EQ("unable to link media", refusal([&] { a->addLink(shorter); }));
    EXPECT_TRUE(linksOf(a).empty());
}

TEST_F(MediaLinksTest, MediasOfUnequalTrackStartAreNotLinkable)
{
    b->setTrackStart(1);
    EXPECT_FALSE(a->isLinkableWith(b));
    EXPECT_EQ("unable to link media", refusal([&] { a->addLink(b); }));
}

TEST_F(MediaLinksTest, MediasOfUnequalMediaStartAreNotLinkable)
{
    EXPECT_FALSE(a->isLinkableWith(clip(1, 100)));
}

TEST_F(MediaLinksTest, MediasOfUnequalMediaLengthAreNotLinkable)
{
    // 200 units at natural speed and 100 at half of it.
    boost::shared_ptr<Clip> const longer = clip(0, 200);
    a->stretch(2.0);
    EXPECT_EQ(longer->trackRange(), a->trackRange());
    EXPECT_FALSE(a->isLinkableWith(longer));
}

TEST_F(MediaLinksTest, MediasOfEqualRangesAreLinkable)
{
    EXPECT_TRUE(a->isLinkableWith(b));
    EXPECT_FALSE(a->isLinkableWith(a));
    a->link(b);
    EXPECT_FALSE(a->isLinkableWith(b));
}

TEST_F(MediaLinksTest, AMediaThatNothingOwnsIsLinkable)
{
    Clip unowned(Range<long long>(0, 100), 0, 1000, project->weak());
    EXPECT_TRUE(unowned.isLinkableWith(a));
    EXPECT_TRUE(a->isLinkableWith(b));
}

TEST_F(MediaLinksTest, ScalarsPlayNoPartInLinking)
{
    // Both fill 200 units with the media range (0, 100).
    a->stretch(2.0);
    b->stretch(2.0);
    EXPECT_TRUE(a->isLinkableWith(b));
}

// ---- removeLink ----

TEST_F(MediaLinksTest, ARemovedLinkGoesOneWay)
{
    a->link(b);
    a->removeLink(b);
    EXPECT_TRUE(linksOf(a).empty());
    EXPECT_EQ(Medias{a}, linksOf(b));
}

TEST_F(MediaLinksTest, ARemovedLinkLeavesTheOthersInOrder)
{
    a->addLink(b);
    a->addLink(c);
    a->addLink(d);
    a->removeLink(c);
    EXPECT_EQ((Medias{b, d}), linksOf(a));
}

TEST_F(MediaLinksTest, ARemovedLinkNotifiesItsMediaOfListAndEdit)
{
    a->link(b);
    a->attach(&observer);
    a->removeLink(b);
    EXPECT_EQ(2, observer.calls());
}

TEST_F(MediaLinksTest, NoLinkWithItselfCanBeRemoved)
{
    EXPECT_EQ("unable to remove media link with itself", refusal([&] { a->removeLink(a); }));
}

TEST_F(MediaLinksTest, OnlyALinkThatExistsCanBeRemoved)
{
    EXPECT_EQ("unable to remove media link where none exists", refusal([&] { a->removeLink(b); }));
}

TEST_F(MediaLinksTest, ALinkToWhatCameApartCannotBeRemoved)
{
    a->link(b);
    b->setTrackStart(1);
    EXPECT_EQ("unable to remove media link, somehow the track ranges aren't equal",
              refusal([&] { a->removeLink(b); }));
    EXPECT_EQ(Medias{b}, linksOf(a));
}

TEST_F(MediaLinksTest, ThatALinkExistsIsAskedBeforeTheRanges)
{
    b->setTrackStart(1);
    EXPECT_EQ("unable to remove media link where none exists", refusal([&] { a->removeLink(b); }));
}

TEST_F(MediaLinksTest, ARemovedLinkTakesNoAccountOfMediaRanges)
{
    boost::shared_ptr<Clip> const other = clip(7, 100);
    a->link(other);
    a->removeLink(other);
    EXPECT_TRUE(linksOf(a).empty());
}

// ---- Dead links ----

class DeadLinkTest : public MediaLinksTest
{
protected:
    DeadLinkTest() { a->link(clip(0, 100)); }
};

TEST_F(DeadLinkTest, CanBeListed)
{
    EXPECT_EQ(Medias{nullptr}, linksOf(a));
}

TEST_F(DeadLinkTest, DoesNotDisturbTheQuestionForOthers)
{
    EXPECT_FALSE(a->isLinkedWith(b));
    EXPECT_TRUE(a->isLinkableWith(b));
    a->addLink(b);
    EXPECT_TRUE(a->isLinkedWith(b));
}

TEST_F(DeadLinkTest, StopsALink)
{
    EXPECT_STREQ("", thrownBy<DeadLink>([&] { a->link(b); }).what());
}

TEST_F(DeadLinkTest, StopsTheRemovalOfALaterLink)
{
    a->addLink(b);
    EXPECT_STREQ("", thrownBy<DeadLink>([&] { a->removeLink(b); }).what());
}

TEST_F(DeadLinkTest, StopsTheXml)
{
    EXPECT_STREQ("", thrownBy<DeadLink>([&] { xmlOf(*a); }).what());
}

// ---- a kind of a host's own ----

/// Says that it is linked with everything.
class Braggart : public Clip
{
public:
    using Clip::Clip;

    bool isLinkedWith(boost::shared_ptr<Media const> const&) const override { return true; }
};

TEST_F(MediaLinksTest, ALinkThatIsOnlyClaimedCannotBeRemoved)
{
    boost::shared_ptr<Braggart> const braggart(
        new Braggart(Range<long long>(0, 100), 0, 1000, project->weak()));
    EXPECT_EQ("unable to remove linked media list", refusal([&] { braggart->removeLink(a); }));
}

TEST_F(MediaLinksTest, NoMediaIsLinkedOrLinkableWithNothing)
{
    boost::shared_ptr<Media const> const nothing;
    EXPECT_FALSE(a->isLinkedWith(nothing));
    EXPECT_FALSE(a->isLinkableWith(nothing));
}

}  // namespace
}  // namespace test
}  // namespace tarn
