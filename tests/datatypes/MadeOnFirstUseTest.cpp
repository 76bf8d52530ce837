#include "datatypes/MadeOnFirstUse.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace test {

namespace {

boost::shared_ptr<int> seven()
{
    return boost::shared_ptr<int>(new int(7));
}

boost::shared_ptr<int> failing()
{
    throw std::runtime_error("no memory");
}

}  // namespace

TEST(MadeOnFirstUseTest, IsNotMadeBeforeTheFirstUse)
{
    MadeOnFirstUse<int> const object;
    EXPECT_FALSE(object.isMade());
}

TEST(MadeOnFirstUseTest, StaysTheSameOne)
{
    MadeOnFirstUse<int> const object;
    boost::shared_ptr<int> const first = object.get(seven);
    EXPECT_EQ(7, *first);
    EXPECT_TRUE(object.isMade());
    EXPECT_EQ(first, object.get(failing));
}

TEST(MadeOnFirstUseTest, NothingIsNotOneThatExists)
{
    MadeOnFirstUse<int> const object{boost::shared_ptr<int>()};
    EXPECT_FALSE(object.isMade());
    EXPECT_EQ(7, *object.get(seven));
}

TEST(MadeOnFirstUseTest, MayStartWithOneThatExists)
{
    boost::shared_ptr<int> const existing = seven();
    MadeOnFirstUse<int> const object(existing);
    EXPECT_TRUE(object.isMade());
    EXPECT_EQ(existing, object.get(failing));
}

TEST(MadeOnFirstUseTest, AFailureLeavesItUnmade)
{
    MadeOnFirstUse<int> const object;
    EXPECT_THROW(object.get(failing), std::runtime_error);
    EXPECT_FALSE(object.isMade());
    EXPECT_EQ(7, *object.get(seven));
}

}  // namespace test
}  // namespace tarn
