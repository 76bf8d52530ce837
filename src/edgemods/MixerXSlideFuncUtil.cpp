#include "edgemods/MixerXSlideFuncUtil.h"

#include "datatypes/ClampedCast.h"
#include "datatypes/Quad.h"
#include "datatypes/Range.h"
#include "datatypes/Rect.h"
#include "datatypes/TransformMatrix.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "project/ReadWriteMutex.h"
#include "timeline/VisualMedia.h"

namespace tarn {

namespace {

double trackDuration(VisualMedia const& media)
{
    ReadWriteMutex::ScopedReadLock lock(media.mutex());
    return static_cast<double>(media.trackRange().duration);
}

double cropAtTime(VisualMedia const& media, int component, double time)
{
    return media.geometryCropParam()->at(component)->valueAtTime(media.toParameterTime(time));
}

/// The media's picture, with the far corner at (`width`, `height`), as its transform places it.
Quad placedPicture(VisualMedia const& media, double width, double height, double time)
{
    return media.transformAtTime(clampedTruncate(time)) * Quad(Rect<double>(0, 0, width, height));
}

}  // namespace

double MixerXSlideFuncUtil::calcMediaBeginWidth(boost::shared_ptr<VisualMedia const> const& media)
{
    return calcMediaWidth(media, 0);
}

double MixerXSlideFuncUtil::calcMediaEndWidth(boost::shared_ptr<VisualMedia const> const& media)
{
    return calcMediaWidth(media, trackDuration(*media));
}

double MixerXSlideFuncUtil::calcMediaBeginHeight(boost::shared_ptr<VisualMedia const> const& media)
{
    return calcMediaHeight(media, 0);
}

double MixerXSlideFuncUtil::calcMediaEndHeight(boost::shared_ptr<VisualMedia const> const& media)
{
    return calcMediaHeight(media, trackDuration(*media));
}

double MixerXSlideFuncUtil::calcMediaWidth(boost::shared_ptr<VisualMedia const> const& media,
                                           double time)
{
    double const width = media->width() - cropAtTime(*media, 2, time);
    Quad const picture = placedPicture(*media, width, media->height(), time);
    return picture.maxX() - picture.minX();
}

double MixerXSlideFuncUtil::calcMediaHeight(boost::shared_ptr<VisualMedia const> const& media,
                                            double time)
{
    double const height = media->height() - cropAtTime(*media, 3, time);
    Quad const picture = placedPicture(*media, media->width(), height, time);
    return picture.maxY() - picture.minY();
}

}  // namespace tarn
