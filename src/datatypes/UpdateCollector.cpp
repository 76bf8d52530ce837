#include "datatypes/UpdateCollector.h"

#include "datatypes/Observable.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <new>
#include <set>

namespace tarn {

struct UpdateCollector::State
{
    using Observables = std::set<boost::shared_ptr<Observable const>>;

    std::mutex mutex;
    Observables observables;
    std::atomic<bool> isCollecting{false};
};

UpdateCollector::Collection::Collection()
{
    UpdateCollector::instance()->startCollecting();
}

UpdateCollector::Collection::~Collection() noexcept(false)
{
    try {
        UpdateCollector::instance()->stopCollecting();
    } catch (...) {
        if (std::uncaught_exceptions() == 0) {
            throw;
        }
    }
}

UpdateCollector* UpdateCollector::instance()
{
    // Never freed: what it is asked by may be static in a host.
    static UpdateCollector* const s_instance = new UpdateCollector;
    return s_instance;
}

UpdateCollector::UpdateCollector() : m_state(std::make_unique<State>()) {}

UpdateCollector::~UpdateCollector() = default;

void UpdateCollector::startCollecting()
{
    m_state->isCollecting = true;
}

void UpdateCollector::stopCollecting()
{
    m_state->isCollecting = false;
    State::Observables observables;
    {
        std::lock_guard<std::mutex> const guard(m_state->mutex);
        observables.swap(m_state->observables);
    }
    std::exception_ptr first;
    for (boost::shared_ptr<Observable const> const& observable : observables) {
        try {
            observable->notify();
        } catch (...) {
            if (!first) {
                first = std::current_exception();
            }
        }
    }
    if (first) {
        std::rethrow_exception(first);
    }
}

bool UpdateCollector::isCollecting() const
{
    return m_state->isCollecting;
}

void UpdateCollector::addObservable(boost::shared_ptr<Observable const> const& observable)
{
    if (!observable) {
        return;
    }
    try {
        std::lock_guard<std::mutex> const guard(m_state->mutex);
        m_state->observables.insert(observable);
    } catch (std::bad_alloc const&) {
        tellAtOnce(*observable);
    }
}

/// Its change has happened, and so must be told.
void UpdateCollector::tellAtOnce(Observable const& observable)
{
    m_state->isCollecting = false;
    try {
        observable.notify();
    } catch (...) {
        m_state->isCollecting = true;
        throw;
    }
    m_state->isCollecting = true;
}

std::string UpdateCollector::description() const
{
    return std::string();
}

}  // namespace tarn
