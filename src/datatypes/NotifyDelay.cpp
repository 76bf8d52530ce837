#include "datatypes/NotifyDelay.h"

#include "datatypes/SpinLock.h"
#include "datatypes/Subject.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <mutex>
#include <new>
#include <vector>

namespace tarn {

/// What the delays of the process share. Its lock is never held while anyone is called.
struct NotifyDelay::Queue
{
    /// One held notification.
    struct Entry
    {
        bool isOf(Observable const* other) const { return observable == other; }
        void count(int change) const;

        Observable const* observable;
        // The same object where it counts its entries; empty for a host's own kind of observable.
        Subject const* subject;
    };
    /// The notification that one delivery is at; delivering nests when an observer edits.
    struct Told
    {
        Entry entry{nullptr, nullptr};
        Told* outer = nullptr;
        bool isTold = false;
    };
    /// The how manieth entry of the process, which stays the same while others come and go.
    using Number = std::uint64_t;

    /// @throws std::bad_alloc for what is no Subject; a Subject's change has happened by now, and
    ///         so must be told
    void add(Entry const& entry);
    /// Sees to it that one more subject can wait when there is no memory.
    /// @throws std::bad_alloc
    void addReserve();
    void dropReserve();
    /// Ends the telling of what `told` is at and begins the next, which leaves the queue.
    /// @return false when nothing waits, or a delay is open again
    bool tellNext(Told& told);
    void remove(Observable const* observable);
    void remove(Subject const* subject);

    std::size_t numTold();
    /// Of those being told, the outermost first; empty when it has died, or is told by now.
    Observable const* toldAt(std::size_t depth);
    Number firstWaiting();
    Number endWaiting();
    /// Empty when it has died or left the queue.
    Observable const* waitingAt(Number number);

    std::atomic<int> s_refCount{0};

private:
    static void takeOut(Entry& entry, Observable const* observable);
    void removeFromTold(Observable const* observable);
    bool findRoom(Entry const& entry);
    bool mustBeToldStill(Entry const& entry) const;
    void dropFront();
    void closeUp();
    void makeRoom(std::size_t more);

    SpinLock m_lock;
    // Those before m_first have left; an entry of what has died meanwhile is empty. There is always
    // room for one more of each subject that is observed, but for those that have used theirs.
    std::vector<Entry> m_entries;
    std::size_t m_first = 0;
    Number m_firstNumber = 0;
    std::size_t m_numObserved = 0;
    Told* m_beingTold = nullptr;
};

void NotifyDelay::Queue::Entry::count(int change) const
{
    if (subject) {
        // Only the queue writes it, under its lock: there is nobody to race with in between.
        int const count = subject->m_queueCount.load(std::memory_order_relaxed);
        subject->m_queueCount.store(count + change, std::memory_order_relaxed);
    }
}

void NotifyDelay::Queue::add(Entry const& entry)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    if (m_entries.size() + 1 + m_numObserved <= m_entries.capacity() || findRoom(entry)) {
        m_entries.push_back(entry);
        entry.count(1);
    }
}

/// Room for one more, or what is held back for it. @return false when it need not wait
bool NotifyDelay::Queue::findRoom(Entry const& entry)
{
    try {
        makeRoom(1);
        return true;
    } catch (std::bad_alloc const&) {
        if (!entry.subject) {
            throw;
        }
        closeUp();
        return mustBeToldStill(entry);
    }
}

/// Who has no observers has nothing to tell; who waits already is told anyway, if only once.
bool NotifyDelay::Queue::mustBeToldStill(Entry const& entry) const
{
    return entry.subject->m_observers &&
           std::none_of(m_entries.begin(), m_entries.end(),
                        [&entry](Entry const& waiting) { return waiting.isOf(entry.observable); });
}

void NotifyDelay::Queue::addReserve()
{
    std::lock_guard<SpinLock> const guard(m_lock);
    makeRoom(1);
    ++m_numObserved;
}

void NotifyDelay::Queue::dropReserve()
{
    std::lock_guard<SpinLock> const guard(m_lock);
    --m_numObserved;
}

/// For so many, beside the room that is held back.
void NotifyDelay::Queue::makeRoom(std::size_t more)
{
    std::size_t const needed = more + m_numObserved;
    if (m_entries.size() + needed <= m_entries.capacity()) {
        return;
    }
    // Half of all, so that closing up takes no longer than adding did.
    if (2 * m_first >= m_entries.size()) {
        closeUp();
    }
    if (m_entries.size() + needed > m_entries.capacity()) {
        m_entries.reserve(2 * m_entries.size() + needed);
    }
}

void NotifyDelay::Queue::closeUp()
{
    m_entries.erase(m_entries.begin(),
                    m_entries.begin() + static_cast<std::vector<Entry>::difference_type>(m_first));
    m_first = 0;
}

void NotifyDelay::Queue::dropFront()
{
    ++m_firstNumber;
    if (++m_first == m_entries.size()) {
        closeUp();
    }
}

