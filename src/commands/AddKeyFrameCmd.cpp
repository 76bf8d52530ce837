#include "commands/AddKeyFrameCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "parameters/Parameter.h"
#include "parameters/XmlValue.h"
#include "timeline/IMFile.h"

#include <ostream>

namespace tarn {

template <class T>
AddKeyFrameCmd<T>::AddKeyFrameCmd(boost::shared_ptr<Parameter<T> const> const& parameter,
                                  long long time, T const& value)
    : m_parameter(parameter), m_time(time), m_value(value)
{}

template <class T>
boost::shared_ptr<AddKeyFrameCmd<T>> AddKeyFrameCmd<T>::create(
    boost::shared_ptr<Parameter<T> const> const& parameter, long long time, T const& value)
{
    return boost::shared_ptr<AddKeyFrameCmd<T>>(new AddKeyFrameCmd<T>(parameter, time, value));
}

template <class T>
AddKeyFrameCmd<T>* AddKeyFrameCmd<T>::clone() const
{
    return new AddKeyFrameCmd<T>(*this);
}

template <class T>
bool AddKeyFrameCmd<T>::execute(CommandHandler* handler)
{
    boost::shared_ptr<KeyFrame<T>> const keyFrame(new KeyFrame<T>(m_time, m_value));
    handler->addParameterKeyFrame(m_parameter, keyFrame);
    return true;
}

template <class T>
bool AddKeyFrameCmd<T>::unexecute(CommandHandler* handler)
{
    m_keyFrame = handler->removeParameterKeyFrame(m_parameter, m_time);
    return true;
}

template <class T>
bool AddKeyFrameCmd<T>::reexecute(CommandHandler* handler)
{
    handler->addParameterKeyFrame(m_parameter, m_keyFrame);
    return true;
}

template <class T>
void AddKeyFrameCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddKeyFrameCmd";
}

template <class T>
void AddKeyFrameCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .ident("parameter", m_parameter)
        .value("time", m_time)
        .value("value", xml_representation(KeyFrame<T>(m_time, m_value)));
}

#define TARN_INSTANTIATE(T) template class AddKeyFrameCmd<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
