#include "exceptions/IOException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(IOExceptionTest, TheMessageFollowsOnePrefix)
{
    EXPECT_STREQ("IOException: Media not handled", IOException("Media not handled").what());
}

TEST(IOExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw IOException("any"), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
