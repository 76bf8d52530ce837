#include "project/SubProject.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <boost/throw_exception.hpp>

namespace tarn {

SubProject::SubProject(boost::weak_ptr<ThreadSafe const> const& project)
    : m_project(project), m_owner(project.lock().get())
{}

void SubProject::throwProjectIsGone()
{
    boost::throw_exception(boost::bad_weak_ptr());
}

std::string SubProject::description() const
{
    return std::string();
}

}  // namespace tarn
