#include "commands/Command.h"

#include "commands/CommandPair.h"
#include "commands/NullCmd.h"
#include "support/ScriptedCmd.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

#include <ostream>

namespace tarn {
namespace test {

namespace {

/// A host's command that leaves out whatever it may.
class PlainCmd : public Command
{
public:
    PlainCmd* clone() const override { return new PlainCmd(*this); }
    bool execute(CommandHandler*) override { return ++m_executions != 2; }
    bool unexecute(CommandHandler*) override { return true; }
    void xmlName(XMLable::Options& options) const override { *options.stream << "PlainCmd"; }

    int m_executions = 0;
};

}  // namespace

TEST(CommandTest, RunsAgainByExecutingUnlessAClassDiffers)
{
    PlainCmd command;
    EXPECT_TRUE(command.execute(nullptr));
    EXPECT_FALSE(command.reexecute(nullptr));
    EXPECT_EQ(2, command.m_executions);
}

TEST(CommandTest, DescribesItselfByItsXml)
{
    PlainCmd const command;
    std::string const ident = std::to_string(command.xmlIdent());
    EXPECT_EQ("<PlainCmd id=\"" + ident + "\"  >\n</PlainCmd>\n", command.description());
}

TEST(CommandTest, CombinesIntoAPairUnlessAClassDiffers)
{
    std::string log;
    boost::shared_ptr<Command> const first = ScriptedCmd::create("a", log);
    boost::shared_ptr<Command> const pair = first->combine(ScriptedCmd::create("b", log));
    ASSERT_TRUE(boost::dynamic_pointer_cast<CommandPair>(pair));
    pair->execute(nullptr);
    EXPECT_EQ("+a +b ", log);
}

TEST(CommandTest, CombiningRunsNeither)
{
    std::string log;
    ScriptedCmd::create("a", log)->combine(ScriptedCmd::create("b", log));
    EXPECT_EQ("", log);
}

TEST(CommandTest, CannotCombineOnceItHasLeftItsSharedPointer)
{
    PlainCmd alone;
    EXPECT_THROW(alone.combine(NullCmd::create()), boost::bad_weak_ptr);
}

TEST(CommandTest, GroupingMakesAPairInTheGivenOrder)
{
    std::string log;
    boost::shared_ptr<Command> const pair =
        Command::groupCommands(ScriptedCmd::create("a", log), ScriptedCmd::create("b", log));
    pair->execute(nullptr);
    pair->unexecute(nullptr);
    EXPECT_EQ("+a +b -b -a ", log);
}

}  // namespace test
}  // namespace tarn
