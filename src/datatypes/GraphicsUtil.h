#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// From the parts of a transform to its matrix, and from the scene to the screen and back.
namespace GraphicsUtil {

/// T x Sh x Rx x Ry x Rz x S x T(-anchor): on a point the anchor is taken off first and the
/// translation comes last. Three numbers each, two for `shear`; angles in radians.
TARN_API TransformMatrix calcTransformFromComponents(double const* scale, double const* translation,
                                                     double const* rotation, double const* shear,
                                                     double const* anchor);

/// From the media's own coordinates through its track's transform to the scene, at a time of the
/// timeline (edit units); the mixer's transform acts last. Takes read locks as it goes.
TARN_API TransformMatrix calcModelMatrix(boost::shared_ptr<VisualMixer const> const& mixer,
                                         boost::shared_ptr<AbstractVisualTrack const> const& track,
                                         boost::shared_ptr<VisualMedia const> const& media,
                                         long long time);

/// From the scene to the viewport; z from 0 to 1 is the depth.
TARN_API Point project(Point const& point, TransformMatrix const& model,
                       TransformMatrix const& projection, Rect<int> const& viewport);
/// From the viewport to the scene.
TARN_API Point unProject(Point const& point, TransformMatrix const& model,
                         TransformMatrix const& projection, Rect<int> const& viewport);

}  // namespace GraphicsUtil

}  // namespace tarn
