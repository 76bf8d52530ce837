#include "commands/ChangeKeyFrameCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "parameters/Parameter.h"
#include "parameters/XmlValue.h"
#include "timeline/IMFile.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

template <class T>
ChangeKeyFrameCmd<T>::ChangeKeyFrameCmd(boost::shared_ptr<Parameter<T> const> const& parameter,
                                        long long time, T const& value)
    : m_parameter(parameter), m_time(time), m_value(value)
{}

template <class T>
boost::shared_ptr<ChangeKeyFrameCmd<T>> ChangeKeyFrameCmd<T>::create(
    boost::shared_ptr<Parameter<T> const> const& parameter, long long time, T const& value)
{
    return boost::shared_ptr<ChangeKeyFrameCmd<T>>(
        new ChangeKeyFrameCmd<T>(parameter, time, value));
}

template <class T>
ChangeKeyFrameCmd<T>* ChangeKeyFrameCmd<T>::clone() const
{
    return new ChangeKeyFrameCmd<T>(*this);
}

template <class T>
bool ChangeKeyFrameCmd<T>::execute(CommandHandler* handler)
{
    m_oldValue = handler->changeParameterKeyFrame(m_parameter, m_time, m_value);
    return true;
}

template <class T>
bool ChangeKeyFrameCmd<T>::unexecute(CommandHandler* handler)
{
    handler->changeParameterKeyFrame(m_parameter, m_time, m_oldValue);
    return true;
}

template <class T>
boost::shared_ptr<Command> ChangeKeyFrameCmd<T>::combine(boost::shared_ptr<Command> const& next)
{
    auto const later = boost::dynamic_pointer_cast<ChangeKeyFrameCmd<T>>(next);
    if (!later || later->m_parameter != m_parameter || later->m_time != m_time)
        return groupCommands(shared_from_this(), next);

    // A clone, so that a subclass remains one.
    boost::shared_ptr<ChangeKeyFrameCmd<T>> const both(clone());
    both->m_value = later->m_value;
    return both;
}

template <class T>
void ChangeKeyFrameCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "ChangeKeyFrameCmd";
}

template <class T>
void ChangeKeyFrameCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .ident("parameter", m_parameter)
        .value("time", m_time)
        .value("value", xml_representation(KeyFrame<T>(m_time, m_value)));
}

#define TARN_INSTANTIATE(T) template class ChangeKeyFrameCmd<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
