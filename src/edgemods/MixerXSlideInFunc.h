#pragma once

#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From beyond the mixer's left side to the value, for a picture centred on its position.
///
/// value + (1 - position) x (-(W + w) / 2 - value + crop x scale / 2), with the mixer's width W and
/// the media's width w at its start, in pixels. Kept so: the crop of the far side and the scale are
/// read at the position, from 0 to 1, taken as a time.
///
/// Bends the media's horizontal translation. Takes read locks as it goes.
class TARN_API MixerXSlideInFunc : public EdgeModFunc
{
public:
    MixerXSlideInFunc* clone() const override;
    /// @throws boost::bad_weak_ptr without a living mixer and media
    double execute(double position, double value) const override;
    std::string ident() const override;
    void setAuxInfo(AuxEdgeModInfo const& info) override;
    AuxEdgeModInfo const* auxInfo() const override;

private:
    AuxEdgeModInfo m_auxInfo;
};

}  // namespace tarn
