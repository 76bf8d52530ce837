#include "datatypes/EncodingConverter.h"

#include "datatypes/MacEncodingConverter.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(EncodingConverterTest, IsOneForTheProcess)
{
    EXPECT_EQ(EncodingConverter::instance(), EncodingConverter::instance());
}

TEST(EncodingConverterTest, IsTheLibrarysOwnCoding)
{
    EXPECT_NE(nullptr, dynamic_cast<MacEncodingConverter*>(EncodingConverter::instance()));
}

}  // namespace test
}  // namespace tarn
