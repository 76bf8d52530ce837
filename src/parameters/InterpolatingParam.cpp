#include "parameters/InterpolatingParam.h"

#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "parameters/ConstParameterDispatcher.h"
#include "parameters/LeftParameter.h"
#include "parameters/LinearInterpolater.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterDispatcher.h"
#include "project/ReadWriteMutex.h"

#include <sstream>
#include <utility>

namespace tarn {

template <class T>
InterpolatingParam<T>::InterpolatingParam(boost::weak_ptr<ThreadSafe const> const& project,
                                          std::string const& name)
    : ParameterImpl<T>(project, name)
    , m_interpolaterIdent(ReservedIdent::draw())
    , m_interpolaterAttributeIdent(ReservedIdent::draw())
{}

template <class T>
InterpolatingParam<T>::InterpolatingParam(InterpolatingParam const& other)
    : XMLIdentified(other)
    , ParameterImpl<T>(other)
    , Parametric(other)
    , m_interpolaterIdent(other.m_interpolater.isMade() ? ReservedIdent() : ReservedIdent::draw())
    , m_interpolaterAttributeIdent(m_interpolaterIdent.isHeld() ? ReservedIdent::draw()
                                                                : ReservedIdent())
    , m_interpolater(m_interpolaterIdent.isHeld()
                         ? nullptr
                         : boost::shared_ptr<InterpolaterParam>(other.interpolaters()->clone()))
{}

template <class T>
boost::shared_ptr<LeftParameter<boost::shared_ptr<Interpolater<T>>>>
InterpolatingParam<T>::newInterpolaters() const
{
    boost::shared_ptr<InterpolaterParam> const made(
        new InterpolaterParam(this->projectMutex(), "interpolater", m_interpolaterIdent,
                              std::move(m_interpolaterAttributeIdent)));
    // Nobody can be observing it yet.
    Subject::NotifyDisabler const silence(made.get());
    made->addKeyFrame(0, LinearInterpolater<T>::instance());
    return made;
}

template <class T>
boost::shared_ptr<LeftParameter<boost::shared_ptr<Interpolater<T>>>> const&
InterpolatingParam<T>::interpolaters() const
{
    return m_interpolater.get([this] { return newInterpolaters(); });
}

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
    if (m_interpolater.isMade())
        return interpolaters()->valueAtTime(time);
    static_cast<void>(this->mutex());  // throws for a dead project
    return LinearInterpolater<T>::instance();
}

template <class T>
boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>>
InterpolatingParam<T>::interpolaterParam() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return interpolaters();
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
    parameters->push_back(interpolaters());
    return parameters;
}

template <class T>
std::string InterpolatingParam<T>::ident() const
{
    return this->identText();
}

template <class T>
void InterpolatingParam<T>::xmlBody(XMLable::Options& options, int indent) const
{
    XmlText out(options);
    out.indent(indent) << "<Parameters>\n";
    xmlOfInterpolaters(options, indent + 1);
    out.indent(indent) << "</Parameters>\n";
    this->xmlOfKeyframes(options, indent);
}

/// The element is the same whether the parameter exists yet or not.
template <class T>
void InterpolatingParam<T>::xmlOfInterpolaters(XMLable::Options& options, int indent) const
{
    if (m_interpolater.isMade()) {
        interpolaters()->toXML(options, indent, "name=\"interpolater\"");
        return;
    }
    XmlText out(options);
    out.indent(indent) << "<Parameter id=\"" << m_interpolaterIdent.ident()
                       << "\"  name=\"interpolater\">\n";
    out.indent(indent + 1) << "<Keyframes>\n";
    out.indent(indent + 2) << "<Keyframe time=\"" << 0 << "\" value=\""
                           << xml_representation(LinearInterpolater<T>::instance()->id())
                           << "\"/>\n";
    out.indent(indent + 1) << "</Keyframes>\n";
    out.indent(indent) << "</Parameter>\n";
}

template <class T>
void InterpolatingParam<T>::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "InterpolatingParam";
}

template <class T>
void InterpolatingParam<T>::xmlAttributes(XMLable::Options&) const
{}

#define TARN_INSTANTIATE(T) template class InterpolatingParam<T>;
TARN_INTERPOLATING_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
