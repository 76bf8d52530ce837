#pragma once

#include "commands/Command.h"
#include "parameters/ParameterTypes.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   0: 1.0 ... 30: 0.4 ... 60: 1.0       key frames of one parameter
///     after    0: 1.0 ... 30: 0.8 ... 60: 1.0
///
/// Gives a key frame another value; it remains the same object. `time` lies on the clock of the
/// parameter's key frames: for a media, that of its source (see Parametric::toParameterTime).
/// @throws KeyFrameException on execution when there is none at that time
template <class T>
class TARN_API ChangeKeyFrameCmd : public Command
{
public:
    static boost::shared_ptr<ChangeKeyFrameCmd<T>> create(
        boost::shared_ptr<Parameter<T> const> const& parameter, long long time, T const& value);

    ChangeKeyFrameCmd<T>* clone() const override;
    /// True also for the value that the frame has already: a drag combines each of its steps, one
    /// that stands still as well.
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    /// Two on the same parameter and time become one to the later value, whose undo gives back the
    /// value from before both.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    ChangeKeyFrameCmd(boost::shared_ptr<Parameter<T> const> const& parameter, long long time,
                      T const& value);

private:
    boost::shared_ptr<Parameter<T> const> m_parameter;
    long long m_time;
    T m_value;
    boost::any m_oldValue;  // known once executed
};

#define TARN_DECLARE(T) extern template class TARN_API ChangeKeyFrameCmd<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
