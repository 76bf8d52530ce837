#include "commands/CommandObserver.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

class CountsCommands : public CommandObserver
{
public:
    void onPreCommand() override { ++m_calls; }

    int m_calls = 0;
};

}  // namespace

TEST(CommandObserverTest, IsCalledOnce)
{
    CountsCommands observer;
    notifyPreCommandObservers(&observer);
    EXPECT_EQ(1, observer.m_calls);
}

TEST(CommandObserverTest, NoObserverIsNoFailure)
{
    EXPECT_NO_THROW(notifyPreCommandObservers(nullptr));
}

}  // namespace test
}  // namespace tarn
