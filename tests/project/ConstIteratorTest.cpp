#include "project/ConstIterator.h"

#include "support/LockOwner.h"
#include "support/OtherThread.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

#include <iterator>
#include <list>
#include <map>
#include <memory>
#include <string>

namespace tarn {
namespace test {

namespace {

using List = std::list<std::string>;
using Iterator = ConstIterator<List>;

class ConstIteratorTest : public testing::Test
{
protected:
    Iterator begin() const { return Iterator(m_list.begin(), m_project); }
    Iterator end() const { return Iterator(m_list.end(), m_project); }

    boost::shared_ptr<LockOwner> m_project = LockOwner::create();
    List m_list{"a", "bc", "d"};
};

}  // namespace

TEST_F(ConstIteratorTest, WalksForward)
{
    Iterator it = begin();
    EXPECT_EQ("a", *it);
    EXPECT_EQ("bc", *++it);
    EXPECT_EQ("bc", *it++);
    EXPECT_EQ("d", *it);
    EXPECT_EQ(end(), ++it);
}

TEST_F(ConstIteratorTest, WalksBackward)
{
    Iterator it = end();
    EXPECT_EQ("d", *--it);
    EXPECT_EQ("d", *it--);
    EXPECT_EQ("bc", *it);
    EXPECT_NE(begin(), it);
}

TEST_F(ConstIteratorTest, LooksIntoTheElement)
{
    EXPECT_EQ(2u, (++begin())->size());
}

TEST_F(ConstIteratorTest, KnowsItsPositionInTheContainer)
{
    EXPECT_EQ(m_list.begin(), begin().base());
}

TEST_F(ConstIteratorTest, ServesStandardAlgorithms)
{
    EXPECT_EQ(3, std::distance(begin(), end()));
    EXPECT_EQ("d", *std::reverse_iterator<Iterator>(end()));
    EXPECT_EQ(List({"a", "bc", "d"}), List(begin(), end()));
}

TEST_F(ConstIteratorTest, ShowsTheEntriesOfAMap)
{
    using Map = std::map<long long, std::string>;
    Map const map{{7, "seven"}};
    ConstIterator<Map> const it(map.begin(), m_project);
    EXPECT_EQ(7, it->first);
    EXPECT_EQ("seven", it->second);
}

TEST_F(ConstIteratorTest, LocksWritersOutUntilItsLastCopyDies)
{
    std::unique_ptr<Iterator> it = std::make_unique<Iterator>(begin());
    std::unique_ptr<Iterator> copy = std::make_unique<Iterator>(*it);
    it.reset();
    OtherThread writer([this] { ReadWriteMutex::ScopedWriteLock const lock(m_project->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    copy.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(ConstIteratorTest, SharesALockThatIsHeldAlready)
{
    boost::shared_ptr<SharedReadLock const> lock = SharedReadLock::acquire(m_project);
    Iterator it(m_list.begin(), lock);
    lock.reset();
    OtherThread writer([this] { ReadWriteMutex::ScopedWriteLock const held(m_project->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    it = Iterator();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(ConstIteratorTest, CannotBeHadFromAProjectThatIsGone)
{
    boost::weak_ptr<ThreadSafe const> const gone = LockOwner::create();
    EXPECT_THROW(Iterator(m_list.begin(), gone), boost::bad_weak_ptr);
}

TEST_F(ConstIteratorTest, KeepsItsProjectAlive)
{
    boost::weak_ptr<LockOwner> const watch = m_project;
    std::unique_ptr<Iterator> it = std::make_unique<Iterator>(begin());
    m_project.reset();
    EXPECT_FALSE(watch.expired());
    it.reset();
    EXPECT_TRUE(watch.expired());
}

}  // namespace test
}  // namespace tarn
