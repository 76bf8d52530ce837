#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/ProjectFwd.h"
#include "project/ThreadSafe.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// What was recorded beside a screen recording: where the topmost window was, where the cursor was,
/// what it did, and which rectangles changed. Each is a file, read by the host's loader when its
/// parameter is first asked for, and kept.
///
/// No operation takes a lock: two threads that ask for one parameter at once may both load it.
class TARN_API ScreenMetaData : public ThreadSafe, public XMLable
{
public:
    /// Both give a new object, which the caller puts in a shared pointer at once. `parent` is the
    /// media beside whose file the four files lie.
    static ScreenMetaData* create(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                  boost::weak_ptr<FileRepresentation const> const& parent,
                                  boost::weak_ptr<ProjectEditRate const> const& rate);
    /// Without a parent.
    static ScreenMetaData* create(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                  boost::weak_ptr<ProjectEditRate const> const& rate);

    /// For the whole process, not owned; to be set before any parameter is asked for.
    static void setLazyLoader(ScreenMetaDataLoader* loader);
    /// Null until a host has set one.
    static ScreenMetaDataLoader* lazyLoader();

    /// The project's. @throws boost::bad_weak_ptr for a dead project
    ReadWriteMutex& mutex() const override = 0;

    /// The media beside whose file relative names lie; held weakly.
    virtual void setParent(boost::weak_ptr<FileRepresentation const> const& parent) = 0;

    /// @name File names, kept as given
    /// Relative ones lie beside the parent's container. A parameter that was loaded already stays.
    /// @{
    virtual void setTopmostWindowCoordinates(std::string const& fileName) = 0;
    virtual void setCursorLocation(std::string const& fileName) = 0;
    virtual void setCursorAction(std::string const& fileName) = 0;
    virtual void setDirtyRects(std::string const& fileName) = 0;
    virtual std::string const& topmostWindowCoordinatesFilename() const = 0;
    virtual std::string const& cursorLocationFilename() const = 0;
    virtual std::string const& cursorActionFilename() const = 0;
    virtual std::string const& dirtyRectsFilename() const = 0;
    /// @}

    /// @name Loaded parameters, whose kinds loader and host agree on
    /// @throws TarnMediaLibException "attempting to lazy load screen meta data without a loader.",
    ///         even for a parameter that was loaded before
    /// @throws boost::bad_weak_ptr for a relative name without a living parent
    /// @{
    virtual boost::shared_ptr<ParameterInterface> topmostWindowCoordinates() const = 0;
    virtual boost::shared_ptr<ParameterInterface> cursorLocation() const = 0;
    virtual boost::shared_ptr<ParameterInterface> cursorAction() const = 0;
    virtual boost::shared_ptr<ParameterInterface> dirtyRects() const = 0;
    /// @}

    /// Whether all four files have a name.
    virtual bool isValid() const = 0;

private:
    static ScreenMetaDataLoader* s_lazyLoader;
};

}  // namespace tarn
