#include "project/SubProject.h"

namespace tarn {

SubProject::SubProject(boost::weak_ptr<ThreadSafe const> const& project) : m_project(project) {}

std::string SubProject::description() const
{
    return std::string();
}

}  // namespace tarn
