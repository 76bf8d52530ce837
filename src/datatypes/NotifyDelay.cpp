#include "datatypes/NotifyDelay.h"

#include "datatypes/Subject.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <deque>
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
    /// The notification that one delivery is at; delivering nests when an observer edits.
    struct Told
    {
        Entry entry{nullptr, nullptr};
        Told* outer = nullptr;
        bool isTold = false;
    };

    /// @throws std::bad_alloc for what is no Subject; a Subject's change has happened by now, and
    ///         so must be told
    void add(Entry const& entry);
    /// Sees to it that one more subject can wait when there is no memory.
    void addReserve();
    void dropReserve();
    /// Ends the telling of what `told` is at, and begins the next, which leaves the queue.
    /// @return false when nothing waits, or a delay is open again
    bool tellNext(Told& told);
    void remove(Observable const* observable);
    void remove(Subject const* subject);
    std::vector<Observable const*> observables();
    /// As many calls as needed give each entry once that is there, without an allocation; an empty
    /// one at the end.
    Observable const* nextUnseen(unsigned walk);

    std::atomic<int> s_refCount{0};
    std::mutex mutex;

private:
    bool isWaiting(Observable const* observable) const;
    void addFromReserve(Entry const& entry);
    void releaseFirstLate();
    bool takeFront(Entry& entry);
    void removeFromTold(Observable const* observable);
    static void takeOut(Entry& entry, Observable const* observable);
    static Observable const* markUnseen(Entry& entry, unsigned walk);

    // The entry of what has died meanwhile is empty, here and below.
    std::deque<Entry> s_subjects;
    // What has come since there was no memory for more of those above, until all of it is told.
    std::list<Entry> m_late;
    Told* m_beingTold = nullptr;
    // One node for each subject that is observed, but for those that are in use.
    std::list<Entry> m_reserve;
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
        if (m_late.empty()) {
            s_subjects.push_back(entry);
        } else {
            m_late.push_back(entry);
        }
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
    m_late.splice(m_late.end(), m_reserve, m_reserve.begin());
    ++m_numBorrowed;
    entry.count(1);
}

bool NotifyDelay::Queue::isWaiting(Observable const* observable) const
{
    auto const isOfIt = [observable](Entry const& entry) { return entry.isOf(observable); };
    return std::any_of(s_subjects.begin(), s_subjects.end(), isOfIt) ||
           std::any_of(m_late.begin(), m_late.end(), isOfIt);
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
void NotifyDelay::Queue::releaseFirstLate()
{
    if (m_numBorrowed == 0) {
        m_late.pop_front();
        return;
    }
    m_late.front() = Entry{nullptr, nullptr};
    m_reserve.splice(m_reserve.end(), m_late, m_late.begin());
    --m_numBorrowed;
}

/// Takes the oldest entry out whose observable is alive. @return false when none waits
bool NotifyDelay::Queue::takeFront(Entry& entry)
{
    while (!s_subjects.empty()) {
        entry = s_subjects.front();
        s_subjects.pop_front();
        if (entry.observable) {
            return true;
        }
    }
    while (!m_late.empty()) {
        entry = m_late.front();
        releaseFirstLate();
        if (entry.observable) {
            return true;
        }
    }
    return false;
}

bool NotifyDelay::Queue::tellNext(Told& told)
{
    std::lock_guard<std::mutex> const guard(mutex);
    if (told.isTold) {
        told.entry.count(-1);
        m_beingTold = told.outer;
        told.isTold = false;
    }
    if (s_refCount > 0 || !takeFront(told.entry)) {
        return false;
    }
    told.outer = m_beingTold;
    m_beingTold = &told;
    told.isTold = true;
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
    std::lock_guard<std::mutex> const guard(mutex);
    removeFromTold(observable);
    for (Entry& entry : s_subjects) {
        takeOut(entry, observable);
    }
    for (Entry& entry : m_late) {
        takeOut(entry, observable);
    }
}

/// What dies has mostly changed last: from the newest on, and no further than to its first.
void NotifyDelay::Queue::remove(Subject const* subject)
{
    std::lock_guard<std::mutex> const guard(mutex);
    removeFromTold(subject);
    for (auto it = m_late.rbegin(); subject->m_queueCount > 0 && it != m_late.rend(); ++it) {
        takeOut(*it, subject);
    }
    for (auto it = s_subjects.rbegin(); subject->m_queueCount > 0 && it != s_subjects.rend();
         ++it) {
        takeOut(*it, subject);
    }
}

std::vector<Observable const*> NotifyDelay::Queue::observables()
{
    std::lock_guard<std::mutex> const guard(mutex);
    std::vector<Observable const*> result;
    auto const note = [&result](Entry const& entry) {
        if (entry.observable) {
            result.push_back(entry.observable);
        }
    };
    for (Told const* told = m_beingTold; told; told = told->outer) {
        note(told->entry);
    }
    std::for_each(s_subjects.begin(), s_subjects.end(), note);
    std::for_each(m_late.begin(), m_late.end(), note);
    return result;
}

/// Gives what the entry is of, unless the walk has come by already.
Observable const* NotifyDelay::Queue::markUnseen(Entry& entry, unsigned walk)
{
    if (!entry.observable || entry.walk == walk) {
        return nullptr;
    }
    entry.walk = walk;
    return entry.observable;
}

Observable const* NotifyDelay::Queue::nextUnseen(unsigned walk)
{
    std::lock_guard<std::mutex> const guard(mutex);
    Observable const* found = nullptr;
    auto const marks = [&found, walk](Entry& entry) {
        found = markUnseen(entry, walk);
        return found != nullptr;
    };
    for (Told* told = m_beingTold; told && !found; told = told->outer) {
        marks(told->entry);
    }
    if (!found) {
        static_cast<void>(std::any_of(s_subjects.begin(), s_subjects.end(), marks) ||
                          std::any_of(m_late.begin(), m_late.end(), marks));
    }
    return found;
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
    // An observer may open a delay of its own, whose end then delivers what waits here.
    while (queue().tellNext(told)) {
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

void NotifyDelay::addObservable(Subject const* subject)
{
    queue().add(Queue::Entry{subject, subject});
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
