#include "datatypes/Subject.h"

#include "datatypes/NotifyDelay.h"

#include <utility>

namespace tarn {

Subject::NotifyDisabler::NotifyDisabler(Subject* subject) : m_subject(subject)
{
    ++m_subject->m_disableCount;
}

Subject::NotifyDisabler::NotifyDisabler(NotifyDisabler const& other)
    : NotifyDisabler(other.m_subject)
{}

Subject::NotifyDisabler::~NotifyDisabler()
{
    --m_subject->m_disableCount;
}

Subject::Subject() : m_disableCount(0), m_queueCount(0) {}

Subject::Subject(Subject const&) : Subject() {}

Subject& Subject::operator=(Subject const&)
{
    return *this;
}

Subject::~Subject()
{
    if (m_queueCount != 0) {
        NotifyDelay::removeObservable(this);
    }
    if (m_observers) {
        NotifyDelay::dropReserve();
    }
}

void Subject::attach(Observer* observer) const
{
    if (!m_observers) {
        std::unique_ptr<ObserverList> observers = std::make_unique<ObserverList>();
        NotifyDelay::addReserve();
        m_observers = std::move(observers);
    }
    m_observers->attach(observer);
}

void Subject::detach(Observer* observer) const
{
    if (m_observers && m_observers->isAttached(observer)) {
        m_observers->detach(observer);
    }
}

void Subject::notify() const
{
    if (m_disableCount > 0) {
        return;
    }
    if (NotifyDelay::holdBack(this)) {
        return;
    }
    if (m_observers) {
        m_observers->notify();
    }
}

}  // namespace tarn
