#include "clipbin/PathUtil.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

TEST(PathUtilTest, APathFromTheRootIsAbsolute)
{
    EXPECT_TRUE(PathUtil::isAbsolutePath("/"));
    EXPECT_TRUE(PathUtil::isAbsolutePath("/a/b.mov"));
}

TEST(PathUtilTest, AnyOtherPathIsNot)
{
    EXPECT_FALSE(PathUtil::isAbsolutePath(""));
    EXPECT_FALSE(PathUtil::isAbsolutePath("a/b.mov"));
    EXPECT_FALSE(PathUtil::isAbsolutePath("./a"));
    EXPECT_FALSE(PathUtil::isAbsolutePath("~/a"));
}

TEST(PathUtilTest, TheBaseIsCutOffBehindADot)
{
    EXPECT_EQ("./b/c.mov", PathUtil::absolutePathToRelative("/a/b/c.mov", "/a"));
}

TEST(PathUtilTest, ASlashAtTheBasesEndMakesNoDifference)
{
    EXPECT_EQ("./b/c.mov", PathUtil::absolutePathToRelative("/a/b/c.mov", "/a/"));
}

TEST(PathUtilTest, ARelativePathGivesNothing)
{
    EXPECT_EQ("", PathUtil::absolutePathToRelative("a/b/c.mov", "a"));
    EXPECT_EQ("", PathUtil::absolutePathToRelative("", "/a"));
}

TEST(PathUtilTest, OutsideTheBaseThePathIsKeptBehindADot)
{
    EXPECT_EQ("./x/y.mov", PathUtil::absolutePathToRelative("/x/y.mov", "/a"));
}

TEST(PathUtilTest, ABaseElsewhereIsCutOutOfTheMiddle)
{
    EXPECT_EQ("./x/y.mov", PathUtil::absolutePathToRelative("/x/a/y.mov", "/a"));
}

TEST(PathUtilTest, OnlyTheFirstOccurrenceIsCut)
{
    EXPECT_EQ("./a/b", PathUtil::absolutePathToRelative("/a/a/b", "/a"));
}

TEST(PathUtilTest, TheBaseIsTextAndNotADirectory)
{
    EXPECT_EQ("./bc/d", PathUtil::absolutePathToRelative("/abc/d", "/a"));
}

TEST(PathUtilTest, AnEmptyBaseCutsNothing)
{
    EXPECT_EQ("./a/b", PathUtil::absolutePathToRelative("/a/b", ""));
}

TEST(PathUtilTest, TheBaseItselfIsADot)
{
    EXPECT_EQ(".", PathUtil::absolutePathToRelative("/a", "/a"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
