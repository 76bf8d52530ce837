#include "exceptions/ThreadLockingException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(ThreadLockingExceptionTest, TheMessageFollowsOnePrefix)
{
    EXPECT_STREQ("ThreadLockingException: Media not handled",
                 ThreadLockingException("Media not handled").what());
}

TEST(ThreadLockingExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw ThreadLockingException("any"), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
