#include "datatypes/NotifyDelay.h"

#include "datatypes/Subject.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <exception>
#include <list>
#include <mutex>
#include <new>
#include <vector>

namespace tarn {

/// What the delays of the process share. Its mutex is never held while anyone is called.
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
        // The last walk that has come by.
        unsigned walk = 0;
    };
    using Entries = std::list<Entry>;

    /// @throws std::bad_alloc for what is no Subject; a Subject's change has happened by now, and
    ///         so must be told
    void add(Entry const& entry);
    /// Sees to it that one more subject can wait when there is no memory.
    void addReserve();
    void dropReserve();
    /// Takes the front entry out of the queue and puts it with those being told.
    /// @return false when nothing waits, or a delay is open again
    bool beginTelling(Entries::iterator& told);
    void endTelling(Entries::iterator told);
    void remove(Observable const* observable);
    std::vector<Observable const*> observables();
    /// As many calls as needed give each entry once that is there, without an allocation; an empty
    /// one at the end.
    Observable const* nextUnseen(unsigned walk);

    std::atomic<int> s_refCount{0};
    std::mutex mutex;
    Entries s_subjects;
    // More than one when an observer edits. The entry of what has died meanwhile is empty.
    Entries beingTold;

private:
    bool isWaiting(Observable const* observable) const;
    void addFromReserve(Entry const& entry);
    void release(Entries& from, Entries::iterator entry);

    // One node for each subject that is observed, but for those that are in use.
    Entries m_reserve;
    std::size_t m_numBorrowed = 0;
};

void NotifyDelay::Queue::Entry::count(int change) const
{
    if (subject) {
        subject->m_queueCount += change;
    }
}

void NotifyDelay::Queue::add(Entry const& entry)
{
    std::lock_guard<std::mutex> const guard(mutex);
    try {
        s_subjects.push_back(entry);
        entry.count(1);
    } catch (std::bad_alloc const&) {
        if (!entry.subject) {
            throw;
        }
        addFromReserve(entry);
    }
}

/// Who has no observers has nothing to tell; who waits already is told anyway, if only once.
void NotifyDelay::Queue::addFromReserve(Entry const& entry)
{
    if (!entry.subject->m_observers || m_reserve.empty() || isWaiting(entry.observable)) {
        return;
    }
    m_reserve.front() = entry;
    s_subjects.splice(s_subjects.end(), m_reserve, m_reserve.begin());
    ++m_numBorrowed;
    entry.count(1);
}

bool NotifyDelay::Queue::isWaiting(Observable const* observable) const
{
    return std::any_of(s_subjects.begin(), s_subjects.end(),
                       [observable](Entry const& entry) { return entry.isOf(observable); });
}

void NotifyDelay::Queue::addReserve()
{
    std::lock_guard<std::mutex> const guard(mutex);
    m_reserve.push_back(Entry{nullptr, nullptr});
}

void NotifyDelay::Queue::dropReserve()
{
    std::lock_guard<std::mutex> const guard(mutex);
    if (m_reserve.empty()) {
        --m_numBorrowed;
    } else {
        m_reserve.pop_front();
    }
}

/// Any node will do for what was borrowed.
void NotifyDelay::Queue::release(Entries& from, Entries::iterator entry)
{
    if (m_numBorrowed == 0) {
        from.erase(entry);
        return;
    }
    *entry = Entry{nullptr, nullptr};
    m_reserve.splice(m_reserve.end(), from, entry);
    --m_numBorrowed;
}

bool NotifyDelay::Queue::beginTelling(Entries::iterator& told)
{
    std::lock_guard<std::mutex> const guard(mutex);
    if (s_refCount > 0 || s_subjects.empty()) {
        return false;
    }
    told = s_subjects.begin();
    beingTold.splice(beingTold.end(), s_subjects, told);
    return true;
}

void NotifyDelay::Queue::endTelling(Entries::iterator told)
{
    std::lock_guard<std::mutex> const guard(mutex);
    told->count(-1);
    release(beingTold, told);
}

void NotifyDelay::Queue::remove(Observable const* observable)
{
    std::lock_guard<std::mutex> const guard(mutex);
    for (Entries::iterator it = s_subjects.begin(); it != s_subjects.end();) {
        Entries::iterator const entry = it++;
        if (entry->isOf(observable)) {
            entry->count(-1);
            release(s_subjects, entry);
        }
    }
    for (Entry& entry : beingTold) {
        if (entry.isOf(observable)) {
            entry.count(-1);
            entry = Entry{nullptr, nullptr};
        }
    }
}

std::vector<Observable const*> NotifyDelay::Queue::observables()
{
    std::lock_guard<std::mutex> const guard(mutex);
    std::vector<Observable const*> result;
    for (Entry const& entry : beingTold) {
        if (entry.observable) {
            result.push_back(entry.observable);
        }
    }
    for (Entry const& entry : s_subjects) {
        result.push_back(entry.observable);
    }
    return result;
}

Observable const* NotifyDelay::Queue::nextUnseen(unsigned walk)
{
    std::lock_guard<std::mutex> const guard(mutex);
    for (Entries* const entries : {&beingTold, &s_subjects}) {
        for (Entry& entry : *entries) {
            if (entry.observable && entry.walk != walk) {
                entry.walk = walk;
                return entry.observable;
            }
        }
    }
    return nullptr;
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
    Queue::Entries::iterator told;
    // An observer may open a delay of its own, whose end then delivers what waits here.
    while (queue().beginTelling(told)) {
        try {
            told->observable->notify();
        } catch (...) {
            if (!first) {
                first = std::current_exception();
            }
        }
        queue().endTelling(told);
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

void NotifyDelay::addObservable(Subject const* subject)
{
    queue().add(Queue::Entry{subject, subject});
}

void NotifyDelay::removeObservable(Observable const* observable)
{
    queue().remove(observable);
}

void NotifyDelay::removeObserver(Observer* observer)
{
    std::vector<Observable const*> observables;
    try {
        observables = queue().observables();
    } catch (std::bad_alloc const&) {
        removeObserverSlowly(observer);
        return;
    }
    for (Observable const* const observable : observables) {
        observable->detach(observer);
    }
}

/// Begins at the front again after each call, as it cannot note the way: an observer dies without
/// memory, too.
void NotifyDelay::removeObserverSlowly(Observer* observer)
{
    static std::atomic<unsigned> s_walks{0};
    unsigned const walk = ++s_walks;
    while (Observable const* const observable = queue().nextUnseen(walk)) {
        observable->detach(observer);
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
