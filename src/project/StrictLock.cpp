#include "project/StrictLock.h"

#include "exceptions/ThreadLockingException.h"

#include <algorithm>
#include <cstddef>

namespace tarn {

namespace {

/// What a thread holds of one lock. While either count is above 0, the thread is past the gate.
struct Hold
{
    std::uint64_t lock;
    int reads;
    int writes;

    bool isEmpty() const { return reads == 0 && writes == 0; }
    bool onlyReads() const { return reads > 0 && writes == 0; }
};

/// All that a thread holds, mostly of one lock or two.
///
/// Made of zeros and without a destructor: other objects of the thread may use locks until its very
/// end. Takes memory only for more locks than anyone should hold, and gives it back with the last.
class Holds
{
public:
    Hold* find(std::uint64_t lock)
    {
        Hold* const all = holds();
        for (std::size_t i = 0; i < m_size; ++i) {
            if (all[i].lock == lock) {
                return all + i;
            }
        }
        return nullptr;
    }
    /// Invalidates what find() gave.
    Hold& add(std::uint64_t lock)
    {
        if (m_size == (m_many ? m_capacity : k_few)) {
            grow();
        }
        Hold& added = holds()[m_size++];
        added = Hold{lock, 0, 0};
        return added;
    }
    void drop(Hold& hold)
    {
        hold = holds()[--m_size];
        if (m_size == 0) {
            delete[] m_many;
            m_many = nullptr;
        }
    }

private:
    static std::size_t constexpr k_few = 8;

    Hold* holds() { return m_many ? m_many : m_few; }
    void grow()
    {
        Hold* const grown = new Hold[2 * m_size];
        std::copy_n(holds(), m_size, grown);
        delete[] m_many;
        m_many = grown;
        m_capacity = 2 * m_size;
    }

    Hold m_few[k_few];
    Hold* m_many;
    std::size_t m_capacity;
    std::size_t m_size;
};

thread_local Holds s_holds;

std::uint64_t nextNumber()
{
    static std::atomic<std::uint64_t> s_last{0};
    return ++s_last;
}

void refuseReader(Hold const* hold)
{
    if (hold && hold->onlyReads()) {
        throw ThreadLockingException("trying to aquire a write lock while reading");
    }
}

}  // namespace

StrictLock::StrictLock() : m_number(nextNumber()) {}

void StrictLock::acquireReadLock()
{
    if (Hold* const hold = s_holds.find(m_number)) {
        ++hold->reads;
        return;
    }
    Hold& hold = s_holds.add(m_number);
    m_gate.enterTogether();
    hold.reads = 1;
}

void StrictLock::releaseReadLock()
{
    Hold* const hold = s_holds.find(m_number);
    if (!hold || hold->reads == 0) {
        return;
    }
    --hold->reads;
    if (hold->isEmpty()) {
        s_holds.drop(*hold);
        m_gate.leaveTogether();
    }
}

void StrictLock::acquireWriteLock()
{
    Hold* const hold = s_holds.find(m_number);
    refuseReader(hold);
    if (hold) {
        ++hold->writes;
        return;
    }
    Hold& added = s_holds.add(m_number);
    m_gate.enterAlone();
    added.writes = 1;
}

void StrictLock::releaseWriteLock()
{
    Hold* const hold = s_holds.find(m_number);
    if (!hold || hold->writes == 0) {
        return;
    }
    --hold->writes;
    if (hold->onlyReads()) {
        m_gate.goOnTogether();
    } else if (hold->isEmpty()) {
        s_holds.drop(*hold);
        m_gate.leaveAlone();
    }
}

void StrictLock::assertNoReadLockFromThisThread() const
{
    refuseReader(s_holds.find(m_number));
}

}  // namespace tarn
