#include "datatypes/MacEncodingConverter.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

using Units = std::vector<unsigned int>;

std::string narrow(unsigned int unit)
{
    return MacEncodingConverter().unicodeWideToNarrow(Units(1, unit));
}

Units wide(std::string const& text)
{
    return MacEncodingConverter().unicodeNarrowToWide(text);
}

}  // namespace

TEST(MacEncodingConverterTest, AsciiComesBackUnchanged)
{
    std::string const text = "The quick brown fox, 0123456789 ~!@#$%^&*()\t\r\n\x01\x7F";
    EXPECT_EQ(text, MacEncodingConverter().unicodeWideToNarrow(wide(text)));
}

TEST(MacEncodingConverterTest, EmptyTextIsEmptyBothWays)
{
    EXPECT_EQ(Units(), wide(""));
    EXPECT_EQ("", MacEncodingConverter().unicodeWideToNarrow(Units()));
}

TEST(MacEncodingConverterTest, UnitsUpTo7FAreOneByte)
{
    EXPECT_EQ(std::string(1, '\0'), narrow(0));
    EXPECT_EQ("\x7F", narrow(0x7F));
}

TEST(MacEncodingConverterTest, UnitsUpTo7FFAreTwoBytes)
{
    EXPECT_EQ("\xC1\x80", narrow(0x80));
    EXPECT_EQ("\xCF\xBF", narrow(0x7FF));  // 0x7FF >> 7 = 0xF
}

TEST(MacEncodingConverterTest, TheSeventhBitIsLostInTheStride)
{
    EXPECT_EQ(narrow(0x80), narrow(0xC0));
}

TEST(MacEncodingConverterTest, UnitsUpToFFFAreThreeBytes)
{
    EXPECT_EQ("\xE0\x90\x80", narrow(0x800));  // 0x800 >> 7 = 0x10
    EXPECT_EQ("\xE0\x9F\xBF", narrow(0xFFF));  // 0xFFF >> 7 = 0x1F
}

TEST(MacEncodingConverterTest, UnitsUpTo1FFFFAreFourBytes)
{
    EXPECT_EQ("\xF0\x80\xA0\x80", narrow(0x1000));   // 0x1000 >> 7 = 0x20
    EXPECT_EQ("\xF0\x8F\xBF\xBF", narrow(0x1FFFF));  // 0x1FFFF >> 13 = 0xF
}

TEST(MacEncodingConverterTest, UnitsUpTo3FFFFFAreFiveBytes)
{
    EXPECT_EQ("\xF8\x80\x90\x80\x80", narrow(0x20000));   // 0x20000 >> 13 = 0x10
    EXPECT_EQ("\xF8\x87\xBF\xBF\xBF", narrow(0x3FFFFF));  // 0x3FFFFF >> 19 = 7
}

TEST(MacEncodingConverterTest, AllOtherUnitsAreSixBytes)
{
    EXPECT_EQ("\xFC\x80\x88\x80\x80\x80", narrow(0x400000));  // 0x400000 >> 19 = 8
    EXPECT_EQ("\xFD\xBF\xBF\xBF\xBF\xBF", narrow(0xFFFFFFFF));
}

TEST(MacEncodingConverterTest, ASequenceOfTwoIsRead)
{
    EXPECT_EQ(Units({0x80}), wide("\xC1\x80"));
    EXPECT_EQ(Units({(0x1F << 7) + 0x3F}), wide("\xDF\xBF"));
}

TEST(MacEncodingConverterTest, ASequenceOfThreeIsRead)
{
    EXPECT_EQ(Units({(0xF << 13) + (1 << 7) + 2}), wide("\xEF\x81\x82"));
}

TEST(MacEncodingConverterTest, ASequenceOfFourIsRead)
{
    EXPECT_EQ(Units({532739}), wide("\xF1\x81\x82\x83"));  // 524288 + 8192 + 256 + 3
}

TEST(MacEncodingConverterTest, ASequenceOfFiveIsRead)
{
    // 33554432 + 524288 + 16384 + 384 + 4
    EXPECT_EQ(Units({34095492}), wide("\xF9\x81\x82\x83\x84"));
}

TEST(MacEncodingConverterTest, ASequenceOfSixIsRead)
{
    // 2147483648 + 33554432 + 1048576 + 24576 + 512 + 5
    EXPECT_EQ(Units({2182111749u}), wide("\xFF\x81\x82\x83\x84\x85"));
    EXPECT_EQ(Units({34628101}), wide("\xFE\x81\x82\x83\x84\x85"));
}

TEST(MacEncodingConverterTest, ASequenceIsFollowedByWhatFollowsIt)
{
    EXPECT_EQ(Units({'a', 425, 'z'}), wide("a\xC3\xA9z"));  // (3 << 7) + 0x29
}

TEST(MacEncodingConverterTest, ContinuationBytesAreNotChecked)
{
    EXPECT_EQ(Units({(1 << 7) + 1}), wide("\xC1\x41"));
}

TEST(MacEncodingConverterTest, AZeroByteEndsTheText)
{
    EXPECT_EQ(Units({'a', 'b'}), wide(std::string("ab\0cd", 5)));
}

TEST(MacEncodingConverterTest, AByteThatStartsNothingEndsTheText)
{
    EXPECT_EQ(Units({'a'}), wide("a\x80z"));
    EXPECT_EQ(Units({'a'}), wide("a\xBFz"));
}

TEST(MacEncodingConverterTest, TheLeadBytesThatOnlyWritingMakesEndTheText)
{
    EXPECT_EQ(Units(), wide(narrow(0x400000)));
    EXPECT_EQ(Units(), wide(narrow(0xFFFFFFFF)));
}

TEST(MacEncodingConverterTest, BytesMissingAtTheEndCountAsZero)
{
    EXPECT_EQ(Units({'a', (2 << 13) + (2 << 7)}), wide("a\xE2\x82"));
    EXPECT_EQ(Units({1u << 31}), wide("\xFF"));
}

}  // namespace test
}  // namespace tarn
