#pragma once

#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From the value to 0: (1 - position) x value.
class TARN_API FadeOutFunc : public EdgeModFunc
{
public:
    FadeOutFunc* clone() const override;
    double execute(double position, double value) const override;
    std::string ident() const override;
};

}  // namespace tarn
