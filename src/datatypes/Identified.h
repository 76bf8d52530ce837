#pragma once

#include "datatypes/Export.h"
#include "parameters/ParametersFwd.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// An object that a user can name: its identifying text, which is not the number that XML uses.
class TARN_API Identified
{
public:
    /// The text is empty at first.
    explicit Identified(boost::weak_ptr<ThreadSafe const> const& project);
    virtual ~Identified();

    virtual boost::shared_ptr<Attribute<std::string>> identAttribute();
    virtual boost::shared_ptr<Attribute<std::string> const> identAttribute() const;

protected:
    /// The copy's text is its own.
    Identified(Identified const& other);
    Identified& operator=(Identified const& other) = delete;

private:
    boost::shared_ptr<Attribute<std::string>> m_identAttribute;
};

}  // namespace tarn
