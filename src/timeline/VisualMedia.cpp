#include "timeline/VisualMedia.h"

#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"

namespace tarn {

namespace {

/// Nothing is cut off: every component has one key frame, at time 0.
boost::shared_ptr<VectorParam> newCrop(boost::weak_ptr<ThreadSafe const> const& project,
                                       std::string const& name)
{
    boost::shared_ptr<VectorParam> const crop(new VectorParam(project, 4, name));
    for (int i = 0; i < crop->numDimensions(); ++i)
        crop->at(i)->addKeyFrame(0, 0.0);
    return crop;
}

}  // namespace

VisualMedia::VisualMedia(Range<long long> const& sourceRange, double mediaStartLimit,
                         double mediaEndLimit, boost::weak_ptr<ThreadSafe const> const& project)
    : MediaImpl(sourceRange, mediaStartLimit, mediaEndLimit, project)
    , Transformer(project)
    , m_sourceCrop(newCrop(project, "sourceCrop"))
    , m_geometryCrop(newCrop(project, "geometryCrop"))
    , m_opacity(new InterpolatingParam<double>(project, "opacity"))
{
    m_opacity->addKeyFrame(0, 1.0);
}

VisualMedia::VisualMedia(VisualMedia const& other)
    : XMLIdentified(other)
    , MediaImpl(other)
    , Transformer(other)
    , m_sourceCrop(other.m_sourceCrop->clone())
    , m_geometryCrop(other.m_geometryCrop->clone())
    , m_opacity(other.m_opacity->clone())
{}

TransformMatrix VisualMedia::transformAtTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return calcTransformAtTime(this, time);
}

Rect<double> VisualMedia::sourceCropRectAtTime(long long time) const
{
    return cropRectAtTime(*m_sourceCrop, time);
}

Rect<double> VisualMedia::geometryCropRectAtTime(long long time) const
{
    return cropRectAtTime(*m_geometryCrop, time);
}

Rect<double> VisualMedia::cropRectAtTime(VectorParam const& crop, long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    double const fullWidth = width();
    double const fullHeight = height();
    double const localTime = static_cast<double>(time);
    double const nearX = transformedDoubleParameterValueAtTime(crop.at(0), localTime);
    double const nearY = transformedDoubleParameterValueAtTime(crop.at(1), localTime);
    double const farX = transformedDoubleParameterValueAtTime(crop.at(2), localTime);
    double const farY = transformedDoubleParameterValueAtTime(crop.at(3), localTime);
    return Rect<double>(nearX, nearY, fullWidth - nearX - farX, fullHeight - nearY - farY);
}

void VisualMedia::setupSharedClone(boost::shared_ptr<Media> const& clone) const
{
    if (boost::shared_ptr<VisualMedia> const media =
            boost::dynamic_pointer_cast<VisualMedia>(clone))
        media->aimEdgeFunctionsAt(media);
    MediaImpl::setupSharedClone(clone);
}

std::string VisualMedia::description() const
{
    return "VisualMedia";
}

int VisualMedia::numParameters() const
{
    return 23;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
VisualMedia::parameterVector() const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        MediaImpl::parameterVector();
    parameters->reserve(23);
    addVectorParamToParameters(m_sourceCrop, parameters.get());
    addVectorParamToParameters(m_geometryCrop, parameters.get());
    parameters->push_back(m_opacity);
    addTransformerParametersToParameters(this, parameters.get());
    return parameters;
}

void VisualMedia::xmlOfParameters(XMLable::Options& options, int indent) const
{
    m_sourceCrop->toXML(options, indent, "name=\"sourceCrop\"");
    m_geometryCrop->toXML(options, indent, "name=\"geometryCrop\"");
    m_opacity->toXML(options, indent, "name=\"opacity\"");
}

void VisualMedia::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "VisualMedia";
}

void VisualMedia::xmlBody(XMLable::Options& options, int indent) const
{
    genXMLForTransformer(options, indent);
    MediaImpl::xmlBody(options, indent);
}

}  // namespace tarn
