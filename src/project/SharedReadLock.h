#pragma once

#include "datatypes/Export.h"
#include "project/ReadWriteMutex.h"
#include "project/ThreadSafe.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace tarn {

/// A read lock that results share, as const iterators do. It also keeps the project alive, so that
/// the lock it releases still exists.
///
/// Never hold one across an edit on the same thread: the edit would wait for ever, or throw if the
/// lock is strict. That of a strict lock ends on the thread that acquired it.
class TARN_API SharedReadLock
{
public:
    /// @throws boost::bad_weak_ptr when the project is gone
    static boost::shared_ptr<SharedReadLock const> acquire(
        boost::weak_ptr<ThreadSafe const> const& project);

    SharedReadLock(SharedReadLock const&) = delete;
    SharedReadLock& operator=(SharedReadLock const&) = delete;

private:
    explicit SharedReadLock(boost::weak_ptr<ThreadSafe const> const& project);

    // Outlives the lock.
    boost::shared_ptr<ThreadSafe const> m_project;
    ReadWriteMutex::ScopedReadLock m_lock;
};

}  // namespace tarn
