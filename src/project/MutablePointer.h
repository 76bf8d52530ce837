#pragma once

#include "exceptions/TarnMediaLibException.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// The owner's view of what commands speak of as const.
/// @throws TarnMediaLibException for an empty pointer
template <class T>
boost::shared_ptr<T> mutablePointer(boost::shared_ptr<T const> const& object)
{
    if (!object)
        throw TarnMediaLibException("attempting to edit an empty pointer");
    return boost::const_pointer_cast<T>(object);
}

}  // namespace tarn
