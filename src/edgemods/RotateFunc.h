#pragma once

#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From the value through whole turns, in radians: value + 2 pi x turns x position.
///
/// On either edge the value itself stands where position is 0.
class TARN_API RotateFunc : public EdgeModFunc
{
public:
    explicit RotateFunc(int numRotations);

    RotateFunc* clone() const override;
    double execute(double position, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;
    AuxEdgeModInfo const* auxInfo() const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    AuxEdgeModInfo m_auxInfo;
    int m_numRotations;
};

}  // namespace tarn
