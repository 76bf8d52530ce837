#include "exceptions/ParserException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(ParserExceptionTest, TheTextIsExactlyTheMessage)
{
    EXPECT_STREQ("VisualTrack", ParserException("VisualTrack").what());
}

TEST(ParserExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw ParserException("any"), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
