#include "datatypes/NotifyDelay.h"

#include "datatypes/Subject.h"

#include <atomic>
#include <exception>
#include <list>
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
    using Entries = std::list<Entry>;

    void add(Entry const& entry);
    /// Takes the front entry out of the queue and puts it with those being told.
    /// @return false when nothing waits, or a delay is open again
    bool beginTelling(Entries::iterator& told);
    void endTelling(Entries::iterator told);
    void remove(Observable const* observable);
    std::vector<Observable const*> observables();

    std::atomic<int> s_refCount{0};
    std::mutex mutex;
    Entries s_subjects;
    // More than one when an observer edits. The entry of what has died meanwhile is empty.
    Entries beingTold;
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
    beingTold.erase(told);
}

void NotifyDelay::Queue::remove(Observable const* observable)
{
    std::lock_guard<std::mutex> const guard(mutex);
    s_subjects.remove_if([observable](Entry const& entry) {
        if (entry.isOf(observable)) {
            entry.count(-1);
        }
        return entry.isOf(observable);
    });
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
    for (Observable const* const observable : queue().observables()) {
        observable->detach(observer);
    }
}

}  // namespace tarn
