#include "commands/RemoveKeyFrameCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "parameters/Interpolater.h"
#include "parameters/Parameter.h"
#include "timeline/IMFile.h"

#include <ostream>

namespace tarn {

template <class T>
RemoveKeyFrameCmd<T>::RemoveKeyFrameCmd(boost::shared_ptr<Parameter<T> const> const& parameter,
                                        long long time)
    : m_parameter(parameter), m_time(time)
{}

template <class T>
boost::shared_ptr<RemoveKeyFrameCmd<T>> RemoveKeyFrameCmd<T>::create(
    boost::shared_ptr<Parameter<T> const> const& parameter, long long time)
{
    return boost::shared_ptr<RemoveKeyFrameCmd<T>>(new RemoveKeyFrameCmd<T>(parameter, time));
}

template <class T>
RemoveKeyFrameCmd<T>* RemoveKeyFrameCmd<T>::clone() const
{
    return new RemoveKeyFrameCmd<T>(*this);
}

template <class T>
bool RemoveKeyFrameCmd<T>::execute(CommandHandler* handler)
{
    m_keyFrame = handler->removeParameterKeyFrame(m_parameter, m_time);
    return true;
}

template <class T>
bool RemoveKeyFrameCmd<T>::unexecute(CommandHandler* handler)
{
    handler->addParameterKeyFrame(m_parameter, m_keyFrame);
    return true;
}

template <class T>
void RemoveKeyFrameCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveKeyFrameCmd";
}

template <class T>
void RemoveKeyFrameCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("parameter", m_parameter).value("time", m_time);
}

#define TARN_INSTANTIATE(T) template class RemoveKeyFrameCmd<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
