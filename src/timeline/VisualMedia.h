#pragma once

#include "datatypes/Rect.h"
#include "datatypes/TransformMatrix.h"
#include "datatypes/Transformer.h"
#include "parameters/LateDoubleParam.h"
#include "parameters/LateVectorParam.h"
#include "timeline/MediaImpl.h"

namespace tarn {

/// What every picture on the timeline has: two crops, an opacity and a transform.
///
/// A crop is what is cut off the picture's near and far sides: x-near, y-near, x-far, y-far.
/// Times asked for are edit units since the media's start.
class TARN_API VisualMedia : public MediaImpl, public Transformer
{
public:
    VisualMedia(Range<long long> const& sourceRange, double mediaStartLimit, double mediaEndLimit,
                boost::weak_ptr<ThreadSafe const> const& project);

    /// From the media's own coordinates, in pixels, to its track's, edges included. Read lock.
    virtual TransformMatrix transformAtTime(long long time) const;
    /// In pixels, without crops and transform.
    virtual double width() const = 0;
    /// In pixels, without crops and transform.
    virtual double height() const = 0;

    /// What is not read of the picture, in its own pixels.
    boost::shared_ptr<VectorParam> sourceCropParam() { return m_shown.sourceCrop.get(*this); }
    boost::shared_ptr<VectorParam const> sourceCropParam() const
    {
        return m_shown.sourceCrop.get(*this);
    }
    /// What is not shown of the picture and cannot be hit, in its own pixels.
    boost::shared_ptr<VectorParam> geometryCropParam() { return m_shown.geometryCrop.get(*this); }
    boost::shared_ptr<VectorParam const> geometryCropParam() const
    {
        return m_shown.geometryCrop.get(*this);
    }
    /// From 0, unseen, to 1, which it is at first. Key frames lie on the source's clock.
    boost::shared_ptr<InterpolatingParam<double>> opacity() { return m_shown.opacity.get(*this); }
    boost::shared_ptr<InterpolatingParam<double> const> opacity() const
    {
        return m_shown.opacity.get(*this);
    }

    /// How many numbers say how a picture is shown: those of parameterVector(), in its order.
    static int constexpr k_numShownValues = 23;
    /// All of them at a local time, each as transformedDoubleParameterValueAtTime() tells it, read
    /// together: what a renderer asks at every frame. Makes no parameter and allocates nothing.
    void shownValuesAtTime(double time, double* values) const;

    /// What the crop leaves of the picture.
    Rect<double> sourceCropRectAtTime(long long time) const;
    /// The same of the geometry crop.
    Rect<double> geometryCropRectAtTime(long long time) const;

    /// Aims the clone's edge functions at the clone, where they knew their media.
    void setupSharedClone(boost::shared_ptr<Media> const& clone) const override;

    /// Pictures lie side by side in pools of the process. @throws std::bad_alloc
    static void* operator new(std::size_t size);
    static void operator delete(void* place, std::size_t size);

    std::string description() const override;
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    VisualMedia(VisualMedia const& other);

private:
    Rect<double> cropRectAtTime(LateVectorParam<4> const& crop, long long time) const;

    /// Its parameters beside the transform.
    struct Shown
    {
        Shown();
        Shown(Shown const& other);
        Shown& operator=(Shown const&) = delete;

        LateVectorParam<4> sourceCrop;
        LateVectorParam<4> geometryCrop;
        LateDoubleParam opacity;

    private:
        explicit Shown(IdentBatch idents);
        Shown(Shown const& other, IdentBatch idents);
        bool isUntouched() const;
    };

    Shown m_shown;
};

}  // namespace tarn
