#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// How much room a media's picture takes on the mixer: the box around its transformed corners,
/// without its track's transform. Takes read locks as it goes.
///
/// Only the crops of the far sides count, and they are the stored ones.
namespace MixerXSlideFuncUtil {

/// At the media's start, in pixels.
TARN_API double calcMediaBeginWidth(boost::shared_ptr<VisualMedia const> const& media);
/// At the media's end, in pixels.
TARN_API double calcMediaEndWidth(boost::shared_ptr<VisualMedia const> const& media);
/// At the media's start, in pixels.
TARN_API double calcMediaBeginHeight(boost::shared_ptr<VisualMedia const> const& media);
/// At the media's end, in pixels.
TARN_API double calcMediaEndHeight(boost::shared_ptr<VisualMedia const> const& media);

/// In pixels. @param time edit units since the media's start
TARN_API double calcMediaWidth(boost::shared_ptr<VisualMedia const> const& media, double time);
/// In pixels. @param time edit units since the media's start
TARN_API double calcMediaHeight(boost::shared_ptr<VisualMedia const> const& media, double time);

}  // namespace MixerXSlideFuncUtil

}  // namespace tarn
