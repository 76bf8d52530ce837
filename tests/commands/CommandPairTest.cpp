#include "commands/CommandPair.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/ScriptedCmd.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace tarn {
namespace test {

namespace {

void refuse()
{
    throw TarnMediaLibException("refused");
}

void breakDown()
{
    throw std::runtime_error("broken");
}

class CommandPairTest : public testing::Test
{
protected:
    std::string m_log;
    boost::shared_ptr<ScriptedCmd> m_first = ScriptedCmd::create("a", m_log);
    boost::shared_ptr<ScriptedCmd> m_second = ScriptedCmd::create("b", m_log);
    boost::shared_ptr<CommandPair> m_pair = CommandPair::create(m_first, m_second);
};

}  // namespace

TEST_F(CommandPairTest, ExecutesTheFirstAndThenTheSecond)
{
    EXPECT_TRUE(m_pair->execute(nullptr));
    EXPECT_EQ("+a +b ", m_log);
}

TEST_F(CommandPairTest, UndoesTheSecondFirst)
{
    EXPECT_TRUE(m_pair->unexecute(nullptr));
    EXPECT_EQ("-b -a ", m_log);
}

TEST_F(CommandPairTest, RunsEachAgainInTheFirstOrder)
{
    EXPECT_TRUE(m_pair->reexecute(nullptr));
    EXPECT_EQ("*a *b ", m_log);
}

TEST_F(CommandPairTest, IgnoresWhatTheTwoAnswer)
{
    m_first->result = false;
    m_second->result = false;
    EXPECT_TRUE(m_pair->execute(nullptr));
    EXPECT_TRUE(m_pair->reexecute(nullptr));
    EXPECT_TRUE(m_pair->unexecute(nullptr));
    EXPECT_EQ("+a +b *a *b -b -a ", m_log);
}

TEST_F(CommandPairTest, TakesTheFirstBackWhenTheSecondRefuses)
{
    m_second->onExecute = refuse;
    EXPECT_THROW(m_pair->execute(nullptr), TarnMediaLibException);
    EXPECT_EQ("+a +b -a ", m_log);
}

TEST_F(CommandPairTest, TakesTheFirstBackWhenTheSecondRefusesToRunAgain)
{
    m_second->onReexecute = refuse;
    EXPECT_THROW(m_pair->reexecute(nullptr), TarnMediaLibException);
    EXPECT_EQ("*a *b -a ", m_log);
}

TEST_F(CommandPairTest, TakesNothingBackWhenTheFirstRefuses)
{
    m_first->onExecute = refuse;
    EXPECT_THROW(m_pair->execute(nullptr), TarnMediaLibException);
    EXPECT_EQ("+a ", m_log);
}

TEST_F(CommandPairTest, LeavesTheFirstDoneWhenTheSecondFailsInAnotherWay)
{
    m_second->onExecute = breakDown;
    EXPECT_THROW(m_pair->execute(nullptr), std::runtime_error);
    EXPECT_EQ("+a +b ", m_log);
}

TEST_F(CommandPairTest, ACloneSharesTheTwo)
{
    std::unique_ptr<CommandPair> const clone(m_pair->clone());
    clone->execute(nullptr);
    EXPECT_EQ(3, m_first.use_count());
    EXPECT_EQ("+a +b ", m_log);
}

TEST_F(CommandPairTest, IsWrittenWithBothInTheBody)
{
    std::string const pair = std::to_string(m_pair->xmlIdent());
    std::string const first = std::to_string(m_first->xmlIdent());
    std::string const second = std::to_string(m_second->xmlIdent());
    EXPECT_EQ("<CommandPair id=\"" + pair + "\"  >\n <Command1>\n  <a id=\"" + first +
                  "\"  >\n  </a>\n </Command1>\n <Command2>\n  <b id=\"" + second +
                  "\"  >\n  </b>\n </Command2>\n</CommandPair>\n",
              m_pair->description());
}

}  // namespace test
}  // namespace tarn
