#include "commands/NullCmd.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

namespace tarn {
namespace test {

TEST(NullCmdTest, SucceedsAtDoingNothing)
{
    boost::shared_ptr<NullCmd> const command = NullCmd::create();
    EXPECT_TRUE(command->execute(nullptr));
    EXPECT_TRUE(command->unexecute(nullptr));
    EXPECT_TRUE(command->reexecute(nullptr));
}

TEST(NullCmdTest, EachIsAnotherCommand)
{
    EXPECT_NE(NullCmd::create(), NullCmd::create());
}

TEST(NullCmdTest, IsWrittenWithoutAttributesAndBody)
{
    boost::shared_ptr<NullCmd> const command = NullCmd::create();
    std::string const ident = std::to_string(command->xmlIdent());
    std::ostringstream out;
    command->toXML(out);
    EXPECT_EQ("<NullCmd id=\"" + ident + "\"  >\n</NullCmd>\n", out.str());
}

TEST(NullCmdTest, ACloneIsANullCmdWithItsOwnIdent)
{
    boost::shared_ptr<NullCmd> const command = NullCmd::create();
    std::unique_ptr<NullCmd> const clone(command->clone());
    EXPECT_NE(command->xmlIdent(), clone->xmlIdent());
}

}  // namespace test
}  // namespace tarn
