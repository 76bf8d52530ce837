#pragma once

#include "datatypes/Export.h"
#include "parameters/ParametersFwd.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// The host's reader of a screen recording's side files, whose formats are its own affair.
class TARN_API ScreenMetaDataLoader
{
public:
    virtual ~ScreenMetaDataLoader() = default;

    /// The file's content as a parameter of this name. What it throws passes to whoever asked; an
    /// empty result is asked for again the next time.
    virtual boost::shared_ptr<ParameterInterface> loadParameter(
        std::string const& absoluteFile, std::string const& paramName,
        boost::weak_ptr<ThreadSafe const> const& lockOwner,
        boost::weak_ptr<ProjectEditRate const> const& rate) = 0;
};

}  // namespace tarn
