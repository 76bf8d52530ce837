#pragma once

#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModFunc.h"

namespace tarn {

/// From beyond the mixer's left side to the value, for a picture centred on its position.
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
