#pragma once

#include "project/ReadWriteMutex.h"
#include "project/ThreadSafe.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace tarn {
namespace test {

/// Stands for a project where only its lock is asked for.
class LockOwner : public ThreadSafe
{
public:
    static boost::shared_ptr<LockOwner> create() { return boost::make_shared<LockOwner>(); }

    ReadWriteMutex& mutex() const override { return m_mutex; }

private:
    mutable ReadWriteMutex m_mutex;
};

}  // namespace test
}  // namespace tarn
