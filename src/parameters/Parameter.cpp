#include "parameters/Parameter.h"

#include "project/SharedReadLock.h"

#include <limits>
#include <utility>

namespace tarn {

namespace {

/// None for a dead project, whose parameters nobody edits any more.
boost::shared_ptr<SharedReadLock const> lockIfAlive(
    boost::weak_ptr<ThreadSafe const> const& project)
{
    boost::shared_ptr<ThreadSafe const> const alive = project.lock();
    return alive ? SharedReadLock::acquire(project) : boost::shared_ptr<SharedReadLock const>();
}

}  // namespace

template <class T>
Parameter<T>::Parameter(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name,
                        ReservedIdent attributeIdent)
    : SubProject(project), Identified(project, name, std::move(attributeIdent))
{}

template <class T>
Parameter<T>::Parameter(Parameter const& other)
    : XMLIdentified(other)
    , SubProject(other)
    , ParameterInterface(other)
    , Identified(other)
    , boost::enable_shared_from_this<Parameter<T>>(other)
{}

template <class T>
ParameterIterator<T> Parameter<T>::begin() const
{
    boost::shared_ptr<SharedReadLock const> const lock = lockIfAlive(this->projectMutex());
    return ParameterIterator<T>(firstKeyFrameTime(), this, lock);
}

template <class T>
ParameterIterator<T> Parameter<T>::end() const
{
    return ParameterIterator<T>(std::numeric_limits<long long>::max(), this,
                                lockIfAlive(this->projectMutex()));
}

#define TARN_INSTANTIATE(T) template class Parameter<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
