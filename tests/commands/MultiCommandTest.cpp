#include "commands/MultiCommand.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/ScriptedCmd.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <stdexcept>

namespace tarn {
namespace test {

namespace {

class CompositeCmd : public MultiCommand
{
public:
    using MultiCommand::execute;

    CompositeCmd* clone() const override { return new CompositeCmd(*this); }
    void xmlName(XMLable::Options& options) const override { *options.stream << "CompositeCmd"; }

    std::function<void(CompositeCmd&)> m_work;
    CommandHandler const* m_handler = nullptr;

protected:
    void executeCommands(CommandHandler const* handler) override
    {
        m_handler = handler;
        if (m_work) {
            m_work(*this);
        }
    }
};

class MultiCommandTest : public testing::Test
{
protected:
    MultiCommandTest()
    {
        m_composite.m_work = [this](CompositeCmd& composite) {
            ++m_works;
            composite.execute(m_a);
            composite.execute(m_b);
            composite.execute(m_c);
        };
    }

    std::string m_log;
    int m_works = 0;
    boost::shared_ptr<ScriptedCmd> m_a = ScriptedCmd::create("a", m_log);
    boost::shared_ptr<ScriptedCmd> m_b = ScriptedCmd::create("b", m_log);
    boost::shared_ptr<ScriptedCmd> m_c = ScriptedCmd::create("c", m_log);
    CompositeCmd m_composite;
    // Never looked into: the commands only pass it on.
    CommandHandler* const m_handler = reinterpret_cast<CommandHandler*>(&m_works);
    CommandHandler* const m_otherHandler = reinterpret_cast<CommandHandler*>(&m_log);
};

}  // namespace

TEST_F(MultiCommandTest, RunsItsPartsInTheChosenOrder)
{
    EXPECT_TRUE(m_composite.execute(m_handler));
    EXPECT_EQ("+a +b +c ", m_log);
    EXPECT_EQ(3u, m_composite.numUndoCommands());
}

TEST_F(MultiCommandTest, PassesTheHandlerOn)
{
    m_composite.execute(m_handler);
    EXPECT_EQ(m_handler, m_composite.m_handler);
    EXPECT_EQ(m_handler, m_a->handler());
}

TEST_F(MultiCommandTest, UndoesItsPartsInReverse)
{
    m_composite.execute(m_handler);
    m_log.clear();
    EXPECT_TRUE(m_composite.unexecute(m_handler));
    EXPECT_EQ("-c -b -a ", m_log);
    EXPECT_EQ(0u, m_composite.numUndoCommands());
}

TEST_F(MultiCommandTest, RedoesItsPartsInTheFirstOrderWithoutComputingThemAnew)
{
    m_composite.execute(m_handler);
    m_composite.unexecute(m_handler);
    m_log.clear();
    EXPECT_TRUE(m_composite.reexecute(m_handler));
    EXPECT_EQ("*a *b *c ", m_log);
    EXPECT_EQ(1, m_works);
}

TEST_F(MultiCommandTest, EachRunUsesTheHandlerItIsGiven)
{
    m_composite.execute(m_handler);
    m_composite.unexecute(m_otherHandler);
    EXPECT_EQ(m_otherHandler, m_a->handler());
    m_composite.reexecute(m_handler);
    EXPECT_EQ(m_handler, m_a->handler());
}

TEST_F(MultiCommandTest, TakesBackWhatRanWhenAPartRefuses)
{
    m_c->onExecute = [] { throw TarnMediaLibException("refused"); };
    EXPECT_THROW(m_composite.execute(m_handler), TarnMediaLibException);
    EXPECT_EQ("+a +b +c -b -a ", m_log);
    EXPECT_EQ(0u, m_composite.numUndoCommands());
}

TEST_F(MultiCommandTest, TakesBackWhatRanWhateverIsThrown)
{
    m_composite.m_work = [this](CompositeCmd& composite) {
        composite.execute(m_a);
        throw 7;
    };
    EXPECT_THROW(m_composite.execute(m_handler), int);
    EXPECT_EQ("+a -a ", m_log);
}

TEST_F(MultiCommandTest, AFailureInTakingBackReplacesTheFirstOne)
{
    m_b->onExecute = [] { throw TarnMediaLibException("refused"); };
    m_a->onUnexecute = [] { throw std::runtime_error("cannot go back"); };
    EXPECT_THROW(m_composite.execute(m_handler), std::runtime_error);
}

TEST_F(MultiCommandTest, AnUndoThatFailsIsTakenBack)
{
    m_composite.execute(m_handler);
    m_log.clear();
    m_b->onUnexecute = [] { throw TarnMediaLibException("cannot go back"); };
    EXPECT_THROW(m_composite.unexecute(m_handler), TarnMediaLibException);
    EXPECT_EQ("-c -b *c ", m_log);
}

TEST_F(MultiCommandTest, ARedoThatFailsIsTakenBack)
{
    m_composite.execute(m_handler);
    m_composite.unexecute(m_handler);
    m_log.clear();
    m_c->onReexecute = [] { throw 7; };
    EXPECT_THROW(m_composite.reexecute(m_handler), int);
    EXPECT_EQ("*a *b *c -b -a ", m_log);
}

TEST_F(MultiCommandTest, APartThatFindsNothingToDoIsNotUndone)
{
    m_b->result = false;
    EXPECT_TRUE(m_composite.execute(m_handler));
    m_log.clear();
    m_composite.unexecute(m_handler);
    EXPECT_EQ("-c -a ", m_log);
}

TEST_F(MultiCommandTest, TellsWhetherAPartFoundAnythingToDo)
{
    m_b->result = false;
    EXPECT_TRUE(m_composite.execute(m_a));
    EXPECT_FALSE(m_composite.execute(m_b));
}

TEST_F(MultiCommandTest, OneWithoutPartsSucceeds)
{
    m_composite.m_work = nullptr;
    EXPECT_TRUE(m_composite.execute(m_handler));
    EXPECT_TRUE(m_composite.unexecute(m_handler));
    EXPECT_TRUE(m_composite.reexecute(m_handler));
    EXPECT_EQ(0u, m_composite.numUndoCommands());
}

TEST_F(MultiCommandTest, ExecutingAfterAnUndoDropsWhatCouldBeRedone)
{
    m_composite.execute(m_handler);
    m_composite.unexecute(m_handler);
    m_composite.m_work = nullptr;
    m_composite.execute(m_handler);
    m_log.clear();
    m_composite.reexecute(m_handler);
    EXPECT_EQ("", m_log);
}

TEST_F(MultiCommandTest, ACloneHasRunNothing)
{
    m_composite.execute(m_handler);
    std::unique_ptr<CompositeCmd> const clone(m_composite.clone());
    m_log.clear();
    EXPECT_EQ(0u, clone->numUndoCommands());
    clone->unexecute(m_handler);
    EXPECT_EQ("", m_log);
    EXPECT_EQ(3u, m_composite.numUndoCommands());
}

TEST_F(MultiCommandTest, CompositesNest)
{
    boost::shared_ptr<CompositeCmd> const inner(new CompositeCmd);
    inner->m_work = [this](CompositeCmd& composite) { composite.execute(m_b); };
    m_composite.m_work = [this, inner](CompositeCmd& composite) {
        composite.execute(m_a);
        composite.execute(inner);
        composite.execute(m_c);
    };
    m_composite.execute(m_handler);
    m_composite.unexecute(m_handler);
    m_composite.reexecute(m_handler);
    EXPECT_EQ("+a +b +c -c -b -a *a *b *c ", m_log);
}

}  // namespace test
}  // namespace tarn
