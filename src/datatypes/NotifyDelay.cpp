#include "datatypes/NotifyDelay.h"

#include "datatypes/Subject.h"

#include <atomic>
#include <deque>
#include <exception>
#include <mutex>
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
    };
    /// The notification that one delivery is at; delivering nests when an observer edits.
    struct Told
    {
        Entry entry{nullptr, nullptr};
        Told* outer = nullptr;
        bool isTold = false;
    };

    void add(Entry const& entry);
    /// Ends the telling of what `told` is at and begins the next, which leaves the queue.
    /// @return false when nothing waits, or a delay is open again
    bool tellNext(Told& told);
    void remove(Observable const* observable);
    void remove(Subject const* subject);
    std::vector<Observable const*> observables();

    std::atomic<int> s_refCount{0};
    std::mutex mutex;
    // The entry of what has died meanwhile is empty.
    std::deque<Entry> s_subjects;
    Told* beingTold = nullptr;

private:
    static bool takeOut(Entry& entry, Observable const* observable);
    void removeFromTold(Observable const* observable);
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
    s_subjects.push_back(entry);
    entry.count(1);
}

bool NotifyDelay::Queue::tellNext(Told& told)
{
    std::lock_guard<std::mutex> const guard(mutex);
    if (told.isTold) {
        told.entry.count(-1);
        beingTold = told.outer;
        told.isTold = false;
    }
    while (!s_subjects.empty() && !s_subjects.front().observable) {
        s_subjects.pop_front();
    }
    if (s_refCount > 0 || s_subjects.empty()) {
        return false;
    }
    told.entry = s_subjects.front();
    s_subjects.pop_front();
    told.outer = beingTold;
    beingTold = &told;
    told.isTold = true;
    return true;
}

bool NotifyDelay::Queue::takeOut(Entry& entry, Observable const* observable)
{
    if (!entry.isOf(observable)) {
        return false;
    }
    entry.count(-1);
    entry = Entry{nullptr, nullptr};
    return true;
}

void NotifyDelay::Queue::removeFromTold(Observable const* observable)
{
    for (Told* told = beingTold; told; told = told->outer) {
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
}

void NotifyDelay::Queue::remove(Subject const* subject)
{
    std::lock_guard<std::mutex> const guard(mutex);
    removeFromTold(subject);
    // What dies has mostly changed last: from the newest on, and no further than to its first.
    auto const end = s_subjects.rend();
    for (auto entry = s_subjects.rbegin(); subject->m_queueCount > 0 && entry != end; ++entry) {
        takeOut(*entry, subject);
    }
}

std::vector<Observable const*> NotifyDelay::Queue::observables()
{
    std::lock_guard<std::mutex> const guard(mutex);
    std::vector<Observable const*> result;
    for (Told const* told = beingTold; told; told = told->outer) {
        if (told->entry.observable) {
            result.push_back(told->entry.observable);
        }
    }
    for (Entry const& entry : s_subjects) {
        if (entry.observable) {
            result.push_back(entry.observable);
        }
    }
    return result;
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
    for (Observable const* const observable : queue().observables()) {
        observable->detach(observer);
    }
}

}  // namespace tarn
