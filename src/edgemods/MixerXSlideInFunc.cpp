#include "edgemods/MixerXSlideInFunc.h"

#include "edgemods/MixerXSlideFuncUtil.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

namespace tarn {

MixerXSlideInFunc* MixerXSlideInFunc::clone() const
{
    return new MixerXSlideInFunc(*this);
}

double MixerXSlideInFunc::execute(double position, double value) const
{
    boost::shared_ptr<VisualMixer const> const mixer(m_auxInfo.visualMixer());
    boost::shared_ptr<VisualMedia const> const media(m_auxInfo.visualMedia());
    double const mixerWidth = mixer->attributeWidth()->value();
    double const beginWidth = MixerXSlideFuncUtil::calcMediaBeginWidth(media);
    // Kept so: the position is taken as a time, so crop and scale are those near the media's start.
    double const time = media->toParameterTime(position);
    double const crop = media->geometryCropParam()->at(2)->valueAtTime(time);
    double const scale = media->scale()->at(0)->valueAtTime(time);
    return value + (1.0 - position) *
                       ((-0.5 * mixerWidth + -0.5 * beginWidth) - value + 0.5 * (crop * scale));
}

std::string MixerXSlideInFunc::ident() const
{
    return "MixerXSlideIn";
}

void MixerXSlideInFunc::setAuxInfo(AuxEdgeModInfo const& info)
{
    m_auxInfo = info;
}

AuxEdgeModInfo const* MixerXSlideInFunc::auxInfo() const
{
    return &m_auxInfo;
}

}  // namespace tarn
