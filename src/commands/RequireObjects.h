#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// For a command that looks at its objects before a primitive could refuse them.
/// @throws TarnMediaLibException when one of the pointers is empty
template <class... Pointers>
void requireObjects(Pointers const&... pointers)
{
    if (!(static_cast<bool>(pointers) && ...))
        throw TarnMediaLibException("attempting to edit an empty pointer");
}

/// The same for all of a collection.
template <class Collection>
void requireEachObject(Collection const& pointers)
{
    for (auto const& pointer : pointers)
        requireObjects(pointer);
}

}  // namespace tarn