bool NotifyDelay::Queue::tellNext(Told& told)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    if (told.isTold) {
        told.entry.count(-1);
    } else {
        told.outer = m_beingTold;
    }
    while (!m_entries.empty() && !m_entries[m_first].observable) {
        dropFront();
    }
    told.isTold = s_refCount <= 0 && !m_entries.empty();
    if (!told.isTold) {
        m_beingTold = told.outer;
        return false;
    }
    told.entry = m_entries[m_first];
    dropFront();
    m_beingTold = &told;
    return true;
}

void NotifyDelay::Queue::takeOut(Entry& entry, Observable const* observable)
{
    if (entry.isOf(observable)) {
        entry.count(-1);
        entry = Entry{nullptr, nullptr};
    }
}

void NotifyDelay::Queue::removeFromTold(Observable const* observable)
{
    for (Told* told = m_beingTold; told; told = told->outer) {
        takeOut(told->entry, observable);
    }
}

void NotifyDelay::Queue::remove(Observable const* observable)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    removeFromTold(observable);
    for (std::size_t i = m_first; i < m_entries.size(); ++i) {
        takeOut(m_entries[i], observable);
    }
}

void NotifyDelay::Queue::remove(Subject const* subject)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    removeFromTold(subject);
    // What dies has mostly changed last: from the newest on, and no further than to its first.
    for (std::size_t i = m_entries.size(); subject->m_queueCount > 0 && i > m_first; --i) {
        takeOut(m_entries[i - 1], subject);
    }
}

std::size_t NotifyDelay::Queue::numTold()
{
    std::lock_guard<SpinLock> const guard(m_lock);
    std::size_t result = 0;
    for (Told const* told = m_beingTold; told; told = told->outer) {
        ++result;
    }
    return result;
}

Observable const* NotifyDelay::Queue::toldAt(std::size_t depth)
{
    std::size_t const size = numTold();
    std::lock_guard<SpinLock> const guard(m_lock);
    Told const* told = depth < size ? m_beingTold : nullptr;
    for (std::size_t i = depth + 1; told && i < size; ++i) {
        told = told->outer;
    }
    return told ? told->entry.observable : nullptr;
}

NotifyDelay::Queue::Number NotifyDelay::Queue::firstWaiting()
{
    std::lock_guard<SpinLock> const guard(m_lock);
    return m_firstNumber;
}

NotifyDelay::Queue::Number NotifyDelay::Queue::endWaiting()
{
    std::lock_guard<SpinLock> const guard(m_lock);
    return m_firstNumber + (m_entries.size() - m_first);
}

Observable const* NotifyDelay::Queue::waitingAt(Number number)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    return number < m_firstNumber ? nullptr
                                  : m_entries[m_first + (number - m_firstNumber)].observable;
}

NotifyDelay::Queue& NotifyDelay::queue()
{
    // Never freed: static subjects and observers of a host may die last.
    static Queue* const s_instance = new Queue;
    return *s_instance;
}

NotifyDelay::NotifyDelay()
{
    ++queue().s_refCount;
}

NotifyDelay::~NotifyDelay() noexcept(false)
{
    if (--queue().s_refCount == 0) {
        deliver();
    }
}

void NotifyDelay::deliver()
{
    std::exception_ptr first;
    Queue::Told told;
    Queue& waiting = queue();
    // An observer may open a delay of its own, whose end then delivers what waits here.
    while (waiting.tellNext(told)) {
        try {
            told.entry.observable->notify();
        } catch (...) {
            if (!first) {
                first = std::current_exception();
            }
        }
    }
    if (first && std::uncaught_exceptions() == 0) {
        std::rethrow_exception(first);
    }
}

std::string NotifyDelay::description() const
{
    return std::string();
}

bool NotifyDelay::isActive()
{
    return queue().s_refCount > 0;
}

void NotifyDelay::addObservable(Observable const* observable)
{
    queue().add(Queue::Entry{observable, dynamic_cast<Subject const*>(observable)});
}

bool NotifyDelay::holdBack(Subject const* subject)
{
    Queue& waiting = queue();
    if (waiting.s_refCount <= 0) {
        return false;
    }
    waiting.add(Queue::Entry{subject, subject});
    return true;
}

void NotifyDelay::removeObservable(Observable const* observable)
{
    queue().remove(observable);
}

void NotifyDelay::removeObservable(Subject const* subject)
{
    queue().remove(subject);
}

void NotifyDelay::removeObserver(Observer* observer)
{
    // Step by step, without a list of its own: an observer dies without memory, too.
    std::size_t const numTold = queue().numTold();
    for (std::size_t depth = 0; depth < numTold; ++depth) {
        if (Observable const* const observable = queue().toldAt(depth)) {
            observable->detach(observer);
        }
    }
    Queue::Number const end = queue().endWaiting();
    for (Queue::Number number = queue().firstWaiting(); number < end; ++number) {
        if (Observable const* const observable = queue().waitingAt(number)) {
            observable->detach(observer);
        }
    }
}

void NotifyDelay::addReserve()
{
    queue().addReserve();
}

void NotifyDelay::dropReserve()
{
    queue().dropReserve();
}

}  // namespace tarn
