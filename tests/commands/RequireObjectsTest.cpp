// Commands that take several objects: one empty pointer among good ones refuses the whole edit.

#include "commands/RequireObjects.h"

#include "commands/AddTimelinesTracksCmd.h"
#include "commands/CloneAddMediasCmd.h"
#include "commands/CopyRangeClippingCmd.h"
#include "commands/CopySelectClippingCmd.h"
#include "commands/CutRangeClippingCmd.h"
#include "commands/CutSelectClippingCmd.h"
#include "commands/InsertSpaceCmd.h"
#include "commands/RemoveRangeMediaCmd.h"
#include "commands/RemoveSelectMediaCmd.h"
#include "commands/SplittingRippleMoveCmd.h"
#include "support/ModelTest.h"
#include "timeline/AbstractVisualTrack.h"

#include <boost/pointer_cast.hpp>

#include <vector>

namespace tarn {
namespace test {
namespace {

class RequireObjectsTest : public ModelTest
{
protected:
    RequireObjectsTest() { given("V1: aaa.bbb"); }

    ::testing::AssertionResult refusesTheEmptyOne(boost::shared_ptr<Command> const& command)
    {
        return refuses<TarnMediaLibException>(command, "attempting to edit an empty pointer");
    }

    /// The command with a good track and an empty pointer.
    template <class C>
    boost::shared_ptr<Command> withTracks(boost::shared_ptr<C> const& command) const
    {
        command->addTrack(track("V1"));
        command->addTrack(boost::shared_ptr<Track>());
        return command;
    }

    std::vector<boost::shared_ptr<Media const>> medias() const
    {
        return {media("V1.a"), boost::shared_ptr<Media const>()};
    }

    Range<long long> const range = Range<long long>(10, 20);
};

TEST_F(RequireObjectsTest, ATrackOfARange)
{
    EXPECT_TRUE(refusesTheEmptyOne(withTracks(RemoveRangeMediaCmd::create(timeline(), range))));
    EXPECT_TRUE(
        refusesTheEmptyOne(withTracks(CopyRangeClippingCmd::create(timeline(), range, "x"))));
    EXPECT_TRUE(
        refusesTheEmptyOne(withTracks(CutRangeClippingCmd::create(timeline(), range, "x"))));
}

TEST_F(RequireObjectsTest, ATrackOfARipple)
{
    EXPECT_TRUE(refusesTheEmptyOne(withTracks(InsertSpaceCmd::create(10, 10))));
    EXPECT_TRUE(refusesTheEmptyOne(withTracks(SplittingRippleMoveCmd::create(10, 10))));
}

TEST_F(RequireObjectsTest, ATrackOfARippleOfNothing)
{
    // Nothing would be moved, and what is asked for is senseless all the same.
    EXPECT_TRUE(refusesTheEmptyOne(withTracks(InsertSpaceCmd::create(10, 0))));
}

TEST_F(RequireObjectsTest, AMediaOfASelection)
{
    EXPECT_TRUE(refusesTheEmptyOne(RemoveSelectMediaCmd::create(timeline(), medias())));
    EXPECT_TRUE(refusesTheEmptyOne(CopySelectClippingCmd::create(timeline(), medias(), "x")));
    EXPECT_TRUE(refusesTheEmptyOne(CutSelectClippingCmd::create(timeline(), medias(), "x")));
}

TEST_F(RequireObjectsTest, EitherEndOfATrackMap)
{
    boost::shared_ptr<Track> const good = track("V1");
    auto const visual = boost::dynamic_pointer_cast<AbstractVisualTrack>(good);
    boost::shared_ptr<AbstractVisualTrack const> const none;
    auto const fromNowhere = AddTimelinesTracksCmd<AbstractVisualTrack>::create(timeline(), 0);
    fromNowhere->addTrackMap(none, visual);
    EXPECT_TRUE(refusesTheEmptyOne(fromNowhere));
    auto const toNowhere = AddTimelinesTracksCmd<AbstractVisualTrack>::create(timeline(), 0);
    toNowhere->addTrackMap(visual, none);
    EXPECT_TRUE(refusesTheEmptyOne(toNowhere));
}

TEST_F(RequireObjectsTest, AMediaToBeCloned)
{
    boost::shared_ptr<CloneAddMediasCmd> const command = CloneAddMediasCmd::create(100);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("V1"), boost::shared_ptr<Media const>());
    EXPECT_TRUE(refusesTheEmptyOne(command));
}

}  // namespace
}  // namespace test
}  // namespace tarn
