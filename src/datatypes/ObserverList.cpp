#include "datatypes/ObserverList.h"

#include "datatypes/Observer.h"

#include <algorithm>
#include <exception>
#include <list>

namespace tarn {

/// While a walk is in progress an entry taken out becomes an empty pointer, so that every walk's
/// position stays good; the last walk sweeps them out.
struct ObserverList::Entries
{
    std::list<Observer*> observers;
    int walks = 0;
};

/// Keeps the entries, also beyond the death of their list, and sweeps behind the last walk.
class ObserverList::Walk
{
public:
    explicit Walk(boost::shared_ptr<Entries> const& entries) : m_entries(entries)
    {
        ++m_entries->walks;
    }
    ~Walk()
    {
        --m_entries->walks;
        if (m_entries->walks == 0) {
            m_entries->observers.remove(nullptr);
        }
    }
    Walk(Walk const&) = delete;
    Walk& operator=(Walk const&) = delete;

    std::list<Observer*> const& observers() const { return m_entries->observers; }

private:
    boost::shared_ptr<Entries> m_entries;
};

ObserverList::ObserverList() : m_entries(new Entries) {}

ObserverList::~ObserverList()
{
    std::list<Observer*>& observers = m_entries->observers;
    std::fill(observers.begin(), observers.end(), nullptr);
}

void ObserverList::attach(Observer* observer)
{
    if (observer) {
        m_entries->observers.push_back(observer);
    }
}

void ObserverList::detach(Observer* observer)
{
    std::list<Observer*>& observers = m_entries->observers;
    if (m_entries->walks == 0) {
        observers.remove(observer);
    } else {
        std::replace(observers.begin(), observers.end(), observer, static_cast<Observer*>(nullptr));
    }
}

bool ObserverList::isAttached(Observer* observer) const
{
    std::list<Observer*> const& observers = m_entries->observers;
    return observer && std::find(observers.begin(), observers.end(), observer) != observers.end();
}

std::size_t ObserverList::size() const
{
    std::list<Observer*> const& observers = m_entries->observers;
    return observers.size() -
           static_cast<std::size_t>(std::count(observers.begin(), observers.end(), nullptr));
}

void ObserverList::notify()
{
    Walk const walk(m_entries);
    std::exception_ptr first;
    for (Observer* const& observer : walk.observers()) {
        if (observer) {
            try {
                observer->observerUpdate();
            } catch (...) {
                if (!first) {
                    first = std::current_exception();
                }
            }
        }
    }
    if (first) {
        std::rethrow_exception(first);
    }
}

}  // namespace tarn
