#include "project/Project.h"

#include "project/InternalProject.h"

namespace tarn {

boost::shared_ptr<Project> Project::create(boost::rational<unsigned long> const& rate)
{
    return InternalProject::create(rate);
}

boost::shared_ptr<Project> Project::create(unsigned int numerator, unsigned int denominator)
{
    return create(boost::rational<unsigned long>(numerator, denominator));
}

}  // namespace tarn
