#pragma once

#include "exceptions/TarnMediaLibException.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// The owner's view of an object that its caller keeps alive.
/// @throws TarnMediaLibException for an empty pointer
template <class T>
T& mutableObject(boost::shared_ptr<T const> const& object)
{
    if (!object)
        throw TarnMediaLibException("attempting to edit an empty pointer");
    return const_cast<T&>(*object);
}

/// The owner's view of what commands speak of as const.
/// @throws TarnMediaLibException for an empty pointer
template <class T>
boost::shared_ptr<T> mutablePointer(boost::shared_ptr<T const> const& object)
{
    mutableObject(object);
    return boost::const_pointer_cast<T>(object);
}

}  // namespace tarn
