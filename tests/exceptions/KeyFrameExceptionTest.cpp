#include "exceptions/KeyFrameException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(KeyFrameExceptionTest, TheTextNamesTheTime)
{
    EXPECT_STREQ("Invalid KeyFrame operation at time 0", KeyFrameException(0).what());
    EXPECT_STREQ("Invalid KeyFrame operation at time -90000000000",
                 KeyFrameException(-90000000000LL).what());
}

TEST(KeyFrameExceptionTest, CarriesTheTime)
{
    EXPECT_EQ(12, KeyFrameException(12).time());
}

TEST(KeyFrameExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw KeyFrameException(1), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
