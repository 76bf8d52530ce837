#pragma once

#include "datatypes/Export.h"

#include <boost/rational.hpp>

namespace tarn {

/// What knows how long an edit unit is.
class TARN_API ProjectEditRate
{
public:
    virtual ~ProjectEditRate() = default;

    /// Edit units a second. Its members are unsigned: cast them before mixing them with times.
    virtual boost::rational<unsigned long> editRate() const = 0;

protected:
    ProjectEditRate() = default;
    ProjectEditRate(ProjectEditRate const&) = default;
    ProjectEditRate& operator=(ProjectEditRate const&) = default;
};

}  // namespace tarn
