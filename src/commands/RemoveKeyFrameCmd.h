#pragma once

#include "commands/Command.h"
#include "parameters/ParameterTypes.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   0 .... 30 . 60       key frames of one parameter
///     after    0 ......... 60
///
/// Removes a key frame; undo brings back the very one. `time` lies on the clock of the parameter's
/// key frames: for a media, that of its source (see Parametric::toParameterTime).
///
/// A parameter without any key frame has no value, and who asks for it is refused: the last one is
/// better changed than removed.
/// @throws KeyFrameException on execution when there is none at that time
template <class T>
class TARN_API RemoveKeyFrameCmd : public Command
{
public:
    static boost::shared_ptr<RemoveKeyFrameCmd<T>> create(
        boost::shared_ptr<Parameter<T> const> const& parameter, long long time);

    RemoveKeyFrameCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    RemoveKeyFrameCmd(boost::shared_ptr<Parameter<T> const> const& parameter, long long time);

private:
    boost::shared_ptr<Parameter<T> const> m_parameter;
    long long m_time;
    boost::any m_keyFrame;  // known once executed
};

#define TARN_DECLARE(T) extern template class TARN_API RemoveKeyFrameCmd<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
