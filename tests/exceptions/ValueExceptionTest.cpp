#include "exceptions/ValueException.h"

#include <type_traits>

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(ValueExceptionTest, CarriesTheValue)
{
    EXPECT_EQ(-7, ValueException<long long>("invalid media trim start offset", -7).value());
}

TEST(ValueExceptionTest, CarriesAPointer)
{
    boost::shared_ptr<int> const pointer(new int(3));
    EXPECT_EQ(pointer, ValueException<boost::shared_ptr<int>>("any", pointer).value());
}

TEST(ValueExceptionTest, TheTextIsExactlyTheMessage)
{
    EXPECT_STREQ("invalid index", ValueException<int>("invalid index", 4).what());
}

TEST(ValueExceptionTest, IsCaughtByItsType)
{
    EXPECT_THROW(throw ValueException<double>("any", 0.5), ValueException<double>);
    EXPECT_THROW(throw ValueException<std::string>("any", "a"), TarnMediaLibException);
}

TEST(ValueExceptionTest, CopyingDoesNotThrowEvenWhereTheValueMight)
{
    EXPECT_TRUE(std::is_nothrow_copy_constructible<ValueException<std::string>>::value);
}

}  // namespace test
}  // namespace tarn
