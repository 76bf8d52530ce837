#include "exceptions/AddRemoveException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(AddRemoveExceptionTest, TheTextIsExactlyTheMessage)
{
    EXPECT_STREQ("VisualTrack", AddRemoveException("VisualTrack").what());
}

TEST(AddRemoveExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw AddRemoveException("any"), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
