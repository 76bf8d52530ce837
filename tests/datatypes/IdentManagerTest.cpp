#include "datatypes/IdentManager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace tarn {
namespace test {
namespace {

/// All numbers that wait to be used again and some beyond them, so that the next ones are fresh.
std::vector<unsigned int> drawAllThatWait()
{
    // More than are in use elsewhere in this program.
    std::size_t const many = 10000;
    std::vector<unsigned int> all;
    auto const drawMany = [&all] {
        all.resize(all.size() + many);
        IdentManager::instance()->newIdents(all.data() + all.size() - many, many);
    };
    do {
        drawMany();
    } while (all.size() + many <= *std::max_element(all.begin(), all.end()));
    // What is neither in use nor here now are fewer than these.
    drawMany();
    return all;
}

}  // namespace

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
    std::vector<unsigned int> all = drawAllThatWait();
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

// Numbers are handed out in blocks, whose borders no one may notice.
TEST(IdentManagerTest, AnyCountBeginsWithTheLastRetiredAndGoesOnBeyondThem)
{
    IdentManager* const manager = IdentManager::instance();
    std::vector<unsigned int> all = drawAllThatWait();
    for (std::size_t retired = 0; retired <= 27; ++retired) {
        for (std::size_t fresh = 0; fresh <= 27; ++fresh) {
            std::vector<unsigned int> expected;
            for (std::size_t i = 0; i < retired; ++i) {
                manager->retireIdent(all[3 * i]);
                expected.insert(expected.begin(), all[3 * i]);
            }
            for (std::size_t i = 0; i < fresh; ++i)
                expected.push_back(all.back() + 1 + static_cast<unsigned int>(i));
            std::vector<unsigned int> drawn(retired + fresh);
            manager->newIdents(drawn.data(), drawn.size());
            ASSERT_EQ(expected, drawn) << retired << " and " << fresh;
            all.insert(all.end(), drawn.end() - static_cast<std::ptrdiff_t>(fresh), drawn.end());
        }
    }
    manager->retireIdents(all.data(), all.size());
}

TEST(IdentManagerTest, HasNoDescription)
{
    EXPECT_EQ("", IdentManager::instance()->description());
}

}  // namespace test
}  // namespace tarn
