#pragma once

#include "edgemods/MixerYSlideInFunc.h"

namespace tarn {

/// From the value to beyond the mixer's upper side: MixerYSlideInFunc run backwards.
class TARN_API MixerYSlideOutFunc : public EdgeModFunc
{
public:
    MixerYSlideOutFunc();
    explicit MixerYSlideOutFunc(double angle);

    MixerYSlideOutFunc* clone() const override;
    /// @throws boost::bad_weak_ptr without a living mixer and media, unless the angle is 0
    double execute(double position, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;
    AuxEdgeModInfo const* auxInfo() const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    MixerYSlideInFunc m_slideIn;
};

}  // namespace tarn
