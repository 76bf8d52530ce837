#pragma once

#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From a distance beside the value to the value: value + (1 - position) x distance.
class TARN_API LinearSlideInFunc : public EdgeModFunc
{
public:
    explicit LinearSlideInFunc(double distance);

    LinearSlideInFunc* clone() const override;
    double execute(double position, double value) const override;
    std::string ident() const override;

private:
    double m_distance;
};

}  // namespace tarn
