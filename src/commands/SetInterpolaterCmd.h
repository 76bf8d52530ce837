#pragma once

#include "commands/MultiCommand.h"
#include "parameters/ParameterTypes.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   linr from 0 on
///     after    linr from 0 on, left from 30 on      at 30
///
/// Sets how a parameter is blended from `time` on, until the next key frame of its interpolaters:
/// changes their key frame at that time, or adds one. `time` lies on the clock of the parameter's
/// key frames: for a media, that of its source (see Parametric::toParameterTime). An empty
/// interpolater blends as the left one.
/// @throws TarnMediaLibException on execution for a parameter that is empty or without
/// interpolaters
template <class T>
class TARN_API SetInterpolaterCmd : public MultiCommand
{
public:
    static boost::shared_ptr<SetInterpolaterCmd<T>> create(
        boost::shared_ptr<Parameter<T> const> const& parameter, long long time,
        boost::shared_ptr<Interpolater<T>> const& interpolater);

    SetInterpolaterCmd<T>* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    SetInterpolaterCmd(boost::shared_ptr<Parameter<T> const> const& parameter, long long time,
                       boost::shared_ptr<Interpolater<T>> const& interpolater);

    boost::shared_ptr<Parameter<T> const> m_parameter;
    long long m_time;
    boost::shared_ptr<Interpolater<T>> m_interpolater;
};

#define TARN_DECLARE(T) extern template class TARN_API SetInterpolaterCmd<T>;
TARN_INTERPOLATING_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
