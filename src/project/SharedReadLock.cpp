#include "project/SharedReadLock.h"

#include <boost/make_shared.hpp>

namespace tarn {

boost::shared_ptr<SharedReadLock const> SharedReadLock::acquire(
    boost::weak_ptr<ThreadSafe const> const& project)
{
    // In one piece with its count, as iterators come and go.
    struct Made : SharedReadLock
    {
        explicit Made(boost::weak_ptr<ThreadSafe const> const& owner) : SharedReadLock(owner) {}
    };
    return boost::make_shared<Made>(project);
}

SharedReadLock::SharedReadLock(boost::weak_ptr<ThreadSafe const> const& project)
    : m_project(project), m_lock(m_project->mutex())
{}

}  // namespace tarn
