#include "parameters/LeftParameter.h"

#include "datatypes/XmlText.h"
#include "parameters/ConstParameterDispatcher.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/ParameterDispatcher.h"
#include "project/ReadWriteMutex.h"

#include <utility>

namespace tarn {

template <class T>
LeftParameter<T>::LeftParameter(boost::weak_ptr<ThreadSafe const> const& project,
                                std::string const& name)
    : ParameterImpl<T>(project, name)
{}

template <class T>
LeftParameter<T>::LeftParameter(boost::weak_ptr<ThreadSafe const> const& project,
                                std::string const& name, ReservedIdent& ident,
                                ReservedIdent attributeIdent)
    : XMLIdentified(ident), ParameterImpl<T>(project, name, std::move(attributeIdent))
{}

template <class T>
LeftParameter<T>::LeftParameter(LeftParameter const& other)
    : XMLIdentified(other), ParameterImpl<T>(other)
{}

template <class T>
std::string LeftParameter<T>::description() const
{
    return std::string();
}

template <class T>
void LeftParameter<T>::receiveDispatcher(ParameterDispatcher* dispatcher)
{
    dispatcher->dispatch(boost::static_pointer_cast<LeftParameter>(this->shared_from_this()));
}

template <class T>
void LeftParameter<T>::receiveDispatcher(ConstParameterDispatcher* dispatcher) const
{
    dispatcher->dispatch(boost::static_pointer_cast<LeftParameter const>(this->shared_from_this()));
}

template <class T>
boost::shared_ptr<Interpolater<T>> LeftParameter<T>::interpolaterAtTime(double) const
{
    return LeftInterpolater<T>::instance();
}

template <class T>
boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>>
LeftParameter<T>::interpolaterParam() const
{
    return boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>>();
}

template <class T>
LeftParameter<T>* LeftParameter<T>::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return new LeftParameter(*this);
}

template <class T>
std::string LeftParameter<T>::ident() const
{
    return this->identText();
}

template <class T>
void LeftParameter<T>::xmlBody(XMLable::Options& options, int indent) const
{
    this->xmlOfKeyframes(options, indent);
}

template <class T>
void LeftParameter<T>::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Parameter";
}

template <class T>
void LeftParameter<T>::xmlAttributes(XMLable::Options&) const
{}

#define TARN_INSTANTIATE(T) template class LeftParameter<T>;
TARN_LEFT_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
