#include "parameters/InterpolatingParam.h"

#include "parameters/Attribute.h"
#include "parameters/ConstParameterDispatcher.h"
#include "parameters/LeftParameter.h"
#include "parameters/LinearInterpolater.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterDispatcher.h"
#include "project/ReadWriteMutex.h"

#include <ostream>
#include <sstream>

namespace tarn {

template <class T>
InterpolatingParam<T>::InterpolatingParam(boost::weak_ptr<ThreadSafe const> const& project,
                                          std::string const& name)
    : ParameterImpl<T>(project, name)
    , m_interpolater(new LeftParameter<boost::shared_ptr<Interpolater<T>>>(project, "interpolater"))
{
    m_interpolater->addKeyFrame(0, LinearInterpolater<T>::instance());
}

template <class T>
InterpolatingParam<T>::InterpolatingParam(InterpolatingParam const& other)
    : XMLIdentified(other)
    , ParameterImpl<T>(other)
    , Parametric(other)
    , m_interpolater(other.m_interpolater->clone())
{}

template <class T>
std::string InterpolatingParam<T>::description() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    std::ostringstream out;
    for (std::size_t i = 0; i < this->times().size(); ++i)
        out << this->times()[i] << ", " << this->frames()[i].get() << '\n';
    return out.str();
}

template <class T>
void InterpolatingParam<T>::receiveDispatcher(ParameterDispatcher* dispatcher)
{
    dispatcher->dispatch(boost::static_pointer_cast<InterpolatingParam>(this->shared_from_this()));
}

template <class T>
void InterpolatingParam<T>::receiveDispatcher(ConstParameterDispatcher* dispatcher) const
{
    dispatcher->dispatch(
        boost::static_pointer_cast<InterpolatingParam const>(this->shared_from_this()));
}

template <class T>
boost::shared_ptr<Interpolater<T>> InterpolatingParam<T>::interpolaterAtTime(double time) const
{
    return m_interpolater->valueAtTime(time);
}

template <class T>
boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>>
InterpolatingParam<T>::interpolaterParam() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return m_interpolater;
}

template <class T>
InterpolatingParam<T>* InterpolatingParam<T>::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return new InterpolatingParam(*this);
}

template <class T>
double InterpolatingParam<T>::toParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return time;
}

template <class T>
double InterpolatingParam<T>::fromParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return time;
}

template <class T>
long long InterpolatingParam<T>::fromGlobalToParametricTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return time;
}

template <class T>
int InterpolatingParam<T>::numParameters() const
{
    return 1;
}

template <class T>
boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
InterpolatingParam<T>::parameterVector() const
{
    using Parameters = MTVector<boost::shared_ptr<ParameterInterface const>>;
    boost::shared_ptr<Parameters> const parameters(new Parameters(this->projectMutex()));
    parameters->push_back(m_interpolater);
    return parameters;
}

template <class T>
std::string InterpolatingParam<T>::ident() const
{
    return this->identAttribute()->value();
}

template <class T>
void InterpolatingParam<T>::xmlBody(XMLable::Options& options, int indent) const
{
    std::ostream& out = *options.stream;
    out << XMLable::genIndent(indent) << "<Parameters>\n";
    m_interpolater->toXML(options, indent + 1, "name=\"interpolater\"");
    out << XMLable::genIndent(indent) << "</Parameters>\n";
    this->xmlOfKeyframes(options, indent);
}

template <class T>
void InterpolatingParam<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "InterpolatingParam";
}

template <class T>
void InterpolatingParam<T>::xmlAttributes(XMLable::Options&) const
{}

#define TARN_INSTANTIATE(T) template class InterpolatingParam<T>;
TARN_INTERPOLATING_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
