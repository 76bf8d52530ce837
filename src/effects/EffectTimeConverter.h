#pragma once

#include "datatypes/Export.h"

namespace tarn {

/// Gives the effects of an object that object's clock.
class TARN_API EffectTimeConverter
{
public:
    virtual ~EffectTimeConverter() = default;

    /// From timeline time to the time at which an effect's parameters are read.
    virtual long long globalTimeToEffectTime(long long time) const = 0;

protected:
    EffectTimeConverter() = default;
    EffectTimeConverter(EffectTimeConverter const&) = default;
    EffectTimeConverter& operator=(EffectTimeConverter const&) = default;
};

}  // namespace tarn
