#include "project/SharedReadLock.h"

namespace tarn {

boost::shared_ptr<SharedReadLock const> SharedReadLock::acquire(
    boost::weak_ptr<ThreadSafe const> const& project)
{
    return boost::shared_ptr<SharedReadLock const>(new SharedReadLock(project));
}

SharedReadLock::SharedReadLock(boost::weak_ptr<ThreadSafe const> const& project)
    : m_project(project), m_lock(m_project->mutex())
{}

}  // namespace tarn
