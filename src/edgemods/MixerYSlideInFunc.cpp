#include "edgemods/MixerYSlideInFunc.h"

#include "datatypes/XmlText.h"
#include "edgemods/MixerXSlideFuncUtil.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

namespace tarn {

namespace {

double execute0(double position, double value, AuxEdgeModInfo const&)
{
    return position * value;
}

double execute90(double position, double value, AuxEdgeModInfo const& info)
{
    boost::shared_ptr<VisualMixer const> const mixer(info.visualMixer());
    boost::shared_ptr<VisualMedia const> const media(info.visualMedia());
    double const mixerHeight = mixer->attributeHeight()->value();
    double const beginHeight = MixerXSlideFuncUtil::calcMediaBeginHeight(media);
    // Kept so: crop and scale do not enter here, but like the horizontal slide this one fails for a
    // media on which they have no value.
    double const time = media->toParameterTime(position);
    media->geometryCropParam()->at(3)->valueAtTime(time);
    media->scale()->at(1)->valueAtTime(time);
    return value + (1.0 - position) * ((0.5 * mixerHeight + 0.5 * beginHeight) - value);
}

}  // namespace

MixerYSlideInFunc::MixerYSlideInFunc() : MixerYSlideInFunc(0.0) {}

MixerYSlideInFunc::MixerYSlideInFunc(double angle)
    : m_angle(angle), m_execution(angle == 0.0 ? execute0 : execute90)
{}

MixerYSlideInFunc* MixerYSlideInFunc::clone() const
{
    return new MixerYSlideInFunc(*this);
}

double MixerYSlideInFunc::execute(double position, double value) const
{
    return m_execution(position, value, m_auxInfo);
}

std::string MixerYSlideInFunc::ident() const
{
    return "MixerYSlideIn";
}

void MixerYSlideInFunc::setAuxInfo(AuxEdgeModInfo const& info)
{
    m_auxInfo = info;
}

AuxEdgeModInfo const* MixerYSlideInFunc::auxInfo() const
{
    return &m_auxInfo;
}

void MixerYSlideInFunc::xmlAttributes(XMLable::Options& options) const
{
    XmlText(options) << " angle=\"" << m_angle << "\"";
}

}  // namespace tarn
