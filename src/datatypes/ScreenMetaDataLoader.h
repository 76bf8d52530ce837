#pragma once

#include "datatypes/Export.h"
#include "parameters/ParametersFwd.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// The host's reader of a screen recording's side files, whose formats are its own affair.
///
/// Called on the thread that asks for a parameter, with the locks that this thread holds and no
/// other. It may read, ask for other parameters, and edit if its thread may; it must neither ask
/// for the one it is loading, which would never end, nor drop the last pointer to the metadata.
class TARN_API ScreenMetaDataLoader
{
public:
    virtual ~ScreenMetaDataLoader() = default;

    /// The file's content as a parameter of this name. What it throws passes to whoever asked, and
    /// nothing is kept; after that, as after an empty result, it is asked again the next time.
    virtual boost::shared_ptr<ParameterInterface> loadParameter(
        std::string const& absoluteFile, std::string const& paramName,
        boost::weak_ptr<ThreadSafe const> const& lockOwner,
        boost::weak_ptr<ProjectEditRate const> const& rate) = 0;
};

}  // namespace tarn
