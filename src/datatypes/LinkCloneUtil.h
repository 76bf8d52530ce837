#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <map>

namespace tarn {

/// Links among clones: a clone starts without links, and gets them here once its fellows exist. For
/// edits, and for clones that nobody else knows. Takes read locks as it goes.
namespace LinkCloneUtil {

/// Links the clones as their originals are linked. A link to a media outside the map is dropped, so
/// clones of half a group are linked among themselves only.
/// @throws DanglingWeakPtrException<Media const> when an original has a dead link
TARN_API void linkClones(
    std::map<boost::shared_ptr<Media const>, boost::shared_ptr<Media>> const& clones);

/// The same pairs, from clone to original.
TARN_API boost::shared_ptr<std::map<boost::shared_ptr<Media>, boost::shared_ptr<Media const>>>
reverseCloneMap(std::map<boost::shared_ptr<Media const>, boost::shared_ptr<Media>> const& clones);

}  // namespace LinkCloneUtil
}  // namespace tarn
