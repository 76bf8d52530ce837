#include "commands/CommandSequence.h"

#include "commands/NullCmd.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>

namespace tarn {
namespace test {

namespace {

using Commands = CommandSequence::Commands;

/// Five commands that can be told apart.
class CommandSequenceTest : public ::testing::Test
{
protected:
    CommandSequenceTest()
    {
        for (int i = 0; i < 5; ++i)
            m_all.push_back(NullCmd::create());
    }

    void push(std::size_t index)
    {
        m_sequence.makeRoom();
        m_sequence.pushUndo(m_all[index]);
    }
    void undo() { m_sequence.pushRedo(m_sequence.takeUndo()); }
    Commands undoable() const { return Commands(m_sequence.undoBegin(), m_sequence.undoEnd()); }
    Commands redoable() const { return Commands(m_sequence.redoBegin(), m_sequence.redoEnd()); }
    Commands those(std::initializer_list<std::size_t> indices) const
    {
        Commands result;
        for (std::size_t const index : indices)
            result.push_back(m_all[index]);
        return result;
    }

    Commands m_all;
    CommandSequence m_sequence;
};

}  // namespace

TEST_F(CommandSequenceTest, WhatIsUndoneStandsBeforeWhatWasUndoneEarlier)
{
    push(0);
    push(1);
    push(2);
    undo();
    undo();
    EXPECT_EQ(those({0}), undoable());
    EXPECT_EQ(those({1, 2}), redoable());
    m_sequence.pushUndo(m_sequence.takeRedo());
    EXPECT_EQ(those({0, 1}), undoable());
    EXPECT_EQ(those({2}), redoable());
}

TEST_F(CommandSequenceTest, WhatIsLostOnTheWayIsOnNeitherSide)
{
    push(0);
    push(1);
    push(2);
    undo();
    m_sequence.takeUndo();
    EXPECT_EQ(those({0}), undoable());
    EXPECT_EQ(those({2}), redoable());
    m_sequence.takeRedo();
    EXPECT_EQ(Commands(), redoable());
    push(3);
    push(4);
    EXPECT_EQ(those({0, 3, 4}), undoable());
}

TEST_F(CommandSequenceTest, AnotherCommandComesBetween)
{
    push(0);
    push(1);
    undo();
    push(2);
    EXPECT_EQ(those({0, 2}), undoable());
    EXPECT_EQ(those({1}), redoable());
    m_sequence.clearRedo();
    EXPECT_EQ(Commands(), redoable());
    EXPECT_EQ(1, m_all[1].use_count());
}

TEST_F(CommandSequenceTest, TheOldestGoFirst)
{
    push(0);
    push(1);
    push(2);
    undo();
    m_sequence.dropOldest();
    EXPECT_EQ(those({1}), undoable());
    EXPECT_EQ(1, m_all[0].use_count());
    m_sequence.dropOldest();
    EXPECT_EQ(Commands(), undoable());
    EXPECT_EQ(those({2}), redoable());
    push(3);
    EXPECT_EQ(those({3}), undoable());
}

TEST_F(CommandSequenceTest, OneStandsForTheNewestTwo)
{
    push(0);
    push(1);
    push(2);
    m_sequence.replaceNewestTwo(m_all[3]);
    EXPECT_EQ(those({0, 3}), undoable());
    push(4);
    EXPECT_EQ(those({0, 3, 4}), undoable());
}

TEST_F(CommandSequenceTest, ReplacedRedosComeBackWithTheNextLast)
{
    push(0);
    push(1);
    push(2);
    undo();
    undo();
    Commands old;
    old.reserve(m_sequence.numRedo());
    m_sequence.makeRoomFor(2);
    m_sequence.replaceRedo(those({4, 3}), old);
    EXPECT_EQ(those({2, 1}), old);
    EXPECT_EQ(those({3, 4}), redoable());
    EXPECT_EQ(those({0}), undoable());
}

}  // namespace test
}  // namespace tarn
