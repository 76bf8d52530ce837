#pragma once

#include "datatypes/Export.h"
#include "datatypes/Observable.h"
#include "datatypes/ObserverList.h"

#include <atomic>
#include <memory>

namespace tarn {

/// Tells its observers when it has changed.
///
/// Three brakes: a NotifyDisabler drops what is notified in its scope, a NotifyDelay holds it back,
/// an UpdateCollector gathers it. No lock: what observes the model attaches and detaches on the
/// editing thread, or with the project's lock held.
class TARN_API Subject : public Observable
{
public:
    /// Silences one subject for a scope; what it notifies meanwhile is lost. Copies count as well.
    class TARN_API NotifyDisabler
    {
    public:
        explicit NotifyDisabler(Subject* subject);
        NotifyDisabler(NotifyDisabler const& other);
        NotifyDisabler& operator=(NotifyDisabler const&) = delete;
        ~NotifyDisabler();

    private:
        Subject* m_subject;
    };

    Subject();
    /// Observers do not follow a copy, nor does its silence.
    Subject(Subject const& other);
    /// Changes nothing.
    Subject& operator=(Subject const& other);
    ~Subject() override;

    void attach(Observer* observer) const override;
    /// Silent when that observer is not attached.
    void detach(Observer* observer) const override;
    /// With a NotifyDelay open it throws nothing: when there is no memory to queue, who observes
    /// this is told all the same, though perhaps once for several changes.
    /// @throws what an observer throws, unless a NotifyDelay is open
    void notify() const override;

    /// Whether no NotifyDisabler is alive.
    bool isNotifying() const { return m_disableCount == 0; }
    /// Silent for as long as the result lives.
    NotifyDisabler disableNotifies() { return NotifyDisabler(this); }

private:
    friend class NotifyDelay;

    // Made for the first observer: most subjects never have one.
    mutable std::unique_ptr<ObserverList> m_observers;
    int m_disableCount;
    // How often this stands in the delay queue, kept by NotifyDelay under its lock, so that the
    // death of a subject that waits nowhere need not search the queue.
    mutable std::atomic<int> m_queueCount;
};

}  // namespace tarn
