#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"
#include "project/ThreadSafe.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// The base of what a project owns: it has no lock of its own and uses the project's.
class TARN_API SubProject : public TarnObject, public ThreadSafe
{
public:
    explicit SubProject(boost::weak_ptr<ThreadSafe const> const& project);

    /// For building a child on the same project.
    boost::weak_ptr<ThreadSafe const> projectMutex() const { return m_project; }

    /// @throws boost::bad_weak_ptr when the project is gone; a destructor must not ask
    ReadWriteMutex& mutex() const override
    {
        // Every accessor comes here: ask whether the project lives, without a share in it.
        if (m_project.expired())
            throwProjectIsGone();
        return m_owner->mutex();
    }

    std::string description() const override;

protected:
    SubProject(SubProject const&) = default;
    SubProject& operator=(SubProject const&) = default;

private:
    [[noreturn]] static void throwProjectIsGone();

    boost::weak_ptr<ThreadSafe const> m_project;
    // Good while m_project is.
    ThreadSafe const* m_owner;
};

}  // namespace tarn
