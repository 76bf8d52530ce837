#include "project/Project.h"

#include "project/InternalProject.h"

namespace tarn {

boost::shared_ptr<Project> Project::create(boost::rational<unsigned long> const& rate,
                                           LockPolicy policy)
{
    return InternalProject::create(rate, policy);
}

boost::shared_ptr<Project> Project::create(unsigned int numerator, unsigned int denominator,
                                           LockPolicy policy)
{
    return create(boost::rational<unsigned long>(numerator, denominator), policy);
}

}  // namespace tarn
