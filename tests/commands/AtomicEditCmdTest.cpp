#include "commands/AtomicEditCmd.h"

#include "commands/CommandPair.h"
#include "commands/NullCmd.h"
#include "support/Address.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <sstream>

namespace tarn {
namespace test {

namespace {

/// Identities of tracks and medias that are never looked into.
template <class T>
boost::shared_ptr<T const> standIn()
{
    boost::shared_ptr<int> const owner(new int(0));
    return boost::shared_ptr<T const>(owner, reinterpret_cast<T const*>(owner.get()));
}

class ShiftCmd : public AtomicEditCmd
{
public:
    static boost::shared_ptr<ShiftCmd> create(boost::shared_ptr<Track const> const& track,
                                              boost::shared_ptr<Media const> const& media,
                                              long long offset)
    {
        return boost::shared_ptr<ShiftCmd>(new ShiftCmd(track, media, offset));
    }

    ShiftCmd* clone() const override { return new ShiftCmd(*this); }
    bool execute(CommandHandler*) override { return true; }
    bool unexecute(CommandHandler*) override { return true; }
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override
    {
        return combineAtomicEdit<ShiftCmd>(next);
    }
    void xmlName(XMLable::Options& options) const override { *options.stream << "ShiftCmd"; }

    using AtomicEditCmd::media;
    using AtomicEditCmd::offset;
    using AtomicEditCmd::track;

private:
    using AtomicEditCmd::AtomicEditCmd;
};

class AtomicEditCmdTest : public testing::Test
{
protected:
    boost::shared_ptr<ShiftCmd> shift(long long offset) const
    {
        return ShiftCmd::create(m_track, m_media, offset);
    }
    boost::shared_ptr<ShiftCmd> combined(long long first, long long second) const
    {
        return boost::dynamic_pointer_cast<ShiftCmd>(shift(first)->combine(shift(second)));
    }

    boost::shared_ptr<Track const> m_track = standIn<Track>();
    boost::shared_ptr<Media const> m_media = standIn<Media>();
};

}  // namespace

TEST_F(AtomicEditCmdTest, TwoOfAKindOnTheSameMediaAddUp)
{
    boost::shared_ptr<ShiftCmd> const sum = combined(5, 7);
    ASSERT_TRUE(sum);
    EXPECT_EQ(12, sum->offset());
    EXPECT_EQ(m_track, sum->track());
    EXPECT_EQ(m_media, sum->media());
}

TEST_F(AtomicEditCmdTest, OppositeOffsetsCombineToNone)
{
    boost::shared_ptr<ShiftCmd> const sum = combined(5, -5);
    ASSERT_TRUE(sum);
    EXPECT_EQ(0, sum->offset());
}

TEST_F(AtomicEditCmdTest, OffsetsBeyondTheEndOfTimeStayAtIt)
{
    long long const last = std::numeric_limits<long long>::max();
    EXPECT_EQ(last, combined(last, 1)->offset());
}

TEST_F(AtomicEditCmdTest, AnotherMediaMakesAPair)
{
    boost::shared_ptr<ShiftCmd> const other = ShiftCmd::create(m_track, standIn<Media>(), 5);
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(shift(5)->combine(other)));
}

TEST_F(AtomicEditCmdTest, AnotherTrackMakesAPair)
{
    boost::shared_ptr<ShiftCmd> const other = ShiftCmd::create(standIn<Track>(), m_media, 5);
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(shift(5)->combine(other)));
}

TEST_F(AtomicEditCmdTest, AnotherKindMakesAPair)
{
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(shift(5)->combine(NullCmd::create())));
}

TEST_F(AtomicEditCmdTest, IsWrittenWithTheAddressesAndTheOffset)
{
    boost::shared_ptr<ShiftCmd> const command = shift(-12);
    EXPECT_EQ("<ShiftCmd id=\"" + std::to_string(command->xmlIdent()) + "\" track=\"" +
                  address(m_track) + "\" media=\"" + address(m_media) +
                  "\" offset=\"-12\" >\n</ShiftCmd>\n",
              command->description());
}

TEST_F(AtomicEditCmdTest, IsWrittenWithZerosForEmptyPointers)
{
    boost::shared_ptr<ShiftCmd> const command =
        ShiftCmd::create(boost::shared_ptr<Track>(), boost::shared_ptr<Media>(), 3);
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    command->xmlAttributes(options);
    EXPECT_EQ("track=\"0\" media=\"0\" offset=\"3\"", out.str());
}

}  // namespace test
}  // namespace tarn
