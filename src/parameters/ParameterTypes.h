#pragma once

#include "datatypes/AudioPosition.h"
#include "datatypes/Color.h"
#include "datatypes/Export.h"
#include "datatypes/Point.h"
#include "datatypes/TransformMatrix.h"
#include "parameters/ParametersFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>

// The closed list of the types that a parameter may have, in one place for the instantiations of
// every template of the family. Each template says TARN_API once more at its `extern template`: the
// Boost pointer among its arguments would hide the instance otherwise.

/// Types that are blended between key frames.
#define TARN_INTERPOLATING_TYPES(APPLY)                                                            \
    APPLY(float)                                                                                   \
    APPLY(double)                                                                                  \
    APPLY(Point)                                                                                   \
    APPLY(TransformMatrix)                                                                         \
    APPLY(AudioPosition)

/// Types that keep the value of the key frame on the left.
#define TARN_LEFT_TYPES(APPLY)                                                                     \
    APPLY(Color)                                                                                   \
    APPLY(std::string)                                                                             \
    APPLY(boost::shared_ptr<IMFile>)                                                               \
    APPLY(boost::shared_ptr<Interpolater<float>>)                                                  \
    APPLY(boost::shared_ptr<Interpolater<double>>)                                                 \
    APPLY(boost::shared_ptr<Interpolater<Point>>)                                                  \
    APPLY(boost::shared_ptr<Interpolater<TransformMatrix>>)                                        \
    APPLY(boost::shared_ptr<Interpolater<AudioPosition>>)

#define TARN_PARAMETER_TYPES(APPLY) TARN_INTERPOLATING_TYPES(APPLY) TARN_LEFT_TYPES(APPLY)
