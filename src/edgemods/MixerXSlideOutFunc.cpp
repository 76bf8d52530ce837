#include "edgemods/MixerXSlideOutFunc.h"

namespace tarn {

MixerXSlideOutFunc* MixerXSlideOutFunc::clone() const
{
    return new MixerXSlideOutFunc(*this);
}

double MixerXSlideOutFunc::execute(double position, double value) const
{
    return m_slideIn.execute(1.0 - position, value);
}

std::string MixerXSlideOutFunc::ident() const
{
    return "MixerXSlideOut";
}

void MixerXSlideOutFunc::setAuxInfo(AuxEdgeModInfo const& info)
{
    m_slideIn.setAuxInfo(info);
}

AuxEdgeModInfo const* MixerXSlideOutFunc::auxInfo() const
{
    return m_slideIn.auxInfo();
}

}  // namespace tarn
