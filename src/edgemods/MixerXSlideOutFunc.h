#pragma once

#include "edgemods/MixerXSlideInFunc.h"

namespace tarn {

/// From the value to beyond the mixer's left side: MixerXSlideInFunc run backwards.
class TARN_API MixerXSlideOutFunc : public EdgeModFunc
{
public:
    MixerXSlideOutFunc* clone() const override;
    /// @throws boost::bad_weak_ptr without a living mixer and media
    double execute(double position, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;
    AuxEdgeModInfo const* auxInfo() const override;

private:
    MixerXSlideInFunc m_slideIn;
};

}  // namespace tarn
