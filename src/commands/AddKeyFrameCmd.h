#pragma once

#include "commands/Command.h"
#include "parameters/ParameterTypes.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   0 ......... 60       key frames of one parameter
///     after    0 .... 30 . 60
///
/// Adds a key frame. `time` lies on the clock of the parameter's key frames: for a media, that of
/// its source (see Parametric::toParameterTime). A redo brings back the very key frame.
/// @throws KeyFrameException on execution when there is one at that time
template <class T>
class TARN_API AddKeyFrameCmd : public Command
{
public:
    static boost::shared_ptr<AddKeyFrameCmd<T>> create(
        boost::shared_ptr<Parameter<T> const> const& parameter, long long time, T const& value);

    AddKeyFrameCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    AddKeyFrameCmd(boost::shared_ptr<Parameter<T> const> const& parameter, long long time,
                   T const& value);

private:
    boost::shared_ptr<Parameter<T> const> m_parameter;
    long long m_time;
    T m_value;
    boost::any m_keyFrame;  // known once undone
};

#define TARN_DECLARE(T) extern template class TARN_API AddKeyFrameCmd<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
