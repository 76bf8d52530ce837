#include "datatypes/GraphicsUtil.h"
#include "datatypes/TransformMatrix.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

namespace tarn {

namespace GraphicsUtil {

TransformMatrix calcModelMatrix(boost::shared_ptr<VisualMixer const> const& mixer,
                                boost::shared_ptr<AbstractVisualTrack const> const& track,
                                boost::shared_ptr<VisualMedia const> const& media, long long time)
{
    TransformMatrix result =
        media->calcTransformAtTime(media.get(), media->fromGlobalToParametricTime(time));
    result.prepend(
        track->calcTransformAtTime(track.get(), track->fromGlobalToParametricTime(time)));
    result.prepend(
        mixer->calcTransformAtTime(mixer.get(), mixer->fromGlobalToParametricTime(time)));
    return result;
}

}  // namespace GraphicsUtil

}  // namespace tarn
