#include "timeline/VisualMedia.h"

#include "datatypes/IdentBatch.h"
#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"
#include "timeline/PicturePool.h"

namespace tarn {

namespace {

std::size_t constexpr k_numIdents =
    2 * LateVectorParam<4>::k_numIdents + LateDoubleParam::k_numIdents;

}  // namespace

VisualMedia::Shown::Shown() : Shown(IdentBatch(k_numIdents)) {}

VisualMedia::Shown::Shown(IdentBatch idents)
    : sourceCrop("sourceCrop", 0, idents.take(sourceCrop.k_numIdents))
    , geometryCrop("geometryCrop", 0, idents.take(geometryCrop.k_numIdents))
    , opacity("opacity", 1, idents.take(opacity.k_numIdents))
{}

// Copies of parameters that someone has touched draw idents of their own, in their turn.
VisualMedia::Shown::Shown(Shown const& other)
    : Shown(other, IdentBatch(other.isUntouched() ? k_numIdents : 0))
{}

VisualMedia::Shown::Shown(Shown const& other, IdentBatch idents)
    : sourceCrop(other.sourceCrop, idents.take(sourceCrop.k_numIdents))
    , geometryCrop(other.geometryCrop, idents.take(geometryCrop.k_numIdents))
    , opacity(other.opacity, idents.take(opacity.k_numIdents))
{}

bool VisualMedia::Shown::isUntouched() const
{
    return sourceCrop.isUntouched() && geometryCrop.isUntouched() && opacity.isUntouched();
}

VisualMedia::VisualMedia(Range<long long> const& sourceRange, double mediaStartLimit,
                         double mediaEndLimit, boost::weak_ptr<ThreadSafe const> const& project)
    : MediaImpl(sourceRange, mediaStartLimit, mediaEndLimit, project), Transformer(project)
{}

VisualMedia::VisualMedia(VisualMedia const& other)
    : XMLIdentified(other), MediaImpl(other), Transformer(other), m_shown(other.m_shown)
{}

TransformMatrix VisualMedia::transformAtTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return calcTransformUnderLock(this, time);
}

Rect<double> VisualMedia::sourceCropRectAtTime(long long time) const
{
    return cropRectAtTime(m_shown.sourceCrop, time);
}

Rect<double> VisualMedia::geometryCropRectAtTime(long long time) const
{
    return cropRectAtTime(m_shown.geometryCrop, time);
}

Rect<double> VisualMedia::cropRectAtTime(LateVectorParam<4> const& crop, long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    double const fullWidth = width();
    double const fullHeight = height();
    double sides[4];
    unsigned int wanted = 0xf;
    crop.storeConstants(*this, wanted, 0, sides);
    crop.storeOthers(*this, *this, static_cast<double>(time), wanted, 0, sides);
    return Rect<double>(sides[0], sides[1], fullWidth - sides[0] - sides[2],
                        fullHeight - sides[1] - sides[3]);
}

void VisualMedia::shownValuesAtTime(double time, double* values) const
{
    int const opacity = 8;
    int const transform = 9;
    unsigned int wanted = (1u << k_numShownValues) - 1;
    {
        ReadWriteMutex::ScopedReadLock lock(mutex());
        m_shown.sourceCrop.storeConstants(*this, wanted, 0, values);
        m_shown.geometryCrop.storeConstants(*this, wanted, 4, values);
        m_shown.opacity.storeConstants(*this, wanted, opacity, values);
        Transformer::storeConstants(*this, wanted, transform, values);
    }
    if (wanted == 0)
        return;
    // Edges may call host code, which is no place for a lock.
    m_shown.sourceCrop.storeOthers(*this, *this, time, wanted, 0, values);
    m_shown.geometryCrop.storeOthers(*this, *this, time, wanted, 4, values);
    m_shown.opacity.storeOthers(*this, *this, time, wanted, opacity, values);
    Transformer::storeOthers(*this, time, wanted, transform, values);
}

void* VisualMedia::operator new(std::size_t size)
{
    return PicturePool::take(size);
}

void VisualMedia::operator delete(void* place, std::size_t size)
{
    PicturePool::giveBack(place, size);
}

void VisualMedia::setupSharedClone(boost::shared_ptr<Media> const& clone) const
{
    if (hasEdgeFunctions()) {
        if (auto const media = boost::dynamic_pointer_cast<VisualMedia>(clone))
            media->aimEdgeFunctionsAt(media);
    }
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
    addVectorParamToParameters(sourceCropParam(), parameters.get());
    addVectorParamToParameters(geometryCropParam(), parameters.get());
    parameters->push_back(opacity());
    addTransformerParametersToParameters(this, parameters.get());
    return parameters;
}

void VisualMedia::xmlOfParameters(XMLable::Options& options, int indent) const
{
    m_shown.sourceCrop.toXML(options, indent);
    m_shown.geometryCrop.toXML(options, indent);
    m_shown.opacity.toXML(options, indent);
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
