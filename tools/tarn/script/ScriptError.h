#pragma once

#include "script/Place.h"

#include <stdexcept>

namespace tarn::tool {

/// A script cannot go on; what() is the reason.
class ScriptError : public std::runtime_error
{
public:
    ScriptError(Place const& place, std::string const& reason)
        : std::runtime_error(reason), m_place(place)
    {}

    Place const& place() const { return m_place; }

private:
    Place m_place;
};

}  // namespace tarn::tool
