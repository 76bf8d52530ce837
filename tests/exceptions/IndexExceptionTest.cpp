#include "exceptions/IndexException.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(IndexExceptionTest, CarriesTheIndex)
{
    EXPECT_EQ(-1, IndexException(-1).index());
    EXPECT_EQ(4294967295LL, IndexException(4294967295LL).index());
}

TEST(IndexExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw IndexException(2), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
