#include "exceptions/TarnMediaLibException.h"

#include <type_traits>

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(TarnMediaLibExceptionTest, TheTextIsExactlyTheMessage)
{
    EXPECT_STREQ("no commands to undo", TarnMediaLibException("no commands to undo").what());
}

TEST(TarnMediaLibExceptionTest, IsAStandardException)
{
    EXPECT_THROW(throw TarnMediaLibException("any"), std::exception);
}

TEST(TarnMediaLibExceptionTest, CopyingDoesNotThrow)
{
    EXPECT_TRUE(std::is_nothrow_copy_constructible<TarnMediaLibException>::value);
}

}  // namespace test
}  // namespace tarn
