#include "edgemods/MixerYSlideOutFunc.h"

#include "datatypes/XmlText.h"

namespace tarn {

MixerYSlideOutFunc::MixerYSlideOutFunc() = default;

MixerYSlideOutFunc::MixerYSlideOutFunc(double angle) : m_slideIn(angle) {}

MixerYSlideOutFunc* MixerYSlideOutFunc::clone() const
{
    return new MixerYSlideOutFunc(*this);
}

double MixerYSlideOutFunc::execute(double position, double value) const
{
    return m_slideIn.execute(1.0 - position, value);
}

std::string MixerYSlideOutFunc::ident() const
{
    return "MixerYSlideOut";
}

void MixerYSlideOutFunc::setAuxInfo(AuxEdgeModInfo const& info)
{
    m_slideIn.setAuxInfo(info);
}

AuxEdgeModInfo const* MixerYSlideOutFunc::auxInfo() const
{
    return m_slideIn.auxInfo();
}

void MixerYSlideOutFunc::xmlAttributes(XMLable::Options& options) const
{
    XmlText(options) << " angle=\"" << m_slideIn.angle() << "\"";
}

}  // namespace tarn
