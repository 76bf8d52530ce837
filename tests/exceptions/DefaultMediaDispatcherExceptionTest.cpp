#include "exceptions/DefaultMediaDispatcherException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(DefaultMediaDispatcherExceptionTest, TheMessageFollowsOnePrefix)
{
    EXPECT_STREQ("DefaultMediaDispatcherException: Media not handled",
                 DefaultMediaDispatcherException("Media not handled").what());
}

TEST(DefaultMediaDispatcherExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw DefaultMediaDispatcherException("any"), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
