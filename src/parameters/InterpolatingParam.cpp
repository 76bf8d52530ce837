#include "parameters/InterpolatingParam.h"

#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "parameters/ConstParameterDispatcher.h"
#include "parameters/LeftParameter.h"
#include "parameters/LinearInterpolater.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterDispatcher.h"
#include "parameters/XmlValue.h"
#include "project/ReadWriteMutex.h"

#include <cstring>
#include <sstream>
#include <type_traits>
#include <utility>

namespace tarn {

namespace {

/// To the last bit, the sign of zero included. Only numbers are ever compared.
template <class T>
bool isSameNumber(T const& a, T const& b)
{
    if constexpr (std::is_arithmetic_v<T>)
        return std::memcmp(&a, &b, sizeof(T)) == 0;
    else
        return false;
}

template <class P>
boost::shared_ptr<P> cloneOf(P const* parameter)
{
    return parameter ? boost::shared_ptr<P>(parameter->clone()) : boost::shared_ptr<P>();
}

}  // namespace

template <class T>
InterpolatingParam<T>::InterpolatingParam(boost::weak_ptr<ThreadSafe const> const& project,
                                          std::string const& name)
    : ParameterImpl<T>(project, name)
{}

template <class T>
InterpolatingParam<T>::InterpolatingParam(boost::weak_ptr<ThreadSafe const> const& project,
                                          std::string const& name, T const& initial,
                                          ReservedIdent* idents)
    : XMLIdentified(idents[0])
    , ParameterImpl<T>(project, name, std::move(idents[1]))
    , m_interpolater(idents + 2)
{
    Subject::NotifyDisabler const silence(this);
    this->addKeyFrame(0, initial);
}

template <class T>
InterpolatingParam<T>::InterpolatingParam(InterpolatingParam const& other)
    : XMLIdentified(other)
    , ParameterImpl<T>(other)
    , Parametric(other)
    , m_interpolater(cloneOf(other.m_interpolater.ifMade()))
{}

template <class T>
boost::shared_ptr<LeftParameter<boost::shared_ptr<Interpolater<T>>>> const&
InterpolatingParam<T>::interpolaters() const
{
    return m_interpolater.get([this](ReservedIdent* idents) {
        boost::shared_ptr<InterpolaterParam> const made(new InterpolaterParam(
            this->projectMutex(), "interpolater", idents[0], std::move(idents[1])));
        // Nobody can be observing it yet.
        Subject::NotifyDisabler const silence(made.get());
        made->addKeyFrame(0, LinearInterpolater<T>::instance());
        return made;
    });
}

template <class T>
std::string InterpolatingParam<T>::description() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    std::ostringstream out;
    for (std::size_t i = 0; i < this->frames().size(); ++i)
        out << this->frames().time(i) << ", " << this->frames().frame(i).get() << '\n';
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
    if (InterpolaterParam const* const interpolaters = m_interpolater.ifMade())
        return interpolaters->valueAtTime(time);
    static_cast<void>(this->mutex());  // throws for a dead project
    return LinearInterpolater<T>::instance();
}

/// Without a share in it where the parameter keeps it anyway.
template <class T>
Interpolater<T> const* InterpolatingParam<T>::interpolaterNow(
    double time, boost::shared_ptr<Interpolater<T>>& owner) const
{
    static boost::shared_ptr<Interpolater<T>> const& s_linear = LinearInterpolater<T>::instance();
    InterpolaterParam const* const interpolaters = m_interpolater.ifMade();
    if (!interpolaters)
        return s_linear.get();
    if (boost::shared_ptr<Interpolater<T>> const* const only = interpolaters->onlyValue())
        return only->get();
    owner = interpolaters->valueAtTime(time);
    return owner.get();
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
    typename LateObject<InterpolaterParam, 2>::Idents idents;
    if (m_interpolater.waitingIdents(idents))
        xmlOfLinear(options, indent + 1, idents[0]);
    else
        m_interpolater.ifMade()->toXML(options, indent + 1, "name=\"interpolater\"");
    out.indent(indent) << "</Parameters>\n";
    this->xmlOfKeyframes(options, indent);
}

template <class T>
bool InterpolatingParam<T>::isShownAtAllTimes(Parametric const& owner, T& value) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    T const* const only = this->onlyValue();
    if (!only || !owner.showsAsStored(this))
        return false;
    value = *only;
    return true;
}

template <class T>
bool InterpolatingParam<T>::isUntouched(T const& initial) const
{
    return this->frames().size() == 1 && this->frames().time(0) == 0 &&
           isSameNumber(this->frames().frame(0)->value(), initial) && !m_interpolater.ifMade() &&
           !this->isIdentAttributeMade();
}

template <class T>
void InterpolatingParam<T>::xmlBeforeFirstUse(XMLable::Options& options, int indent,
                                              std::string const& label, T const& initial,
                                              unsigned int const* idents)
{
    XmlText out(options);
    out.indent(indent) << "<InterpolatingParam id=\"" << idents[0] << "\"  " << label << ">\n";
    out.indent(indent + 1) << "<Parameters>\n";
    xmlOfLinear(options, indent + 2, idents[2]);
    out.indent(indent + 1) << "</Parameters>\n";
    out.indent(indent + 1) << "<Keyframes>\n";
    out.indent(indent + 2) << "<Keyframe time=\"" << 0 << "\" value=\"";
    writeValue(out, KeyFrame<T>(0, initial));
    out << "\"/>\n";
    out.indent(indent + 1) << "</Keyframes>\n";
    out.indent(indent) << "</InterpolatingParam>\n";
}

/// The element of the interpolaters' parameter while it is not made.
template <class T>
void InterpolatingParam<T>::xmlOfLinear(XMLable::Options& options, int indent, unsigned int ident)
{
    XmlText out(options);
    out.indent(indent) << "<Parameter id=\"" << ident << "\"  name=\"interpolater\">\n";
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
