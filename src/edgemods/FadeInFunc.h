#pragma once

#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From 0 to the value: value x position.
class TARN_API FadeInFunc : public EdgeModFunc
{
public:
    FadeInFunc* clone() const override;
    double execute(double position, double value) const override;
    std::string ident() const override;
};

}  // namespace tarn
