#include "exceptions/LinkException.h"

#include <type_traits>

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(LinkExceptionTest, CarriesBothRangesInOrder)
{
    LinkException const exception(Range<long long>(10, 20), Range<long long>(10, 30));
    EXPECT_EQ(Range<long long>(10, 20), exception.first());
    EXPECT_EQ(Range<long long>(10, 30), exception.second());
}

TEST(LinkExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw LinkException(Range<long long>(), Range<long long>()),
                 TarnMediaLibException);
}

TEST(LinkExceptionTest, CopyingDoesNotThrow)
{
    EXPECT_TRUE(std::is_nothrow_copy_constructible<LinkException>::value);
}

}  // namespace test
}  // namespace tarn
