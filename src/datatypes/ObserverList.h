#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>

namespace tarn {

/// The observers of one subject, in order of attachment; none is owned. No lock.
///
/// It may be changed, and even die, while it notifies: what is attached meanwhile is still called,
/// what is detached before its turn is not.
class TARN_API ObserverList
{
public:
    ObserverList();
    ~ObserverList();
    ObserverList(ObserverList const&) = delete;
    ObserverList& operator=(ObserverList const&) = delete;

    /// Appends; an empty pointer is not listed.
    void attach(Observer* observer);
    /// Takes out every entry of that observer.
    void detach(Observer* observer);
    /// Whether the observer stands in the list at least once.
    bool isAttached(Observer* observer) const;
    std::size_t size() const;

    /// Calls each from front to back.
    /// @throws the first exception of an observer, once all have been called
    void notify();

private:
    struct Entries;
    class Walk;

    // Shared with the walks in progress, which may outlive the list.
    boost::shared_ptr<Entries> m_entries;
};

}  // namespace tarn
