#pragma once

#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From beyond the mixer's upper side to the value; with an angle of 0, from 0 to the value.
///
/// value + (1 - position) x ((H + h) / 2 - value), with the mixer's height H and the media's height
/// h at its start, in pixels.
///
/// Bends the media's vertical translation. Takes read locks as it goes.
class TARN_API MixerYSlideInFunc : public EdgeModFunc
{
public:
    MixerYSlideInFunc();
    /// Any angle but 0 is as good as any other.
    explicit MixerYSlideInFunc(double angle);

    MixerYSlideInFunc* clone() const override;
    /// @throws boost::bad_weak_ptr without a living mixer and media, unless the angle is 0
    double execute(double position, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;
    AuxEdgeModInfo const* auxInfo() const override;
    void xmlAttributes(XMLable::Options& options) const override;

    double angle() const { return m_angle; }

private:
    using Execution = double (*)(double position, double value, AuxEdgeModInfo const& info);

    AuxEdgeModInfo m_auxInfo;
    double m_angle;
    Execution m_execution;
};

}  // namespace tarn
