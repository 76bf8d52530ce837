#pragma once

#include "datatypes/Transformer.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "parameters/InterpolatingParam.h"
#include "timeline/Media.h"
#include "timeline/VisualMedia.h"

#include <boost/shared_ptr.hpp>

namespace tarn {
namespace test {

/// The media's own opacity.
inline boost::shared_ptr<Parameter<double> const> opacityOf(boost::shared_ptr<Media> const& media)
{
    return boost::dynamic_pointer_cast<VisualMedia>(media)->opacity();
}

inline EdgeModification fadeIn(boost::shared_ptr<Media> const& media)
{
    return EdgeModification(opacityOf(media), FadeInFunc());
}

inline EdgeModification fadeOut(boost::shared_ptr<Media> const& media)
{
    return EdgeModification(opacityOf(media), FadeOutFunc());
}

/// Lets a picture fade in and out over that many edit units.
inline void giveFades(boost::shared_ptr<Media> const& media, long long in, long long out)
{
    media->setLeftEdgeModificationLength(in);
    media->addLeftEdgeModification(fadeIn(media));
    media->setRightEdgeModificationLength(out);
    media->addRightEdgeModification(fadeOut(media));
}

}  // namespace test
}  // namespace tarn
