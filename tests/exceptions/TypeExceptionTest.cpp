#include "exceptions/TypeException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(TypeExceptionTest, TheTextIsExactlyTheMessage)
{
    EXPECT_STREQ("VisualTrack", TypeException("VisualTrack").what());
}

TEST(TypeExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw TypeException("any"), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
