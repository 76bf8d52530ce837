#include "datatypes/IdentManager.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(IdentManagerTest, IsOneForTheProcess)
{
    EXPECT_EQ(IdentManager::instance(), IdentManager::instance());
}

TEST(IdentManagerTest, NeverGivesOutAnIdentTwiceBeforeItIsGivenBack)
{
    unsigned int const a = IdentManager::instance()->newIdent();
    unsigned int const b = IdentManager::instance()->newIdent();
    EXPECT_NE(a, b);
    IdentManager::instance()->retireIdent(b);
    IdentManager::instance()->retireIdent(a);
}

TEST(IdentManagerTest, ReusesLastRetiredFirst)
{
    unsigned int const a = IdentManager::instance()->newIdent();
    unsigned int const b = IdentManager::instance()->newIdent();
    IdentManager::instance()->retireIdent(b);
    IdentManager::instance()->retireIdent(a);
    EXPECT_EQ(a, IdentManager::instance()->newIdent());
    EXPECT_EQ(b, IdentManager::instance()->newIdent());
    IdentManager::instance()->retireIdent(a);
    IdentManager::instance()->retireIdent(b);
}

TEST(IdentManagerTest, HasNoDescription)
{
    EXPECT_EQ("", IdentManager::instance()->description());
}

}  // namespace test
}  // namespace tarn
