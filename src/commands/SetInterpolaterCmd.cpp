#include "commands/SetInterpolaterCmd.h"

#include "commands/AddKeyFrameCmd.h"
#include "commands/ChangeKeyFrameCmd.h"
#include "commands/XmlAttributes.h"
#include "parameters/Parameter.h"
#include "parameters/XmlValue.h"

#include <ostream>

namespace tarn {

template <class T>
SetInterpolaterCmd<T>::SetInterpolaterCmd(boost::shared_ptr<Parameter<T> const> const& parameter,
                                          long long time,
                                          boost::shared_ptr<Interpolater<T>> const& interpolater)
    : m_parameter(parameter), m_time(time), m_interpolater(interpolater)
{}

template <class T>
boost::shared_ptr<SetInterpolaterCmd<T>> SetInterpolaterCmd<T>::create(
    boost::shared_ptr<Parameter<T> const> const& parameter, long long time,
    boost::shared_ptr<Interpolater<T>> const& interpolater)
{
    return boost::shared_ptr<SetInterpolaterCmd<T>>(
        new SetInterpolaterCmd<T>(parameter, time, interpolater));
}

template <class T>
SetInterpolaterCmd<T>* SetInterpolaterCmd<T>::clone() const
{
    return new SetInterpolaterCmd<T>(*this);
}

template <class T>
void SetInterpolaterCmd<T>::executeCommands(CommandHandler const*)
{
    using Policy = boost::shared_ptr<Interpolater<T>>;
    boost::shared_ptr<Parameter<Policy>> policies;
    if (m_parameter)
        policies = m_parameter->interpolaterParam();
    // Without a parameter of interpolaters, adding refuses the empty pointer.
    if (policies && policies->hasKeyFrameAtTime(m_time))
        this->MultiCommand::execute(
            ChangeKeyFrameCmd<Policy>::create(policies, m_time, m_interpolater));
    else
        this->MultiCommand::execute(
            AddKeyFrameCmd<Policy>::create(policies, m_time, m_interpolater));
}

template <class T>
void SetInterpolaterCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "SetInterpolaterCmd";
}

template <class T>
void SetInterpolaterCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .ident("parameter", m_parameter)
        .value("time", m_time)
        .value("interpolater",
               m_interpolater ? xml_representation(*m_interpolater) : std::string());
}

#define TARN_INSTANTIATE(T) template class SetInterpolaterCmd<T>;
TARN_INTERPOLATING_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
