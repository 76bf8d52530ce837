#include "commands/CommandHistoryState.h"

#include "commands/NullCmd.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(CommandHistoryStateTest, KeepsWhatItIsGiven)
{
    boost::shared_ptr<Command> const top = NullCmd::create();
    boost::shared_ptr<Command> const redone = NullCmd::create();
    CommandHistoryState const state(top, CommandHistoryState::CommandList(1, redone));
    EXPECT_EQ(top, state.undoTop());
    EXPECT_EQ(CommandHistoryState::CommandList(1, redone), state.redoCommands());
}

TEST(CommandHistoryStateTest, KeepsItsCommandsAlive)
{
    boost::shared_ptr<Command> top = NullCmd::create();
    boost::weak_ptr<Command> const watch = top;
    CommandHistoryState const state(top, CommandHistoryState::CommandList());
    top.reset();
    EXPECT_FALSE(watch.expired());
}

}  // namespace test
}  // namespace tarn
