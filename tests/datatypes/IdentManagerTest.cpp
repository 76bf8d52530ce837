#include "datatypes/IdentManager.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <vector>

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

TEST(IdentManagerTest, SeveralAtOnceAreThoseThatAsManySingleCallsGive)
{
    IdentManager* const manager = IdentManager::instance();
    std::array<unsigned int, 5> several;
    manager->newIdents(several.data(), several.size());
    manager->retireIdents(several.data(), several.size());
    for (std::size_t i = several.size(); i > 0; --i)
        EXPECT_EQ(several[i - 1], manager->newIdent());
    manager->retireIdents(several.data(), several.size());
}

TEST(IdentManagerTest, SeveralAtOnceBeginWithTheLastRetiredAndGoOnBeyondThem)
{
    IdentManager* const manager = IdentManager::instance();
    // More than others can have retired, so that the numbers run on from the highest there was.
    std::vector<unsigned int> all(100000);
    manager->newIdents(all.data(), all.size());
    unsigned int const highest = all.back();
    manager->retireIdent(all[0]);
    manager->retireIdent(all[5]);
    std::array<unsigned int, 4> several;
    manager->newIdents(several.data(), several.size());
    std::array<unsigned int, 4> const expected{all[5], all[0], highest + 1, highest + 2};
    EXPECT_EQ(expected, several);
    all.insert(all.end(), {highest + 1, highest + 2});
    manager->retireIdents(all.data(), all.size());
}

TEST(IdentManagerTest, HasNoDescription)
{
    EXPECT_EQ("", IdentManager::instance()->description());
}

}  // namespace test
}  // namespace tarn
