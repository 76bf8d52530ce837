#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

namespace tarn {

/// While one is open, no subject of the process reaches its observers; when the outermost closes,
/// each held notification goes out in order of arrival, duplicates and all.
///
/// Edits come from one thread at a time, and with them delays. The queue has its own lock, never
/// held while anyone is called, since reading threads destroy subjects as well.
class TARN_API NotifyDelay : public TarnObject
{
public:
    NotifyDelay();
    NotifyDelay(NotifyDelay const&) = delete;
    NotifyDelay& operator=(NotifyDelay const&) = delete;
    /// Runs host code.
    /// @throws the first exception of an observer, once every notification is out; it is dropped
    ///         when the stack is unwinding already
    ~NotifyDelay() noexcept(false);

    std::string description() const override;

    /// Whether one is open anywhere in the process.
    static bool isActive();
    /// Queues a notification.
    static void addObservable(Observable const* observable);
    /// Drops every entry of what dies, the one being told included.
    static void removeObservable(Observable const* observable);
    static void removeObservable(Subject const* subject);
    /// Detaches what dies from every subject that waits or is being told.
    static void removeObserver(Observer* observer);

private:
    friend class Subject;
    struct Queue;

    static Queue& queue();
    /// Queues a notification if a delay is open. @return false when none is
    static bool holdBack(Subject const* subject);
    static void deliver();
    /// For each subject that comes to be observed, and that is no more: room in the queue which is
    /// there when memory is not.
    static void addReserve();
    static void dropReserve();
};

}  // namespace tarn
